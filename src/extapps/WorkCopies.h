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

/// A file and its modification time at some moment.
struct FileTrace {
  std::u16string path;
  std::int64_t time = 0;
};
using FileTraces = std::vector<FileTrace>;

/// A work file that a program was started on.
struct SentWorkFile {
  std::u16string program = {};
  std::u16string path;
  std::int64_t time = 0;  // modification time as it was sent
  std::u16string folder;  // of the program's own copies; empty for none
  FileTraces old = {};    // earlier files, which are no results
  std::int64_t process = 0;
  std::shared_ptr<NoteCopy> record = {};  // of all this, for the next start; null for none
};

/// Deletes the copies of the note at `document`, and those named SavNotes, that an earlier round
/// trip left in `folder`, in any format; never the note itself. Failures are ignored.
void PurgeSavNotes(Files& files, std::u16string_view folder, std::u16string_view document);
/// Copies what a program has saved as SavNotes in `folder`, unless `old` lists it, over the work
/// file `base`, with the extension in lower case. Takes only rtf and txt: the purge spares other
/// formats, so those may be of an earlier round trip. Returns the first file that could not be
/// copied, or an empty path.
std::u16string RapatriFch(Files& files, std::u16string_view folder, std::u16string_view base,
                          const FileTraces& old = {});
/// The work copy in the first format of rtf, txt and sav that there is, the latest of that format.
/// Empty if there is none that `old` does not list.
std::u16string TrouverRetour(const Files& files, std::u16string_view workFile,
                             const FileTraces& old = {});
/// The current state of a file; the time is 0 when it cannot be read.
FileTrace TraceDe(const Files& files, std::u16string_view path);
/// Every file that the two functions above would find now.
FileTraces TracesDe(const Files& files, std::u16string_view workFile, std::u16string_view folder);
/// The result of a work file, after fetching the program's own copies. Empty if there is none.
std::u16string Reprendre(Files& files, const SentWorkFile& sent);
/// Passes every file that the program has saved to `keep`, until that returns false; returns false
/// then. Kept files are added to `old`. Writes nothing, since `sent` may come from a damaged
/// record.
bool GarderTout(const Files& files, SentWorkFile& sent,
                const std::function<bool(const std::u16string& result)>& keep);

/// Whether the file at `path` is complete: RTF has its last brace, a text is not empty unless
/// `mayBeEmpty`. False if it cannot be read.
bool EstEntier(const Files& files, std::u16string_view path, bool text, bool mayBeEmpty);
/// Replaces `to` by `from` atomically. A read-only `to` is an error.
void Remplacer(Files& files, std::u16string_view from, std::u16string_view to);

}  // namespace lumenote
