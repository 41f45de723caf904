#include "surface/editing/TextEditing.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "base/Strings.h"
#include "document/KeptEdits.h"
#include "document/KeptParts.h"
#include "document/tables/CopiedRows.h"
#include "document/tables/TableRow.h"

namespace lumenote {

namespace {

constexpr std::u16string_view kBreak = u"\r\n";

}  // namespace

CharId TextEditing::TypedFormat() const {
  return core_.Formats().characters.Intern(core_.InsertionFormat());
}

Fragment TextEditing::Plain(std::u16string_view text) const {
  const bool hasBreaks = text.find_first_of(kBreak) != std::u16string_view::npos;
  return PlainFragment(text, TypedFormat(), hasBreaks ? TypedParagraph(core_.Selected()) : 0);
}

/// In a table, that of the paragraph in its cell; behind it if the table goes.
ParaId TextEditing::TypedParagraph(Selection range) const {
  const Document& document = core_.Content();
  const auto row = RowAround(document, range.start);
  if (!row) return document.ParaFormatAt(range.start);
  const bool goes = row->start == range.start && !RowAround(document, range.end);
  if (goes) return document.ParaFormatAt(range.end);
  return core_.Formats().paragraphs.Intern(FormatInCell(document, range.start));
}

void TextEditing::ReplaceSelection(UndoKind kind, std::u16string_view text) {
  if (text.empty()) return DeleteSelection(kind);
  const std::u16string clean = WithCrLf(text);
  if (!core_.HasSelection() || !IsSelected(clean))
    return kind == UndoKind::Unknown ? ReplaceAroundKept(clean)
                                     : ReplaceSelection(kind, Plain(clean));
  const Position behind = core_.Selected().end;
  core_.Select(behind, behind);
}

void TextEditing::ReplaceSelection(UndoKind kind, const Fragment& fragment) {
  const Selection old = core_.Selected();
  ReplaceTexts(kind, FindCellTexts(core_.Content(), old, Remains::Text), fragment);
}

void TextEditing::ReplaceWhole(const Fragment& fragment) {
  ReplaceTexts(UndoKind::Unknown, {{core_.Selected()}}, fragment);
}

void TextEditing::ReplaceTexts(UndoKind kind, const CellTexts& texts, const Fragment& fragment) {
  core_.Edit(kind, [&] {
    TakeTables(fragment, texts.parts.front().start);
    const Position at = Put(kind, RemoveBehindFirst(texts), {fragment.leaves, {}});
    core_.Place(at + fragment.Length(), at + fragment.Length());
  });
}

/// Replaces a range by a fragment and returns where that begins. Rows that the user puts there go
/// between paragraphs, with the text around them: in a table above the row that is there.
Position TextEditing::Put(UndoKind kind, Selection range, const Fragment& fragment) {
  const CopiedRows rows =
      kind == UndoKind::Unknown ? CopiedRows{} : FindCopiedRows(fragment, core_.Formats());
  if (!rows.any) {
    ReplaceRange(range.start, range.end, fragment);
    return range.start;
  }
  ReplaceRange(range.start, range.end, {});
  const Document& document = core_.Content();
  Position at = range.start;
  if (const auto row = RowAround(document, at)) {
    at = row->start;
    if (!rows.last) PutBreak(at);
  } else if (rows.first && at > document.ParagraphStart(document.ParagraphOf(at))) {
    PutBreak(at);
    at += static_cast<Position>(kBreak.size());
  }
  core_.Replace(at, at, fragment);
  return at;
}

/// Ends a paragraph that lies in no table.
void TextEditing::PutBreak(Position at) {
  FormatTables& tables = core_.Formats();
  ParaFormat format = FormatInCell(core_.Content(), at);
  format.nesting = 0;
  core_.Replace(at, at, PlainFragment(kBreak, TypedFormat(), tables.paragraphs.Intern(format)));
}

void TextEditing::ReplaceAroundKept(std::u16string_view text) {
  const Selection old = core_.Selected();
  const std::vector<ReplacedPart> parts = CutAroundKept(core_.Content(), old, text);
  if (parts.size() == 1 && !parts.front().kept)
    return ReplaceSelection(UndoKind::Unknown, Plain(text));
  const Position behind = old.start + static_cast<Position>(text.size());
  CharFormat format = core_.InsertionFormat();
  std::vector<std::pair<Selection, Fragment>> edits;
  for (const ReplacedPart& part : parts) {
    if (part.kept) format.kept = *part.kept;
    const CharId own = core_.Formats().characters.Intern(format);
    if (!HasText(part.range, part.text, own))
      edits.emplace_back(part.range, PlainFragment(part.text, own, 0));
  }
  if (edits.empty()) return core_.Select(behind, behind);
  core_.Edit(UndoKind::Unknown, [&] {
    for (auto edit = edits.rbegin(); edit != edits.rend(); ++edit)
      ReplaceRange(edit->first.start, edit->first.end, edit->second);
    core_.Place(behind, behind);
  });
}

void TextEditing::Remove(const CellTexts& texts) {
  const Selection first = RemoveBehindFirst(texts);
  ReplaceRange(first.start, first.end, {});
}

Selection TextEditing::RemoveBehindFirst(const CellTexts& texts) {
  if (texts.takesFinalRow) EndTable();
  const auto& parts = texts.parts;
  for (auto part = parts.rbegin(); part != std::prev(parts.rend()); ++part)
    if (part->Length() > 0) ReplaceRange(part->start, part->end, {});
  return parts.front();
}

/// Makes the note's last paragraph, which ends a row, an ordinary one.
void TextEditing::EndTable() {
  FormatTables& tables = core_.Formats();
  FinalMark mark = core_.Content().Mark();
  CharFormat character = tables.characters[mark.character];
  ParaFormat paragraph = tables.paragraphs[mark.paragraph];
  character.kept = 0;
  paragraph.nesting = 0;
  mark.character = tables.characters.Intern(character);
  mark.paragraph = tables.paragraphs.Intern(paragraph);
  core_.Replace(core_.Content().Length(), core_.Content().Length(), {{}, mark});
}

void TextEditing::TakeTables(const Fragment& fragment, Position at) {
  if (!fragment.mark) return;
  FinalMark mark = core_.Content().Mark();
  mark.head = fragment.mark->head;
  core_.Replace(at, at, {{}, mark});
}

// Whether replacing the selection by `text` would change nothing.
bool TextEditing::IsSelected(std::u16string_view text) const {
  const Document& document = core_.Content();
  const Selection old = core_.Selected();
  if (!HasText(old, text, TypedFormat())) return false;
  const ParaId paragraph = TypedParagraph(old);
  bool same = true;
  document.ForEachParagraph(old.start, old.end, [&](ParaId id) { same = same && id == paragraph; });
  return same;
}

/// Whether the range has just that text in that format; a section start does not matter.
bool TextEditing::HasText(Selection range, std::u16string_view text, CharId format) const {
  if (static_cast<std::size_t>(range.Length()) != text.size()) return false;
  FormatTables& tables = core_.Formats();
  const CharId wanted = WithoutSectionStart(format, tables);
  bool same = true;
  core_.Content().ForEachRun(range.start, range.end, [&](Position at, TextView piece, CharId id) {
    const auto offset = static_cast<std::size_t>(at - range.start);
    const CharId own = offset == 0 ? WithoutSectionStart(id, tables) : id;
    same = same && (own == wanted || id == format) &&
           piece.String() == text.substr(offset, piece.Size());
  });
  return same;
}

std::optional<Position> TextEditing::ReplaceAll(std::u16string_view text,
                                                std::u16string_view replacement,
                                                SearchOptions options, Position most) {
  if (MayKeep(core_.Content(), text, replacement)) return std::nullopt;
  FormatTables& tables = core_.Formats();
  CharFormat format;
  const auto typed = [&](CharId replaced) -> std::optional<CharId> {
    format = core_.CharacterFormat(replaced);
    const KeptId kept = std::exchange(format.kept, 0);
    if (StartsSection(tables, kept) || tables.kept[kept].field != 0) return std::nullopt;
    return tables.characters.Intern(format);
  };
  const auto made = ReplaceAllText(core_.Content(), text, replacement, options, most, typed);
  if (!made) return std::nullopt;
  if (made->count > 0) {
    core_.Edit(UndoKind::Unknown, [&] {
      core_.ReplaceText(made->range.start, made->range.end, made->fragment);
      const Position behind = made->range.start + made->fragment.Length();
      core_.Place(behind, behind, replacement.empty() ? std::optional(format) : std::nullopt);
    });
  }
  if (made->another < 0) return made->count;
  core_.Select(made->another, made->another + static_cast<Position>(text.size()));
  core_.Reveal();
  return made->count + 1;
}

void TextEditing::DeleteSelection(UndoKind kind) {
  if (!core_.HasSelection()) return;
  const Selection old = core_.Selected();
  const CharFormat format = core_.InsertionFormat();
  core_.Edit(kind, [&] {
    Remove(FindCellTexts(core_.Content(), old, Remains::Nothing));
    core_.Place(old.start, old.start, format);
  });
}

void TextEditing::Delete(UndoKind kind, Position from, Position to) {
  if (from == to) return;
  core_.Edit(kind, [&] {
    ReplaceRange(from, to, {});
    core_.Place(from, from);
  });
}

void TextEditing::ReplaceRange(Position from, Position to, const Fragment& fragment) {
  if (from == to && fragment.Length() == 0) return;
  const Document& document = core_.Content();
  if (from < to && document.ParagraphOf(from) != document.ParagraphOf(to)) {
    const CellParagraph first = ParagraphAround(document, from);
    const CellParagraph last = ParagraphAround(document, to);
    const bool firstStays = from > first.start || (fragment.Length() > 0 && to > last.start);
    if (firstStays && first.level == last.level) Reformat(last, first.format);
  }
  ReplaceKeepingSectionStart(from, to, fragment);
}

// The start of a page or section is not part of the text after it: it is moved to the replacement.
void TextEditing::ReplaceKeepingSectionStart(Position from, Position to, const Fragment& fragment) {
  const Document& document = core_.Content();
  const KeptId sectionStart = from < to ? SectionStartAt(document, from) : 0;
  if (sectionStart == 0) return core_.Replace(from, to, fragment);
  FormatTables& tables = core_.Formats();
  if (fragment.Length() > 0)
    return core_.Replace(from, to, WithSectionStart(fragment, tables, sectionStart));
  core_.Replace(from, to, {});
  const Position behind = document.SnapForward(from + 1);
  Fragment next = document.Copy(from, behind);
  if (next.Length() == 0) next.mark = document.Mark();
  core_.Replace(from, behind, WithSectionStart(std::move(next), tables, sectionStart));
}

void TextEditing::Reformat(const CellParagraph& paragraph, ParaId format) {
  const Document& document = core_.Content();
  const bool final = paragraph.end == document.Length();
  const Position to = final ? paragraph.end : paragraph.end + (paragraph.endsCell ? 1 : 2);
  const auto map = [=](ParaId) { return format; };
  const auto mapCell = [&](CharId id) { return WithCellFormat(id, core_.Formats(), map); };
  if (const auto mapped = document.MapFormats(paragraph.end, to, mapCell, map, final))
    core_.Replace(paragraph.end, to, *mapped);
}

void TextEditing::Type(std::u16string_view text) {
  const std::u16string clean = WithCrLf(text);
  std::u16string_view rest = clean;
  while (!rest.empty()) {
    const std::size_t length = std::min(rest.find(kBreak), rest.size());
    if (length > 0)
      ReplaceSelection(UndoKind::Typing, rest.substr(0, length));
    else
      TypeBreak();
    rest.remove_prefix(length > 0 ? length : kBreak.size());
  }
}

void TextEditing::TypeBreak() {
  const Selection old = core_.Selected();
  const CharFormat format = core_.InsertionFormat();
  core_.Edit(UndoKind::Typing, [&] {
    const Position behind = old.start + static_cast<Position>(kBreak.size());
    const Fragment typed = Plain(kBreak);
    const Selection first = RemoveBehindFirst(FindCellTexts(core_.Content(), old, Remains::Text));
    ReplaceRange(first.start, first.end, typed);
    core_.Place(behind, behind, format);
  });
}

void TextEditing::MoveSelection(Position target, bool copy) {
  const Selection old = core_.Selected();
  const Document& document = core_.Content();
  target = document.SnapBackward(std::clamp(target, 0, document.Length()));
  const bool inside =
      copy ? target > old.start && target < old.end : target >= old.start && target <= old.end;
  if (!core_.HasSelection() || inside) return;
  const CopiedText copied = WithRowEnd(document, old);
  const Fragment moved = WithoutSectionStart(
      copied.document.Copy(copied.range.start, copied.range.end), core_.Formats());
  const auto row = RowAround(document, target);
  const bool inRows = row && row->start > old.start && row->start < old.end;
  if (inRows && FindCopiedRows(moved, core_.Formats()).any) return;
  core_.Edit(UndoKind::DragDrop, [&] {
    CellTexts texts = FindCellTexts(core_.Content(), old, Remains::Nothing);
    const Position before = document.Length();
    Position at = Put(UndoKind::DragDrop, {target, target}, moved);
    const Position length = document.Length();
    const Position shift = at <= old.start ? length - before : 0;
    for (Selection& part : texts.parts) part = {part.start + shift, part.end + shift};
    if (!copy) Remove(texts);
    if (shift == 0) at -= length - document.Length();
    core_.Place(at, at + moved.Length());
  });
}

void TextEditing::Drop(const Fragment& fragment, Position target) {
  if (fragment.Length() == 0) return;
  core_.Edit(UndoKind::DragDrop, [&] {
    TakeTables(fragment, target);
    const Position at = Put(UndoKind::DragDrop, {target, target}, {fragment.leaves, {}});
    core_.Place(at, at + fragment.Length());
  });
}

}  // namespace lumenote
