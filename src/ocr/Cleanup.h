// Cleaning up recognised text: the correction list's pairs, spaces, one format for the note.
#pragma once
#include <cstdint>
#include <string_view>
#include <vector>

#include "platform/RichTextSurface.h"

namespace lumenote {

class Files;

/// Replaces every `find`, in any letter case, from left to right, and returns the count. The search
/// resumes one character after each replacement, so a match beginning directly after it is skipped.
/// Positions have 16 bits: a text that is or grows longer raises Overflow, with the replacements
/// made so far left in. An empty `find` matches nothing.
std::int16_t RemplacerTout(RichTextSurface& surface, std::u16string_view find,
                           std::u16string_view replace);

/// Applies every pair of a list (the bytes of its file) in order, each to the result of the pairs
/// before it; returns how often each was found. Raises what `CorrectionReader` and `RemplacerTout`
/// raise, with the earlier pairs applied.
std::vector<std::int16_t> AppliquerPaires(RichTextSurface& surface, std::string_view list);
/// Applies the list of a file; a missing file has no pairs.
void ApplyListCorr(RichTextSurface& surface, Files& files, std::u16string_view path);

/// Puts a space after each comma and none before it, one on both sides of each semicolon, and
/// collapses double spaces. Where the replacements undo each other, their order decides.
void NormaliserEspaces(RichTextSurface& surface);

/// Selects the whole note and formats it as clean text. Steps that fail are skipped.
void MettreAuPropre(RichTextSurface& surface);

/// Cleans up a note: all three of the above, in this order. Each replacement and format change is
/// its own undo step unless the caller groups them.
void NettoyerTexte(RichTextSurface& surface, Files& files, std::u16string_view listPath);

}  // namespace lumenote
