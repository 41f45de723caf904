// The text of a settings file, parsed and edited line by line.
#pragma once
#include <functional>
#include <list>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace lumenote {

/// Lines `[application/section]` and `key=value` in UTF-8; spaces around names and values are
/// ignored. Special characters, control characters, unpaired surrogates and a leading or trailing
/// space are written \uXXXX, a backslash is doubled; so any name and value can be stored. All other
/// lines, such as comments after # or ;, are ignored but preserved; so are lines under an invalid
/// header. The last of duplicate keys wins.
class IniText {
 public:
  explicit IniText(std::string_view bytes = {});
  // Movable only: lines and sections point to each other.
  IniText(IniText&&) = default;
  IniText& operator=(IniText&&) = default;

  std::optional<std::u16string> Find(std::u16string_view application, std::u16string_view section,
                                     std::u16string_view key) const;
  void Set(std::u16string_view application, std::u16string_view section, std::u16string_view key,
           std::u16string_view value);
  std::string Bytes() const;

 private:
  using SectionName = std::pair<std::u16string, std::u16string>;  // application, section

  struct Section;
  struct Line {
    std::string text;
    Section* section = nullptr;                        // in `sections_`
    std::optional<std::u16string> key = std::nullopt;  // of a `key=value` line
    std::u16string value = {};
  };
  using Lines = std::list<Line>;
  struct Section {
    std::map<std::u16string, Lines::iterator, std::less<>> keys;  // the last line of each
    std::optional<Lines::iterator> last;                          // of its lines that are not blank
  };

  Line Read(std::string_view text, Section* section);
  /// Makes a line that is in the list known to its section.
  void Enter(Lines::iterator line);
  const Lines::iterator* FindLine(std::u16string_view application, std::u16string_view section,
                                  std::u16string_view key) const;
  void AppendHeader(const SectionName& name, Section& section);

  std::map<SectionName, Section> sections_;
  Lines lines_;
};

}  // namespace lumenote
