// The text of a settings file, read and changed line by line.
#pragma once
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace lumenote {

/// Lines `[application/section]` and `key=value` in UTF-8, blanks around names and values of no
/// account. A character with a meaning here, a control character, a lone surrogate and a blank at
/// an edge are written \uXXXX, a backslash doubled, so that any name and any value survive. All
/// other lines, comments after # or ; among them, are kept as they are and mean nothing; so do the
/// lines under a header that cannot be read. Of two equal keys the later counts.
class IniText {
 public:
  explicit IniText(std::string_view bytes = {});

  std::optional<std::u16string> Find(std::u16string_view application, std::u16string_view section,
                                     std::u16string_view key) const;
  void Set(std::u16string_view application, std::u16string_view section, std::u16string_view key,
           std::u16string_view value);
  std::string Bytes() const;

 private:
  using SectionName = std::pair<std::u16string, std::u16string>;  // application, section

  struct Line {
    std::string text;
    std::optional<std::size_t> section = std::nullopt;  // into `sections_`: the one it belongs to
    std::optional<std::u16string> key = std::nullopt;   // of a `key=value` line
    std::u16string value = {};
  };

  Line Read(std::string_view text, std::optional<std::size_t> section);
  std::size_t SectionNumber(const SectionName& name);
  std::optional<std::size_t> FindLine(std::u16string_view application, std::u16string_view section,
                                      std::u16string_view key) const;
  /// Where a new line of this section goes; the section is begun at the end when it has no line.
  std::vector<Line>::iterator EndOf(std::size_t section);

  std::vector<SectionName> sections_;  // each name once
  std::vector<Line> lines_;
};

}  // namespace lumenote
