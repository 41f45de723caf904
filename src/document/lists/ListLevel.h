// How a level of a list numbers its items.
#pragma once
#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace lumenote {

inline constexpr int kListLevels = 9;
/// The number of the last item on each level.
using ListNumbers = std::array<int, kListLevels>;

struct ListLevel {
  enum class Form : std::uint8_t {
    Unknown,
    Arabic,
    TwoDigits,
    UpperRoman,
    LowerRoman,
    UpperLetter,
    LowerLetter,
    Bullet,
    None,  // only the text around the number
  };
  int start = 1;
  Form form = Form::Arabic;
  bool legal = false;     // shows the numbers of all levels in Arabic digits
  bool restarts = true;   // behind an item of a higher level
  bool readable = true;   // `text` is what the source means
  std::u16string text{};  // a unit below `kListLevels` stands for that level's number
};
/// A list's levels.
using ListLevels = std::array<ListLevel, kListLevels>;

/// The forms by their numbers in a list table (\levelnfc).
ListLevel::Form ListFormOf(int number);

/// The visible number, without the blank behind it; empty if the levels do not say how it looks.
std::optional<std::u16string> ListNumberText(const ListLevels& levels, int level,
                                             const ListNumbers& numbers);
/// Whether the levels could say that of some item, whatever it counts.
bool LooksLikeNumber(std::u16string_view text, const ListLevels& levels, int level);

}  // namespace lumenote
