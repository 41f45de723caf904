#include "extapps/WorkCopies.h"

#include <algorithm>
#include <string>
#include <vector>

#include "base/Characters.h"
#include "base/RuntimeError.h"
#include "platform/Files.h"
#include "platform/Paths.h"
#include "rtf/read/Reader.h"
#include "rtf/source/Tokenizer.h"

namespace lumenote {

namespace {

constexpr std::u16string_view kForms[] = {u"rtf", u"txt", u"sav"};  // of a result, best first

std::u16string CommonName(std::u16string_view folder, std::u16string_view extension) {
  return FoldBackslashes(std::u16string(folder) + u"\\SavNotes." + std::u16string(extension));
}

/// Whether a file is as it was at an earlier moment. The system may find it under several
/// spellings.
bool IsUnchanged(const Files& files, const std::u16string& path, const FileTraces& old) {
  const FileTrace now = TraceDe(files, path);
  return std::any_of(old.begin(), old.end(), [&](const FileTrace& then) {
    return then.time == now.time && files.SameFile(then.path, path);
  });
}

/// The existing files at that path, with the extension in any letter case, that are new or changed
/// since `old`; latest first.
std::vector<std::u16string> Fresh(const Files& files, std::u16string_view path,
                                  const FileTraces& old) {
  std::vector<std::u16string> found = EnTouteCasse(files, path);
  std::erase_if(found, [&](const auto& one) { return IsUnchanged(files, one, old); });
  std::stable_sort(found.begin(), found.end(), [&](const auto& a, const auto& b) {
    return TraceDe(files, a).time > TraceDe(files, b).time;
  });
  return found;
}

}  // namespace

void PurgeSavNotes(Files& files, std::u16string_view folder, std::u16string_view document) {
  for (const std::u16string& name :
       {u"Sav" + FileName(document), std::u16string(u"SavNotes.xxx")}) {
    const std::u16string path = FoldBackslashes(std::u16string(folder) + u"\\" + name);
    for (const std::u16string_view extension : {u"txt", u"rtf", u"doc"})
      for (const std::u16string& copy : EnTouteCasse(files, ChmExts(path, extension)))
        if (!files.SameFile(copy, document)) IgnoringErrors([&] { files.Delete(copy, false); });
  }
}

std::u16string RapatriFch(Files& files, std::u16string_view folder, std::u16string_view base,
                          const FileTraces& old) {
  std::u16string left;
  for (const std::u16string_view extension : {u"rtf", u"txt"}) {
    const auto saved = Fresh(files, CommonName(folder, extension), old);
    if (saved.empty()) continue;
    const std::u16string copy = FoldBackslashes(ChmExts(base, extension));
    IgnoringErrors([&] {
      if (files.IsReadOnly(copy)) files.Delete(copy, true);
    });
    const bool brought = IgnoringErrors([&] { files.Copy(saved.front(), copy); });
    if (!brought && left.empty()) left = saved.front();
  }
  return left;
}

std::u16string TrouverRetour(const Files& files, std::u16string_view workFile,
                             const FileTraces& old) {
  for (const std::u16string_view form : kForms) {
    const auto found = Fresh(files, ChmExts(workFile, form), old);
    if (!found.empty()) return found.front();
  }
  return {};
}

FileTrace TraceDe(const Files& files, std::u16string_view path) {
  FileTrace trace{std::u16string(path)};
  IgnoringErrors([&] { trace.time = files.ModificationTime(path); });
  return trace;
}

FileTraces TracesDe(const Files& files, std::u16string_view workFile, std::u16string_view folder) {
  FileTraces traces;
  const auto note = [&](std::u16string_view path) {
    for (const std::u16string& one : EnTouteCasse(files, path))
      traces.push_back(TraceDe(files, one));
  };
  for (const std::u16string_view form : kForms) {
    note(ChmExts(workFile, form));
    if (!folder.empty()) note(CommonName(folder, form));
  }
  return traces;
}

std::u16string Reprendre(Files& files, const SentWorkFile& sent) {
  std::u16string left;
  if (!sent.folder.empty()) left = RapatriFch(files, sent.folder, sent.path, sent.old);
  return left.empty() ? TrouverRetour(files, sent.path, sent.old) : left;
}

bool GarderTout(const Files& files, SentWorkFile& sent,
                const std::function<bool(const std::u16string& result)>& keep) {
  std::vector<std::u16string> places;
  for (const std::u16string_view form : kForms) {
    places.push_back(ChmExts(sent.path, form));
    if (!sent.folder.empty()) places.push_back(CommonName(sent.folder, form));
  }
  for (const std::u16string& place : places)
    for (const std::u16string& result : Fresh(files, place, sent.old)) {
      if (!keep(result)) return false;
      sent.old.push_back(TraceDe(files, result));
    }
  return true;
}

bool EstEntier(const Files& files, std::u16string_view path, bool text, bool mayBeEmpty) {
  std::string bytes;
  if (!IgnoringErrors([&] { bytes = files.ReadAll(path); })) return false;
  if (text) return mayBeEmpty || !bytes.empty();
  if (!LooksLikeRtf(bytes)) return false;
  Tokenizer tokens(bytes);
  std::size_t depth = 0;
  for (Token token = tokens.Next(); token.kind != Token::Kind::End; token = tokens.Next()) {
    if (token.kind == Token::Kind::Open) ++depth;
    if (token.kind == Token::Kind::Close && --depth == 0) return true;
  }
  return false;
}

void Remplacer(Files& files, std::u16string_view from, std::u16string_view to) {
  if (!files.Exists(to)) return files.Move(from, to);
  files.Write(to, files.ReadAll(from));
  IgnoringErrors([&] { files.Delete(from, true); });
}

}  // namespace lumenote
