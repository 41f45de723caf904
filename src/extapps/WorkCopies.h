// The copies that go to an external program and come back from it.
#pragma once
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace lumenote {

class Files;
class NoteCopy;

/// A file as it was when somebody looked: its modification time.
struct FileTrace {
  std::u16string path;
  std::int64_t time = 0;
  bool operator==(const FileTrace&) const = default;
};
using FileTraces = std::vector<FileTrace>;

/// A work file that a program was started on.
struct SentWorkFile {
  std::u16string program = {};
  std::u16string path;
  std::int64_t time = 0;  // of its modification, as it went out
  std::u16string folder;  // where the program leaves copies of its own; empty for none
  FileTraces old = {};    // what lay about before and is no result
  std::int64_t process = 0;
  std::shared_ptr<NoteCopy> record = {};  // of all this, for the next start; null for none
};

/// Deletes the copies of the note at `document`, and those under the common name, that an earlier
/// exchange left in `folder`, whatever their form; never the note itself. Failures are ignored.
void PurgeSavNotes(Files& files, std::u16string_view folder, std::u16string_view document);
/// Copies what a program has saved in `folder` under the common name beside the work file `base`,
/// with its extension in small letters, over whatever stands there, but for those that `old` tells
/// of. No other form is taken: the purge leaves those alone, so that one could be an earlier
/// exchange's. The first one that could not be copied; empty when there is none.
std::u16string RapatriFch(Files& files, std::u16string_view folder, std::u16string_view base,
                          const FileTraces& old = {});
/// The work copy in one of the forms that programs save, in this order: rtf, txt, sav; the latest
/// one of a form. Empty when there is none but those that `old` tells of.
std::u16string TrouverRetour(const Files& files, std::u16string_view workFile,
                             const FileTraces& old = {});
/// The current state of a file; the time is 0 when it cannot be read.
FileTrace TraceDe(const Files& files, std::u16string_view path);
/// Every file that the two functions above would find now.
FileTraces TracesDe(const Files& files, std::u16string_view workFile, std::u16string_view folder);
/// What the program has saved of a work file that was sent out, those copies included that it keeps
/// in a folder of its own. Empty when there is nothing.
std::u16string Reprendre(Files& files, const SentWorkFile& sent);
/// Hands every file of it to `keep`, until one is refused; false then. What was kept is no result
/// of `sent` any more. Nothing is written: `sent` may come from a damaged record.
bool GarderTout(const Files& files, SentWorkFile& sent,
                const std::function<bool(const std::u16string& result)>& keep);

/// Whether the file at `path` can be what a program meant to save: RTF is closed as often as it is
/// opened, a text has bytes, unless `mayBeEmpty`. False for one that cannot be read.
bool EstEntier(const Files& files, std::u16string_view path, bool text, bool mayBeEmpty);
/// Puts `from` in the place of `to` at once or not at all. A read-only `to` is an error.
void Remplacer(Files& files, std::u16string_view from, std::u16string_view to);

}  // namespace lumenote
