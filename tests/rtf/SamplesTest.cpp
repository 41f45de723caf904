// The sample files, whole and damaged, and sources made to hurt.
#include <gtest/gtest.h>
#include <random>

#include "CheckRows.h"
#include "Reading.h"
#include "rtf/write/Writer.h"

namespace lumenote {
namespace {

TEST(Samples, ReadAs) {
  const auto text = [](const std::string& file) {
    const Document document = Read(DataFile(file));
    EXPECT_EQ(LossOf(document), "");
    return TextOf(document);
  };
  CheckRows(DataFile("samples.rows"), text);
  CheckRows("characters.rtf => ソ π€😀ł\x7F\x01\x01\x7Fé↓\u00A0\u00AD\u2011⇥⇥.¶fin¶z", text);
}

TEST(Samples, DamagedAtRandomStayReadable) {
  std::mt19937 random(7);
  for (const auto& entry : std::filesystem::directory_iterator(LUMENOTE_TEST_DATA)) {
    if (entry.path().extension() != ".rtf") continue;
    const std::string whole = DataFile(entry.path().filename().string());
    for (int times = 0; times < 60; ++times) {
      std::string damaged = whole.substr(0, whole.size() - random() % (whole.size() / 4));
      for (int bytes = times % 8; bytes > 0; --bytes) {
        damaged[random() % damaged.size()] = "\\{}\0a9' \xE9"[random() % 9];
      }
      ASSERT_EQ(LossOf(Read(damaged)), "") << damaged;
    }
  }
}

/// `piece` until the source is `kLong`.
std::string Repeated(std::string_view piece) {
  constexpr std::size_t kLong = 3'000'000;
  std::string rtf = "{\\rtf1 ";
  while (rtf.size() < kLong) rtf += piece;
  return rtf;
}

// Work or memory by the square of the length would not end here.
TEST(Hostile, CostsItsLengthOnly) {
  constexpr std::string_view kPieces =
      R"({|}|{}|{\b a|{\pict|{\pict{|{\upr{|{\pntext a|{\*\x|{\fonttbl{\f0 A;|\tx9|\tx9\par|)"
      R"(\bin9 |\'z|\u233?|\cell|{\pntext a}b|{\tx2 a}|\fs9|\row\cell|\sect a|\uc9\u1 |)"
      R"({\*\listtable{\list|{\field{\*\x\page}|{\field{\fldrslt}|\trowd\cell\row|)";
  for (std::size_t at = 0; at < kPieces.size();) {
    const std::string_view piece = kPieces.substr(at, kPieces.find('|', at) - at);
    at += piece.size() + 1;
    EXPECT_LT(WriteRtf(Read(Repeated(piece))).size(), 20'000'000u) << piece;
  }
}

TEST(Hostile, DeepGroupsCloseAgain) {
  const std::string deep(30'000, '{');
  const std::string rtf = "{\\rtf1 a" + deep + "\\b b" + std::string(30'000, '}') + "c}";
  EXPECT_EQ(TextOf(Read(rtf)), "abc");
}

TEST(Hostile, MoreFormatsThanATableHoldsLoseNoText) {
  std::string rtf = "{\\rtf1 ";
  for (int size = 1; size <= 1100; ++size) {
    rtf += "\\fs" + std::to_string(size);
    for (int space = 0; space < 1000; ++space) rtf += "\\expndtw" + std::to_string(space) + " x";
  }
  EXPECT_EQ(Read(rtf).Length(), 1'100'000);
}

}  // namespace
}  // namespace lumenote
