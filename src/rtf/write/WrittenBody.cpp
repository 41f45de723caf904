#include "rtf/write/WrittenBody.h"

#include <algorithm>
#include <utility>

#include "rtf/kept/KeptWords.h"

namespace lumenote {

// --- paragraphs

void WrittenBody::BeginParagraph() {
  begun_ = true;
  if (HasFormat()) Paragraph(Governing(), true);
  const std::vector<WrittenParagraphs::Lead>& leads = paragraphs_.leads;
  for (; lead_ < leads.size() && leads[lead_].paragraph <= index_; ++lead_)
    out_.Words(tables_.kept[leads[lead_].kept].before);
}

void WrittenBody::Paragraph(ParaId id, bool atStart) {
  const Told wanted{&Words(id), Nesting(id), tables_.paragraphs[id].bullet != 0};
  const bool sameWords =
      wanted.words == told_.words || (told_.words && *wanted.words == *told_.words);
  const bool changed =
      !sameWords || wanted.nesting != told_.nesting || wanted.bullet != told_.bullet;
  told_ = wanted;
  if (changed) out_.Word("pard");
  if (wanted.bullet) Bullet(id, changed, atStart);
  if (!changed) return;
  if (wanted.nesting > 0) out_.Word("intbl");
  if (wanted.nesting > 1) out_.Word("itap", wanted.nesting);
  out_.Words(*wanted.words);
}

/// The format, out of a list that the source does not define.
ParaFormat WrittenBody::WrittenOf(ParaId paragraph) const {
  ParaFormat format = tables_.paragraphs[paragraph];
  if (!whole_) format.list = 0;
  return format;
}

const std::string& WrittenBody::Words(ParaId paragraph) {
  std::optional<std::string>& known = knownWords_[paragraph];
  if (!known) known = ParagraphWords(WrittenOf(paragraph), tables_, formats_.HasStyles());
  return *known;
}

/// What readers without bullets show comes with each paragraph; the first one of a series says what
/// the bullet is, unless its list does.
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

/// How deep in tables the paragraph at hand, of format `paragraph`, is told to be.
int WrittenBody::Nesting(ParaId paragraph) const {
  const int row = std::max(RowDepth(), 0);
  return row > 1 ? row : std::min<int>(tables_.paragraphs[paragraph].nesting, row);
}

/// The format of the cell at hand, or of the paragraph.
ParaId WrittenBody::Governing() const {
  return Cell() ? Cell()->format : paragraphs_.formats[index_];
}

/// Whether readers number the paragraph at hand.
bool WrittenBody::IsList() const {
  if (!HasFormat()) return false;
  const ParaFormat format = WrittenOf(Governing());
  const bool numbered = tables_.words[format.words].source.find("{\\*\\pn") != std::string::npos;
  return format.bullet == 0 && (format.list != 0 || numbered);
}

// --- fields

/// Whether `number`, the number of a list paragraph, is still that for the next character: an edit
/// may have made a break of it, put text before it, or taken the paragraph out of the list. It is
/// ordinary text then.
bool WrittenBody::IsNumber(FieldId number, char16_t unit) const {
  const bool open = std::ranges::find(fields_, number, &OpenField::id) != fields_.end();
  return unit != u'\r' && (open || !begun_) && IsList();
}

/// Leaves the fields that the next character is not in, and enters those that it is in. Of what
/// comes `before` that character, definitions stay outside the field, and so does all that comes
/// before a list number: readers number the paragraph where its number stands. Returns what is
/// still to be written of it.
std::string_view WrittenBody::Field(FieldId wanted, char16_t unit, std::string_view before) {
  if (fields_.empty() && wanted == 0 && begun_) return before;
  chain_.clear();
  for (FieldId id = wanted; id != 0; id = tables_.fields[id].outer)
    if (!tables_.fields[id].numbers || IsNumber(id, unit)) chain_.insert(chain_.begin(), id);
  const auto differs = std::ranges::mismatch(fields_, chain_, {}, &OpenField::id).in2;
  const auto common = static_cast<std::size_t>(differs - chain_.begin());
  while (fields_.size() > common) CloseField();
  if (!begun_) BeginParagraph();
  while (fields_.size() < chain_.size()) {
    const FieldId id = chain_[fields_.size()];
    const bool numbers = tables_.fields[id].numbers;
    if (numbers || DefinesPlace(before)) out_.Words(std::exchange(before, {}));
    fields_.push_back({id, told_, format_});
    out_.Words(tables_.fields[id].opening);
    if (!numbers) continue;
    out_.Word("plain");
    format_ = {};
  }
  return before;
}

void WrittenBody::CloseField() {
  const OpenField field = fields_.back();
  fields_.pop_back();
  out_.Raw(tables_.fields[field.id].closing);
  told_ = field.told;
  format_ = field.format;
  if (begun_ && HasFormat()) Paragraph(Governing(), false);
}

// --- characters

void WrittenBody::Format(CharId format) {
  const WrittenFormat& wanted = formats_[format];
  if (wanted == format_) return;
  WriteChange(format_, wanted, tables_, out_);
  format_ = wanted;
}

void WrittenBody::Text(TextView text, CharId format) {
  const KeptId kept = tables_.characters[format].kept;
  const bool again = std::exchange(lastKept_, kept) == kept;
  if (kept != 0 || !fields_.empty()) return KeptText(text, format, tables_.kept[kept], again);
  if (!begun_) BeginParagraph();
  Format(format);
  while (!text.Empty()) text.RemovePrefix(Step(text));
}

/// What an edit has made of one character is one still: what stands before it comes once. A cell
/// that is part of no row is text that ends in a tab.
void WrittenBody::KeptText(TextView text, CharId format, const Kept& kept, bool again) {
  while (!text.Empty()) {
    const char16_t unit = text.Front();
    const bool stands = Stands(kept, unit);
    Ahead(kept, format, unit, again);
    again = true;
    const bool lostCell = !stands && kept.kind == Kept::Kind::Cell && unit == u'\t';
    text.RemovePrefix(stands ? Instead(kept, unit) : Step(text));
    if (lostCell) ++cell_;
  }
}

/// What comes ahead of a character.
void WrittenBody::Ahead(const Kept& kept, CharId format, char16_t unit, bool again) {
  const bool told = again || BeginsParagraph(kept.before);
  const std::string_view rest = Field(kept.field, unit, told ? std::string_view() : kept.before);
  if (EndsNothing(kept, unit)) {
    out_.Words(rest);
    out_.Words(kept.instead);
    Format(format);
  } else {
    Format(format);
    out_.Words(rest);
  }
}

/// Whether the character is still what the source said.
bool WrittenBody::Stands(const Kept& kept, char16_t unit) const {
  switch (kept.kind) {
    case Kept::Kind::Embedded:
      return unit == u'\uFFFC';
    case Kept::Kind::Cell:
      return unit == u'\t' && InRow();
    case Kept::Kind::Row:
      return unit == u'\r' && InRow();
    default:
      return unit == u'\r' && filled_ && !kept.instead.empty();
  }
}

/// Whether the end of a page, column or section has lost the text before it: readers then make no
/// paragraph of it.
bool WrittenBody::EndsNothing(const Kept& kept, char16_t unit) const {
  return kept.kind == Kept::Kind::Character && !kept.instead.empty() && unit == u'\r' && !filled_;
}

std::size_t WrittenBody::Instead(const Kept& kept, char16_t unit) {
  const bool endsCell = kept.kind == Kept::Kind::Cell || kept.kind == Kept::Kind::Row;
  if (endsCell) Paragraph(Governing(), false);
  out_.Words(kept.instead);
  if (endsCell) {
    ++cell_;
    begun_ = false;
    if (kept.instead.find("\\pard") != std::string::npos) told_ = {};
  }
  filled_ = true;
  if (unit != u'\r') return 1;
  out_.Raw("\r\n");
  EndParagraph();
  return 2;
}

/// Writes some of the text and returns how much.
std::size_t WrittenBody::Step(TextView text) {
  if (!begun_) BeginParagraph();
  filled_ = true;
  const std::size_t count = out_.Text(text, format_.encoding);
  return count > 0 ? count : Special(text.Front());
}

/// Writes a tab, break or object, told by its first unit; returns its length.
std::size_t WrittenBody::Special(char16_t unit) {
  if (unit == u'\r') {
    Paragraph(paragraphs_.formats[index_], false);
    out_.Raw("\\par\r\n");
    EndParagraph();
    return 2;
  }
  if (unit == u'\uFFFC') {
    out_.Character(unit, format_.encoding);
  } else {
    out_.Word(unit == u'\t' ? "tab" : "line");
  }
  return 1;
}

void WrittenBody::Finish(const FinalMark* mark) {
  if (mark) {
    const KeptId id = tables_.characters[mark->character].kept;
    const Kept& kept = tables_.kept[id];
    Ahead(kept, mark->character, u'\r', lastKept_ == id);
    if (Stands(kept, u'\r')) {
      Instead(kept, u'\r');
    } else {
      Paragraph(mark->paragraph, false);
      out_.Raw("\\par ");
      begun_ = false;
    }
  }
  if (!told_.words && !paragraphs_.formats.empty()) BeginParagraph();
  while (!fields_.empty()) CloseField();
}

}  // namespace lumenote
