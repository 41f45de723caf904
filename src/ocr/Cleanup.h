// Cleaning up recognised text: the pairs of the correction list, blanks, one format for the note.
#pragma once
#include <cstdint>
#include <string_view>
#include <vector>

#include "platform/RichTextSurface.h"

namespace lumenote {

class Files;

/// Replaces every `find`, in any letter case, from left to right, and returns how many there were.
/// The search goes on one character behind what was put in, so a match that begins right there
/// stays. Positions have 16 bits: a longer text, or one that grows beyond, raises Overflow, what
/// was replaced until then stays replaced. An empty `find` finds nothing.
std::int16_t RemplacerTout(RichTextSurface& surface, std::u16string_view find,
                           std::u16string_view replace);

/// Applies every pair of a list, given as the bytes of its file, in order, each to what the pairs
/// before it have left; how often each was found. Raises what `CorrectionReader` and
/// `RemplacerTout` do, with the pairs before that one applied.
std::vector<std::int16_t> AppliquerPaires(RichTextSurface& surface, std::string_view list);
/// The same with a list's file; a missing one has no pairs.
void ApplyListCorr(RichTextSurface& surface, Files& files, std::u16string_view path);

/// A blank after each comma and none before it, one on both sides of each semicolon, no two blanks
/// together; where the replacements undo each other, the order decides.
void NormaliserEspaces(RichTextSurface& surface);

/// Selects the whole note and gives it the format of clean text. A step that fails is left out.
void MettreAuPropre(RichTextSurface& surface);

/// All three, in this order: the clean-up of a note. Each replacement and each format is an undo
/// step of its own unless the caller groups them.
void NettoyerTexte(RichTextSurface& surface, Files& files, std::u16string_view listPath);

}  // namespace lumenote
