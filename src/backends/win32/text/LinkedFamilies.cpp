#include "backends/win32/text/LinkedFamilies.h"

#include <algorithm>
#include <map>
#include <mutex>

#include "backends/win32/system/NativeText.h"
#include "backends/win32/system/System.h"
#include "backends/win32/toolkit/drawing/FontFamilies.h"

namespace lumenote {

namespace {

constexpr const wchar_t* kLinks =
    L"Software\\Microsoft\\Windows NT\\CurrentVersion\\FontLink\\SystemLink";
constexpr const char16_t* kBroadFamilies[] = {u"Segoe UI",
                                              u"Segoe UI Symbol",
                                              u"Segoe UI Emoji",
                                              u"Microsoft YaHei",
                                              u"Yu Gothic",
                                              u"MS Gothic",
                                              u"Malgun Gothic",
                                              u"Microsoft JhengHei",
                                              u"SimSun",
                                              u"Gulim",
                                              u"Nirmala UI",
                                              u"Leelawadee UI",
                                              u"Ebrima",
                                              u"Gadugi",
                                              u"Tahoma",
                                              u"Arial",
                                              u"Segoe UI Historic",
                                              u"Cambria Math",
                                              u"Liberation Sans",
                                              u"DejaVu Sans",
                                              u"Arial Unicode MS"};

/// The strings that the system keeps for a family, each "file,family,scale,scale" or "file,family".
std::vector<std::u16string> LinksOf(const std::u16string& family) {
  DWORD size = 0;
  const auto read = [&](void* to) {
    return RegGetValueW(HKEY_LOCAL_MACHINE, kLinks, Wide(family), RRF_RT_REG_MULTI_SZ, nullptr, to,
                        &size) == ERROR_SUCCESS;
  };
  if (!read(nullptr)) return {};
  std::wstring all(size / sizeof(wchar_t) + 1, L'\0');
  if (!read(all.data())) return {};
  std::vector<std::u16string> links;
  for (const wchar_t* at = all.c_str(); *at; at += std::wstring_view(at).size() + 1)
    links.emplace_back(Utf16(at));
  return links;
}

std::u16string FamilyIn(const std::u16string& link) {
  const std::size_t comma = link.find(u',');
  if (comma == link.npos) return {};
  return link.substr(comma + 1, link.find(u',', comma + 1) - comma - 1);
}

std::vector<std::u16string> Find(const std::u16string& family) {
  std::vector<std::u16string> families;
  const auto add = [&](const std::u16string& one) {
    if (!one.empty() && one != family && std::ranges::find(families, one) == families.end() &&
        HasFamily(one))
      families.push_back(one);
  };
  for (const std::u16string& link : LinksOf(family)) add(FamilyIn(link));
  for (const char16_t* broad : kBroadFamilies) add(broad);
  return families;
}

}  // namespace

const std::vector<std::u16string>& LinkedFamilies(std::u16string_view family) {
  static std::map<std::u16string, std::vector<std::u16string>, std::less<>> known;
  static std::mutex access;  // of several threads with windows
  const std::lock_guard lock(access);
  const auto found = known.find(family);
  if (found != known.end()) return found->second;
  const std::u16string name(family);
  return known[name] = Find(name);
}

}  // namespace lumenote
