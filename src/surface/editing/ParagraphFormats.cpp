#include "surface/editing/ParagraphFormats.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "base/RuntimeError.h"
#include "document/KeptEdits.h"
#include "document/tables/TableRow.h"

namespace lumenote {

namespace {

constexpr int kTwentieth = kSingleLine / 20;

/// The line spacing in the record's units.
std::int32_t RecordedSpacing(const ParaFormat& format) {
  if (format.lineRule != LineRule::Multiple) return format.lineSpacing;
  return static_cast<std::int32_t>(std::lround(1.0 * format.lineSpacing / kTwentieth));
}

void SetRecordedSpacing(ParaFormat& format, LineRule rule, std::int32_t spacing) {
  constexpr std::int32_t kMax = std::numeric_limits<std::int32_t>::max() / kTwentieth;
  const bool multiple = rule == LineRule::Multiple;
  format.lineRule = rule;
  format.lineSpacing = multiple ? std::clamp(spacing, -kMax, kMax) * kTwentieth : spacing;
}

/// What a change of an indent states: RTF counts the left ones from each other.
int StatedBy(std::int32_t ParaFormat::*indent) {
  return indent == &ParaFormat::rightIndent ? kStatesRightIndent
                                            : kStatesLeftIndent | kStatesFirstIndent;
}

void State(int attributes, ParaFormat& format) {
  format.stated = static_cast<std::uint16_t>(format.stated | attributes);
}

}  // namespace

// From the end of the first paragraph that the selection touches to behind that of the last one: it
// holds the characters that have their formats.
ParagraphFormats::Enders ParagraphFormats::Touched() const {
  const Document& document = core_.Content();
  const Selection selection = core_.Selected();
  const Position from = ParagraphAround(document, selection.start).end;
  const CellParagraph last =
      ParagraphAround(document, core_.HasSelection() ? selection.end - 1 : selection.end);
  const bool final = last.end == document.Length();
  return {from, final ? last.end : last.end + (last.endsCell ? 1 : 2), final};
}

template <class Get>
auto ParagraphFormats::Common(Get get) const -> std::optional<decltype(get(ParaFormat{}))> {
  std::optional<decltype(get(ParaFormat{}))> value;
  bool mixed = false;
  const auto take = [&](ParaId id) {
    const auto found = get(core_.ParagraphFormat(id));
    mixed = mixed || (value && *value != found);
    value = found;
  };
  const Document& document = core_.Content();
  const FormatTables& tables = document.Formats();
  const Enders touched = Touched();
  document.ForEachRun(touched.from, touched.to, [&](Position, TextView, CharId format) {
    const Kept& kept = tables.kept[tables.characters[format].kept];
    if (kept.kind == Kept::Kind::Cell) take(kept.paragraph);
  });
  document.Leaves().ForEachMark(document.ParagraphOf(touched.from),
                                document.ParagraphOf(touched.to), take);
  if (touched.final) take(document.Mark().paragraph);
  if (mixed) return std::nullopt;
  return value;
}

// Changes formats with `set`; those that it leaves equal are not touched.
template <class Set>
void ParagraphFormats::Apply(UndoKind kind, Set set) {
  core_.RefuseWhileNotifying();
  const auto map = [&](ParaId id) {
    ParaFormat format = core_.ParagraphFormat(id);
    set(format);
    if (format == core_.ParagraphFormat(id)) return id;
    format.opening = 0;
    return core_.Formats().paragraphs.Intern(format);
  };
  // The characters that end the cells of a row hold the cells' formats.
  const auto mapCell = [&](CharId id) { return WithCellFormat(id, core_.Formats(), map); };
  const Enders touched = Touched();
  const auto mapped =
      core_.Content().MapFormats(touched.from, touched.to, mapCell, map, touched.final);
  if (mapped) core_.Edit(kind, [&] { core_.Replace(touched.from, touched.to, *mapped); });
}

std::optional<bool> ParagraphFormats::Bullet() const {
  return Common([](const ParaFormat& format) { return format.bullet != 0; });
}

void ParagraphFormats::Bullet(UndoKind kind, bool on) {
  Apply(kind, [this, on](ParaFormat& format) {
    if ((format.bullet != 0) == on) return;
    format.bullet = on;
    LeaveList(format, core_.Formats());
  });
}

std::optional<int> ParagraphFormats::AlignmentCode() const {
  return Common([](const ParaFormat& format) {
    const bool justified = format.alignment == Alignment::Justify;
    return static_cast<int>(justified ? Alignment::Left : format.alignment);
  });
}

void ParagraphFormats::AlignmentCode(int code) {
  if (code < static_cast<int>(Alignment::Left) || code > static_cast<int>(Alignment::Centre))
    throw RuntimeError(ErrorNumber::InvalidPropertyValue);
  Align(static_cast<Alignment>(code));
}

void ParagraphFormats::Align(Alignment alignment) {
  Apply(UndoKind::Unknown, [=](ParaFormat& format) {
    format.alignment = alignment;
    State(kStatesAlignment, format);
  });
}

std::optional<int> ParagraphFormats::Indent(std::int32_t ParaFormat::*indent) const {
  return Common([=](const ParaFormat& format) { return int{format.*indent}; });
}

void ParagraphFormats::Indent(std::int32_t ParaFormat::*indent, int twips) {
  Apply(UndoKind::Unknown, [=](ParaFormat& format) {
    format.*indent = twips;
    State(StatedBy(indent), format);
  });
}

ParagraphRecord ParagraphFormats::Record(unsigned mask) const {
  const ParaFormat& format =
      core_.ParagraphFormat(ParagraphAround(core_.Content(), core_.Selected().start).format);
  ParagraphRecord record;
  record.mask = mask;
  if (mask & ParagraphRecord::kLineSpacing) {
    record.lineSpacingRule = format.lineRule;
    record.lineSpacing = RecordedSpacing(format);
  }
  if (mask & ParagraphRecord::kSpaceBefore) record.spaceBefore = format.spaceBefore;
  if (mask & ParagraphRecord::kSpaceAfter) record.spaceAfter = format.spaceAfter;
  return record;
}

void ParagraphFormats::Record(const ParagraphRecord& record) {
  const auto takes = [&](unsigned attribute) { return (record.mask & attribute) != 0; };
  const int stated = (takes(ParagraphRecord::kLineSpacing) ? kStatesLineSpacing : 0) |
                     (takes(ParagraphRecord::kSpaceBefore) ? kStatesSpaceBefore : 0) |
                     (takes(ParagraphRecord::kSpaceAfter) ? kStatesSpaceAfter : 0);
  Apply(UndoKind::Unknown, [&](ParaFormat& format) {
    if (takes(ParagraphRecord::kLineSpacing))
      SetRecordedSpacing(format, record.lineSpacingRule, record.lineSpacing);
    if (takes(ParagraphRecord::kSpaceBefore)) format.spaceBefore = record.spaceBefore;
    if (takes(ParagraphRecord::kSpaceAfter)) format.spaceAfter = record.spaceAfter;
    State(stated, format);
  });
}

}  // namespace lumenote
