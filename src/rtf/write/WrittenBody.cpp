#include "rtf/write/WrittenBody.h"

#include <algorithm>
#include <utility>

#include "rtf/words/LateWords.h"

namespace lumenote {
namespace {

bool IsDefinition(const KeptItem& item) {
  return item.kind == KeptItem::Kind::Section || item.kind == KeptItem::Kind::Row;
}

}  // namespace

// --- paragraphs

void WrittenBody::BeginParagraph() {
  begun_ = true;
  if (HasFormat()) Paragraph(Opening(Governing()), true);
  const std::vector<WrittenParagraphs::LeadingItems>& leading = paragraphs_.leading;
  for (; leading_ < leading.size() && leading[leading_].paragraph <= index_; ++leading_)
    Items(tables_.kept[leading[leading_].kept].before);
}

WrittenBody::Known WrittenBody::KnownOf(ParaId id) {
  return {&Words(id), Nesting(), tables_.paragraphs[id].bullet != 0};
}

void WrittenBody::Paragraph(ParaId id, bool atStart) {
  const Known wanted = KnownOf(id);
  const bool changed = wanted != known_;
  known_ = wanted;
  if (changed) out_.Word("pard");
  if (wanted.bullet) Bullet(id, changed, atStart);
  if (!changed) return;
  if (wanted.nesting > 0) out_.Word("intbl");
  if (wanted.nesting > 1) out_.Word("itap", wanted.nesting);
  out_.Words(*wanted.words);
}

/// The format that the paragraph's text begins with.
ParaId WrittenBody::Opening(ParaId id) const {
  const ParaId opening = tables_.paragraphs[id].opening;
  return opening != 0 && !part_ ? opening - 1 : id;
}

void WrittenBody::EndFormat(ParaId id) {
  const ParaId opening = Opening(id);
  if (opening != id && known_ == KnownOf(opening)) {
    const auto added = Addition(tables_.paragraphs[opening], tables_.paragraphs[id], tables_);
    if (added) {
      out_.Words(ParagraphWords(*added, tables_));
      known_ = KnownOf(id);
    }
  }
  Paragraph(id, false);
}

/// The format, without a list that the source does not define.
ParaFormat WrittenBody::WrittenOf(ParaId paragraph) const {
  ParaFormat format = tables_.paragraphs[paragraph];
  if (part_ && format.list != 0 && !part_->HasList(format)) format.list = 0;
  return format;
}

const std::string& WrittenBody::Words(ParaId paragraph) {
  std::optional<std::string>& known = knownWords_[paragraph];
  if (!known) known = ParagraphWords(WrittenOf(paragraph), tables_);
  return *known;
}

/// Each paragraph gets the visible bullet for readers that know no bullets; the first of a series
/// also defines the bullet, unless its list does.
void WrittenBody::Bullet(ParaId id, bool changed, bool atStart) {
  const int font = formats_.BulletFont();
  const bool ofList = WrittenOf(id).list != 0;
  if (atStart) {
    out_.Raw("{");
    out_.Word(ofList ? "listtext" : "pntext");
    out_.Word("f", font);
    out_.Raw("\\'B7\\tab}");
  }
  if (!changed || ofList) return;
  out_.Raw("{\\*\\pn\\pnlvlblt");
  out_.Word("pnf", font);
  out_.Raw("\\pnindent0{\\pntxtb\\'B7}}");
}

void WrittenBody::EndParagraph() {
  while (Cell()) ++cell_;
  ++index_;
  begun_ = false;
  filled_ = false;
}

const WrittenParagraphs::Cell* WrittenBody::Cell() const {
  const std::vector<WrittenParagraphs::Cell>& cells = paragraphs_.cells;
  return cell_ < cells.size() && cells[cell_].paragraph == index_ ? &cells[cell_] : nullptr;
}

int WrittenBody::RowDepth() const {
  if (Cell()) return Cell()->rowDepth;
  return HasFormat() ? paragraphs_.rowDepths[index_] : WrittenParagraphs::kNoRow;
}

/// The table nesting to write for the current paragraph. Readers drop cells that are not in a
/// table, even if their source did not say so.
int WrittenBody::Nesting() const {
  return RowDepth() == WrittenParagraphs::kNoRow ? 0 : std::max(RowDepth(), 1);
}

/// The format of the current cell, or of the paragraph.
ParaId WrittenBody::Governing() const {
  return Cell() ? Cell()->format : paragraphs_.formats[index_];
}

/// Whether readers will number the current paragraph.
bool WrittenBody::IsList() const {
  if (!HasFormat()) return false;
  const ParaFormat format = WrittenOf(Governing());
  const bool numbered = tables_.words.Any(format.words, IsNumbering);
  return format.bullet == 0 && (format.list != 0 || numbered);
}

// --- fields

/// Whether the list number `number` is still one at the next character: an edit may have put a
/// break in it or text before it, or taken the paragraph out of the list. It is written as ordinary
/// text then.
bool WrittenBody::IsNumber(FieldId number, char16_t unit) const {
  const bool open = std::ranges::find(fields_, number, &Open::id) != fields_.end();
  return unit != u'\r' && (open || !begun_) && IsList();
}

bool WrittenBody::IsListNumber(FieldId field) const {
  return tables_.fields[field].kind == KeptField::Kind::ListNumber;
}

/// Closes the fields that the next character is not in and opens those that it is in. Of the items
/// `before` that character, definitions stay outside the field, and so does everything before a
/// list number, since readers number the paragraph there. Before a field ends, the format is taken
/// back if it `resets`. Returns the items still to be written.
ItemId WrittenBody::EnterFields(FieldId wanted, char16_t unit, ItemId before, bool resets) {
  if (fields_.empty() && wanted == 0 && begun_) return before;
  chain_.clear();
  for (FieldId id = wanted; id != 0; id = tables_.fields[id].outer)
    if (!IsListNumber(id) || IsNumber(id, unit)) chain_.insert(chain_.begin(), id);
  const auto differs = std::ranges::mismatch(fields_, chain_, {}, &Open::id).in2;
  const auto common = static_cast<std::size_t>(differs - chain_.begin());
  if (fields_.size() > common && resets && !IsListNumber(fields_.back().id)) out_.Reset(true);
  while (fields_.size() > common) CloseField();
  if (!begun_) BeginParagraph();
  while (fields_.size() < chain_.size()) {
    const FieldId id = chain_[fields_.size()];
    if (IsListNumber(id) || tables_.items.Any(before, IsDefinition))
      Items(std::exchange(before, 0));
    OpenField(id);
  }
  return before;
}

void WrittenBody::OpenField(FieldId id) {
  fields_.push_back({id, known_, format_});
  out_.Words(tables_.fields[id].opening);
  if (!IsListNumber(id)) return;
  out_.Reset();
  format_ = {};
}

void WrittenBody::CloseField() {
  const Open field = fields_.back();
  fields_.pop_back();
  out_.Raw(IsListNumber(field.id) ? "}" : "}}");
  known_ = field.known;
  format_ = field.format;
  if (begun_ && HasFormat()) Paragraph(Opening(Governing()), false);
}

// --- characters

/// Whether the source has a \plain here that this format begins with; so has the copy, for readers
/// that take the format away from the text before.
bool WrittenBody::Resets(const WrittenFormat& wanted) const {
  if (wanted.reset == Reset::First) return !out_.HasReset();
  return IsBehindText(wanted.reset) && wanted.reset != format_.reset && out_.AfterText() &&
         (format_.effects & kSuperscript) == 0 && !edited_;
}

void WrittenBody::Format(CharId format) {
  const WrittenFormat& wanted = formats_[format];
  const bool resets = Resets(wanted);
  edited_ = tables_.characters[format].reset == Reset::Edited;
  format_.spelling = wanted.spelling;
  if (wanted == format_) return;
  if (!resets) format_.reset = wanted.reset;
  if (wanted == format_) return;
  WriteChange(format_, wanted, tables_, out_);
  format_ = wanted;
}

void WrittenBody::Text(TextView text, CharId format) {
  const KeptId kept = tables_.characters[format].kept;
  const bool again = std::exchange(lastKept_, kept) == kept;
  if (!drawings_.empty() && !ContinuesDrawings(kept, format)) WriteDrawings();
  if (kept != 0 || !fields_.empty()) return KeptText(text, format, tables_.kept[kept], again);
  if (!begun_) BeginParagraph();
  Format(format);
  while (!text.Empty()) text.RemovePrefix(Step(text));
}

/// Items are written once, even if an edit has duplicated their character. A cell outside a row is
/// text that ends in a tab.
void WrittenBody::KeptText(TextView text, CharId format, const Kept& kept, bool again) {
  while (!text.Empty()) {
    const char16_t unit = text.Front();
    const bool valid = IsValid(kept, unit);
    if (!valid) WriteDrawings();
    Before(kept, format, unit, again);
    again = true;
    const bool lostCell = !valid && kept.kind == Kept::Kind::Cell && unit == u'\t';
    text.RemovePrefix(valid ? KeptCharacter(kept, unit) : Step(text));
    if (lostCell) ++cell_;
  }
}

void WrittenBody::Items(ItemId first) {
  tables_.items.ForEach(first, [this](const KeptItem& item) { out_.Words(item.source); });
}

/// Writes what precedes a character: items, and changes of fields and format.
void WrittenBody::Before(const Kept& kept, CharId format, char16_t unit, bool again) {
  const bool written = again || tables_.items.Any(kept.before, IsBreak);
  const bool resets = IsBehindText(formats_[format].reset) && Resets(formats_[format]);
  const ItemId rest = EnterFields(kept.field, unit, written ? 0 : kept.before, resets);
  if (IsEmptyBreak(kept, unit)) {
    Items(rest);
    Items(kept.self);
    Format(format);
  } else {
    Format(format);
    Items(rest);
  }
}

/// Whether the character is still what the source made it.
bool WrittenBody::IsValid(const Kept& kept, char16_t unit) const {
  switch (kept.kind) {
    case Kept::Kind::Embedded:
      return unit == kObjectCharacter;
    case Kept::Kind::Cell:
      return unit == u'\t' && InRow();
    case Kept::Kind::Row:
      return unit == u'\r' && InRow();
    case Kept::Kind::Break:
      return unit == u'\r' && filled_;
    default:
      return false;
  }
}

/// Whether a page, column or section break has lost the text before it; readers make no paragraph
/// of such a break.
bool WrittenBody::IsEmptyBreak(const Kept& kept, char16_t unit) const {
  return kept.kind == Kept::Kind::Break && unit == u'\r' && !filled_;
}

/// Writes the character as in the source; returns its length.
std::size_t WrittenBody::KeptCharacter(const Kept& kept, char16_t unit) {
  if (kept.kind == Kept::Kind::Cell || kept.kind == Kept::Kind::Row)
    EndCell(kept);
  else if (IsDrawing(kept))
    drawings_.push_back(kept.self);
  else
    Items(kept.self);
  filled_ = true;
  if (unit != u'\r') return 1;
  out_.Raw("\r\n");
  EndParagraph();
  return 2;
}

bool WrittenBody::IsDrawing(const Kept& kept) const {
  return kept.kind == Kept::Kind::Embedded &&
         tables_.items[kept.self].kind == KeptItem::Kind::Drawing;
}

/// Whether nothing but the drawing of `id` will be written behind the last one.
bool WrittenBody::ContinuesDrawings(KeptId id, CharId format) const {
  const Kept& kept = tables_.kept[id];
  return fields_.empty() && IsDrawing(kept) && kept.before == 0 && kept.field == 0 &&
         formats_[format] == format_;
}

/// Some readers lose the text of the third drawing and of those behind it unless a group holds
/// them.
void WrittenBody::WriteDrawings() {
  const bool many = drawings_.size() > 2;
  if (many) out_.Raw("{");
  for (const ItemId drawing : drawings_) Items(drawing);
  if (many) out_.Raw("}");
  drawings_.clear();
}

void WrittenBody::EndCell(const Kept& kept) {
  EndFormat(Governing());
  out_.Word(kept.nested != 0 ? "nestcell" : "cell");
  if (kept.kind == Kept::Kind::Row && kept.nested != 0)
    EndNestedRow(kept.self);
  else if (kept.kind == Kept::Kind::Row)
    EndRow(kept.self);
  ++cell_;
  begun_ = false;
}

void WrittenBody::EndRow(ItemId definition) {
  Items(definition);
  out_.Word("row");
}

/// Readers expect the table's definition again before the end of a nested row.
void WrittenBody::EndNestedRow(ItemId definition) {
  out_.Words("\\pard\\intbl");
  out_.Word("itap", Cell()->rowDepth);
  out_.Raw("{\\*\\nesttableprops");
  Items(definition);
  out_.Raw("\\nestrow}{\\nonesttables\\par}");
  known_ = {};
}

/// Writes part of the text and returns its length.
std::size_t WrittenBody::Step(TextView text) {
  if (!begun_) BeginParagraph();
  filled_ = true;
  const std::size_t count = out_.Text(text, format_.encoding, format_.spelling);
  return count > 0 ? count : Special(text.Front());
}

/// Writes a tab, break or object, identified by its first unit; returns its length.
std::size_t WrittenBody::Special(char16_t unit) {
  if (unit == u'\r') {
    EndFormat(paragraphs_.formats[index_]);
    out_.Raw("\\par\r\n");
    EndParagraph();
    return 2;
  }
  if (unit == kObjectCharacter) {
    out_.Character(unit, format_.encoding);
  } else {
    out_.Symbol(unit == u'\t' ? "tab" : "line");
  }
  return 1;
}

void WrittenBody::Finish(const FinalMark* mark) {
  WriteDrawings();
  if (mark) {
    const KeptId id = tables_.characters[mark->character].kept;
    const Kept& kept = tables_.kept[id];
    Before(kept, mark->character, u'\r', lastKept_ == id);
    if (IsValid(kept, u'\r')) {
      KeptCharacter(kept, u'\r');
    } else {
      EndFormat(mark->paragraph);
      out_.Raw("\\par ");
      begun_ = false;
    }
  }
  if (!known_.words && !paragraphs_.formats.empty()) BeginParagraph();
  while (!fields_.empty()) CloseField();
}

}  // namespace lumenote
