// The control words of paragraph formats, shared by reader and writer.
#pragma once
#include <cstdint>
#include <string_view>

#include "document/formats/Formats.h"

namespace lumenote {

inline constexpr int kMaxLength = 1'000'000;  // twips; far beyond any paper size

/// A length that the format stores as RTF writes it, in twips: a row here makes it read and
/// written.
struct LengthWord {
  std::string_view name;
  std::int32_t ParaFormat::*length;
  ParaStated stated;
};
inline constexpr LengthWord kLengthWords[] = {
    {"ri", &ParaFormat::rightIndent, kStatesRightIndent},
    {"sb", &ParaFormat::spaceBefore, kStatesSpaceBefore},
    {"sa", &ParaFormat::spaceAfter, kStatesSpaceAfter},
};

/// Index of the row of that name, for its synonyms.
consteval int LengthWordCalled(std::string_view name) {
  int row = 0;
  while (kLengthWords[row].name != name) ++row;
  return row;
}

/// Indexed by Alignment.
inline constexpr std::string_view kAlignmentWords[] = {"ql", "qr", "qc", "qj"};

}  // namespace lumenote
