#include "surface/editing/ParagraphSpacing.h"

namespace lumenote {

namespace {

constexpr int kMaxTwentieths = 100;

}  // namespace

int LineSpacing(const RichTextSurface& surface) {
  const ParagraphRecord record = surface.GetParaFormat(ParagraphRecord::kLineSpacing);
  switch (record.lineSpacingRule) {
    case LineRule::Single:
      return 20;
    case LineRule::OneAndHalf:
      return 30;
    case LineRule::Double:
      return 40;
    default:
      return record.lineSpacing;
  }
}

void SetLineSpacing(RichTextSurface& surface, int value) {
  const LineRule rule = value <= kMaxTwentieths ? LineRule::Multiple : LineRule::Exact;
  surface.SetParaFormat(
      {.mask = ParagraphRecord::kLineSpacing, .lineSpacingRule = rule, .lineSpacing = value});
}

int SpaceBefore(const RichTextSurface& surface) {
  return surface.GetParaFormat(ParagraphRecord::kSpaceBefore).spaceBefore;
}

void SetSpaceBefore(RichTextSurface& surface, int twips) {
  surface.SetParaFormat({.mask = ParagraphRecord::kSpaceBefore, .spaceBefore = twips});
}

int SpaceAfter(const RichTextSurface& surface) {
  return surface.GetParaFormat(ParagraphRecord::kSpaceAfter).spaceAfter;
}

void SetSpaceAfter(RichTextSurface& surface, int twips) {
  surface.SetParaFormat({.mask = ParagraphRecord::kSpaceAfter, .spaceAfter = twips});
}

}  // namespace lumenote
