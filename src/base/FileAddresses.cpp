// Addresses of files, read as strictly as the least careful program would follow them.
#include "base/FileAddresses.h"

#include <algorithm>
#include <cstddef>

#include "base/Characters.h"
#include "base/Strings.h"

namespace lumenote {
namespace {

constexpr std::u16string_view kScheme = u"file:";

/// Extensions, a blank around each.
constexpr std::u16string_view kPrograms =
    // Windows: programs, installers, scripts, shortcuts, settings, help with scripts.
    u" application appinstaller appref-ms appx appxbundle bat chm cmd cnt com cpl diagcab dll"
    u" drv exe gadget grp hlp hpj hta inf ins isp js jse library-ms lnk msc msh msh1 msh1xml"
    u" msh2 msh2xml mshxml msi msix msixbundle msp mst msu ocx pif ps1 ps1xml ps2 ps2xml psc1"
    u" psc2 psd1 psm1 rdp reg scf scr sct search-ms searchconnector-ms settingcontent-ms shb"
    u" shs sys theme themepack url vb vbe vbs vhd vhdx vxd website ws wsb wsc wsf wsh xbap xll"
    // Office programs that start with their file's code.
    u" accda accde ade adp mad maf mam maq mas mda mde"
    // Unix systems.
    u" action app appimage bin command deb desktop elf flatpak flatpakref flatpakrepo mpkg out"
    u" pkg rpm run scpt scptd snap so terminal tool webloc workflow"
    // Interpreters of both.
    u" awk bash class cjs csh fish jar jnlp ksh lua mjs php pl pm py pyc pyo pyw pyz pyzw rb"
    u" rbw sh tcl tk zsh"
    u" ";

/// With "%41" as the byte that it stands for.
std::string Decoded(const std::string& text) {
  std::string bytes;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const auto byte = text[i] == '%' ? UnitFromHex("00" + text.substr(i + 1, 2)) : std::nullopt;
    bytes += byte ? static_cast<char>(*byte) : text[i];
    if (byte) i += 2;
  }
  return bytes;
}

/// The absolute path after the host, which is this machine; empty if it may be another one, as two
/// slashes anywhere may mean.
std::string LocalPath(const std::string& location) {
  std::string slashed = location;
  std::ranges::replace(slashed, '\\', '/');
  std::size_t start = 0;
  if (slashed.starts_with("//")) {
    start = std::min(slashed.find('/', 2), slashed.size());
    const std::u16string host = Lower(FromUtf8(slashed.substr(2, start - 2)));
    if (!host.empty() && host != u"localhost") return {};
  }
  const std::string_view path = std::string_view(slashed).substr(start);
  const bool absolute = path.starts_with('/') || path.substr(0, 3).ends_with(":/");
  return absolute && path.find("//") == path.npos ? location.substr(start) : std::string();
}

bool IsControl(char c) { return (c >= 0 && c < ' ') || c == '\x7F'; }

}  // namespace

std::vector<std::string> PathsOf(std::u16string_view address) {
  if (Lower(address.substr(0, kScheme.size())) != kScheme) return {};
  const std::string path = LocalPath(Decoded(ToUtf8(address.substr(kScheme.size()))));
  if (path.empty() || std::ranges::any_of(path, IsControl)) return {};
  std::vector<std::string> paths{path};
  for (const char mark : {'?', '#'})
    for (const std::size_t end : {path.find(mark), path.rfind(mark)})
      if (end != path.npos) paths.push_back(path.substr(0, end));
  return paths;
}

// Windows takes "a.exe", "a.exe ", "a.exe." and "a.exe::$DATA" for the same file.
bool RunsWhenOpened(std::string_view path) {
  const std::string_view name = path.substr(path.find_last_of("/\\") + 1);
  const std::size_t point = name.rfind('.');
  if (point == name.npos) return true;
  const std::string_view rest = name.substr(point + 1);
  const std::u16string full = Lower(FromUtf8(rest.substr(0, rest.find(':'))));
  const std::u16string_view extension = TrimSpaces(full);
  return extension.empty() ||
         kPrograms.find(u' ' + std::u16string(extension) + u' ') != kPrograms.npos;
}

}  // namespace lumenote
