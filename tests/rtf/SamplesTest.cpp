// The sample files, whole and damaged, and sources made to hurt.
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <random>

#include "Reading.h"
#include "rtf/write/Writer.h"

namespace lumenote {
namespace {

const std::filesystem::path kSamples = LUMENOTE_SAMPLES;

std::string Bytes(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

class Samples : public testing::TestWithParam<Case> {};
TEST_P(Samples, ReadAs) {
  const Document document = Read(Bytes(kSamples / GetParam().rtf));
  EXPECT_EQ(TextOf(document), GetParam().expected);
  EXPECT_EQ(LossOf(document), "");
}
INSTANTIATE_TEST_SUITE_P(
    Files, Samples,
    testing::Values(
        Case{"empty.rtf", ""},
        Case{"note.rtf",
             "Campanula rotundifolia\nTige grêle, rarement simple\u00A0; feuilles "
             "«\u00A0rondes\u00A0»."
             "\n\uF0B7\t\nCorolle bleue\nCalice vert \uF061\nAlt.\t300–1 900 m\vH2O, 10e jour"},
        Case{"processor.rtf",
             "Relevé\nun bois\nune haie\n1.\tpremier\nnom\tdate\nSite example ł fin"},
        Case{"pictures.rtf", "avant \uFFFC milieu \uFFFC après"},
        Case{"pages.rtf", "é При čř αβ ış \uF06C Ж"}, Case{"nul_bytes.rtf", " Zoe gras"},
        Case{"truncated.rtf", "Le début est là, la fin"},
        Case{"stray_braces.rtf", "Un deux trois\nquatre"},
        Case{"wild_numbers.rtf", "grand\uFFFD texte"},
        Case{"fields.rtf", "Voir un lien, p.\n1.\tbacX fin"},
        Case{"tables.rtf", "ab\tc\td\ne\nf\ng\nh\ni\nk\nl\nm"},
        Case{"characters.rtf",
             "ソ π€😀ł\u007F\u0001\u0001\u007Fé\v\u00A0\u00AD\u2011\t\t.\nfin\nz"}));

TEST(Samples, DamagedAtRandomStayReadable) {
  std::mt19937 random(7);
  for (const auto& entry : std::filesystem::directory_iterator(kSamples)) {
    if (entry.path().extension() != ".rtf") continue;
    const std::string whole = Bytes(entry.path());
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
      R"({\*\listtable{\list|)";
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
