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
  ParagraphRecord record;
  record.mask = ParagraphRecord::kLineSpacing;
  record.lineSpacingRule = value <= kMaxTwentieths ? LineRule::Multiple : LineRule::Exact;
  record.lineSpacing = value;
  surface.SetParaFormat(record);
}

int SpaceBefore(const RichTextSurface& surface) {
  return surface.GetParaFormat(ParagraphRecord::kSpaceBefore).spaceBefore;
}

void SetSpaceBefore(RichTextSurface& surface, int twips) {
  ParagraphRecord record;
  record.mask = ParagraphRecord::kSpaceBefore;
  record.spaceBefore = twips;
  surface.SetParaFormat(record);
}

int SpaceAfter(const RichTextSurface& surface) {
  return surface.GetParaFormat(ParagraphRecord::kSpaceAfter).spaceAfter;
}

void SetSpaceAfter(RichTextSurface& surface, int twips) {
  ParagraphRecord record;
  record.mask = ParagraphRecord::kSpaceAfter;
  record.spaceAfter = twips;
  surface.SetParaFormat(record);
}

}  // namespace lumenote
