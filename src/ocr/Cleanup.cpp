#include "ocr/Cleanup.h"

#include <optional>
#include <string>

#include "base/Numbers.h"
#include "base/RuntimeError.h"
#include "base/Strings.h"
#include "ocr/CorrectionList.h"
#include "ocr/TextIndex.h"
#include "platform/Files.h"
#include "selection/TextUnits.h"
#include "surface/editing/ParagraphSpacing.h"

namespace lumenote {

namespace {

constexpr float kFontSize = 11;  // points
constexpr std::u16string_view kFontName = u"Times New Roman";
constexpr int kSingleSpacing = 20;     // twentieths of a line
constexpr int kFirstLineIndent = 150;  // twips
constexpr int kFollowingLines = -150;  // from the first line: back to the left edge
constexpr int kSpaceBefore = 60;       // twips

/// Calls `replaced` with the position of each match replaced.
template <class Replaced>
std::int16_t ReplaceAll(RichTextSurface& surface, std::u16string_view find,
                        std::u16string_view replace, Replaced replaced) {
  ToInt16(std::int64_t{surface.TextLength()});
  // Each round advances the start by at least one, so the count cannot overflow before it.
  std::int16_t count = 0;
  std::int16_t start = 0;
  for (Position at; (at = surface.Find(find, start, 0)) != -1; ++count) {
    surface.SelText(replace);
    replaced(at);
    start = ToInt16(std::int64_t{surface.SelStart()} + 1);
  }
  return count;
}

// A replacement may change more than its match, and then the length: an item of a list that comes
// or goes takes its number along, and those of others follow.
std::int16_t ReplacePair(RichTextSurface& surface, const Correction& pair, TextIndex& index) {
  const std::u16string inserted = WithCrLf(pair.right);
  const std::int16_t count = ReplaceAll(surface, pair.wrong, pair.right, [&](Position at) {
    index.Replaced(static_cast<std::size_t>(at), pair.wrong.size(), inserted);
  });
  if (static_cast<std::size_t>(surface.TextLength()) != index.Length())
    index = TextIndex(surface.Text());
  return count;
}

}  // namespace

std::int16_t RemplacerTout(RichTextSurface& surface, std::u16string_view find,
                           std::u16string_view replace) {
  return ReplaceAll(surface, find, replace, [](Position) {});
}

std::vector<std::int16_t> AppliquerPaires(RichTextSurface& surface, std::string_view list) {
  std::vector<std::int16_t> counts;
  std::optional<TextIndex> index;
  CorrectionReader reader(list);
  while (const auto pair = reader.Next()) {
    ToInt16(std::int64_t{surface.TextLength()});
    if (!index) index.emplace(surface.Text());
    counts.push_back(index->MayContain(pair->wrong) ? ReplacePair(surface, *pair, *index)
                                                    : std::int16_t{0});
  }
  return counts;
}

void ApplyListCorr(RichTextSurface& surface, Files& files, std::u16string_view path) {
  if (files.Exists(path)) AppliquerPaires(surface, files.ReadAll(path));
}

void NormaliserEspaces(RichTextSurface& surface) {
  RemplacerTout(surface, u",", u", ");
  RemplacerTout(surface, u";", u" ; ");
  RemplacerTout(surface, u" ,", u",");
  while (RemplacerTout(surface, u"  ", u" ") > 0) {
  }
}

void MettreAuPropre(RichTextSurface& surface) {
  IgnoringErrors([&] { SelectTout(surface); });
  IgnoringErrors([&] { surface.SelFontSize(kFontSize); });
  IgnoringErrors([&] { surface.SelFontName(kFontName); });
  IgnoringErrors([&] { SetLineSpacing(surface, kSingleSpacing); });
  IgnoringErrors([&] { surface.SelIndent(kFirstLineIndent); });
  IgnoringErrors([&] { surface.SelHangingIndent(kFollowingLines); });
  IgnoringErrors([&] { surface.RightMargin(0); });
  IgnoringErrors([&] { SetSpaceBefore(surface, kSpaceBefore); });
}

void NettoyerTexte(RichTextSurface& surface, Files& files, std::u16string_view listPath) {
  surface.Atomically([&] {
    ApplyListCorr(surface, files, listPath);
    NormaliserEspaces(surface);
    MettreAuPropre(surface);
  });
}

}  // namespace lumenote
