// The copies that go to an external program and come back from it.
#pragma once
#include <string>
#include <string_view>

namespace lumenote {

class Files;

/// Deletes the copies of the note called `documentName`, and those under the common name, that an
/// earlier exchange left in `folder`, whatever their form. Failures are ignored.
void PurgeSavNotes(Files& files, std::u16string_view folder, std::u16string_view documentName);
/// Copies what a program has saved in `folder` under the common name beside the work file `base`,
/// with its extension in small letters, over whatever stands there. Failures are ignored. No other
/// form is taken: the purge leaves those alone, so that one could be an earlier exchange's.
void RapatriFch(Files& files, std::u16string_view folder, std::u16string_view base);
/// The work copy in one of the forms that programs save, in this order: rtf, txt, sav. Empty when
/// there is none.
std::u16string TrouverRetour(const Files& files, std::u16string_view workFile);
/// Whether the file at `path` can be what a program meant to save: RTF behind its extension goes
/// from the first brace to the last one. False for one that cannot be read.
bool EstEntier(const Files& files, std::u16string_view path);
/// Puts `from` in the place of `to` at once or not at all. A read-only `to` is an error.
void Remplacer(Files& files, std::u16string_view from, std::u16string_view to);

}  // namespace lumenote
