// The words of paragraph formats that reader and writer share.
#pragma once
#include <cstdint>
#include <string_view>

#include "document/formats/Formats.h"

namespace lumenote {

inline constexpr int kMaxLength = 1'000'000;  // twips; far beyond any paper
inline constexpr int kUnitsOfTwentieth = 12;  // \sl counts 240 units a line, the format 20

/// A length in twips that the format holds as RTF tells it: a row here makes it read and written.
struct LengthWord {
  std::string_view name;
  std::int32_t ParaFormat::*length;
};
inline constexpr LengthWord kLengthWords[] = {
    {"ri", &ParaFormat::rightIndent},
    {"sb", &ParaFormat::spaceBefore},
    {"sa", &ParaFormat::spaceAfter},
};

/// The row of that name, for words that say the same.
consteval int LengthWordCalled(std::string_view name) {
  int row = 0;
  while (kLengthWords[row].name != name) ++row;
  return row;
}

/// By Alignment.
inline constexpr std::string_view kAlignmentWords[] = {"ql", "qr", "qc", "qj"};

}  // namespace lumenote
