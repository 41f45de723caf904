// The text of a settings file, parsed and edited line by line.
#pragma once
#include <cstddef>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace lumenote {

/// Lines `[application/section]` and `key=value` in UTF-8; spaces around names and values are
/// ignored. Special characters, control characters, unpaired surrogates and a leading or trailing
/// space are written \uXXXX, a backslash is doubled; so any name and value can be stored. All other
/// lines, such as comments after # or ;, are ignored but preserved; so are lines under an invalid
/// header. The last of duplicate keys wins.
class IniText {
 public:
  explicit IniText(std::string_view bytes = {});
  // Movable only: the lines point into `sections_`.
  IniText(IniText&&) = default;
  IniText& operator=(IniText&&) = default;

  std::optional<std::u16string> Find(std::u16string_view application, std::u16string_view section,
                                     std::u16string_view key) const;
  void Set(std::u16string_view application, std::u16string_view section, std::u16string_view key,
           std::u16string_view value);
  std::string Bytes() const;

 private:
  using SectionName = std::pair<std::u16string, std::u16string>;  // application, section

  struct Line {
    std::string text;
    const SectionName* section = nullptr;              // in `sections_`
    std::optional<std::u16string> key = std::nullopt;  // of a `key=value` line
    std::u16string value = {};
  };

  Line Read(std::string_view text, const SectionName* section);
  std::optional<std::size_t> FindLine(std::u16string_view application, std::u16string_view section,
                                      std::u16string_view key) const;
  /// Where to insert a new line of this section; appends the section if it has no line.
  std::vector<Line>::iterator EndOf(const SectionName& section);

  std::set<SectionName> sections_;
  std::vector<Line> lines_;
};

}  // namespace lumenote
