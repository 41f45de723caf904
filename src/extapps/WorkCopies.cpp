#include "extapps/WorkCopies.h"

#include <string>

#include "base/Characters.h"
#include "base/RuntimeError.h"
#include "platform/Files.h"
#include "platform/Paths.h"
#include "rtf/Reader.h"

namespace lumenote {

void PurgeSavNotes(Files& files, std::u16string_view folder, std::u16string_view documentName) {
  for (const std::u16string& name :
       {u"Sav" + std::u16string(documentName), std::u16string(u"SavNotes.xxx")}) {
    const std::u16string path = FoldBackslashes(std::u16string(folder) + u"\\" + name);
    for (const std::u16string_view extension : {u"txt", u"rtf", u"Rtf", u"doc"}) {
      const std::u16string copy = ChmExts(path, extension);
      if (files.Exists(copy)) IgnoringErrors([&] { files.Delete(copy, false); });
    }
  }
}

void RapatriFch(Files& files, std::u16string_view folder, std::u16string_view base) {
  for (const std::u16string_view extension : {u"Rtf", u"rtf", u"txt"}) {
    const std::u16string saved =
        FoldBackslashes(std::u16string(folder) + u"\\SavNotes." + std::u16string(extension));
    if (!files.Exists(saved)) continue;
    const std::u16string copy = FoldBackslashes(ChmExts(base, Lower(extension)));
    IgnoringErrors([&] { files.Delete(copy, true); });
    IgnoringErrors([&] { files.Copy(saved, copy); });
  }
}

std::u16string TrouverRetour(const Files& files, std::u16string_view workFile) {
  for (const std::u16string_view extension : {u"rtf", u"txt", u"sav"}) {
    std::u16string path = ChmExts(workFile, extension);
    if (files.Exists(path)) return path;
  }
  return {};
}

bool EstEntier(const Files& files, std::u16string_view path) {
  bool whole = false;
  IgnoringErrors([&] {
    const std::string bytes = files.ReadAll(path);
    constexpr std::string_view kBehindTheEnd("\r\n \t\0", 5);
    const std::size_t last = bytes.find_last_not_of(kBehindTheEnd);
    whole = !path.ends_with(u".rtf") ||
            (LooksLikeRtf(bytes) && last != std::string::npos && bytes[last] == '}');
  });
  return whole;
}

void Remplacer(Files& files, std::u16string_view from, std::u16string_view to) {
  if (!files.Exists(to)) return files.Move(from, to);
  files.Write(to, files.ReadAll(from));
  IgnoringErrors([&] { files.Delete(from, true); });
}

}  // namespace lumenote
