#include "surface/editing/TextEditing.h"

#include <algorithm>
#include <utility>

#include "base/Strings.h"
#include "document/KeptEdits.h"
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
  const Position start = core_.Selected().start;
  return PlainFragment(text, TypedFormat(), hasBreaks ? TypedParagraph(start) : 0);
}

/// In a table, that of the paragraph in its cell.
ParaId TextEditing::TypedParagraph(Position start) const {
  const ParaId own = core_.Content().ParaFormatAt(start);
  if (!RowAround(core_.Content(), start)) return own;
  return core_.Formats().paragraphs.Intern(FormatInCell(core_.Content(), start));
}

void TextEditing::ReplaceSelection(UndoKind kind, std::u16string_view text) {
  if (text.empty()) return DeleteSelection(kind);
  if (!core_.HasSelection() || !IsSelected(WithCrLf(text)))
    return ReplaceSelection(kind, Plain(text));
  const Position behind = core_.Selected().end;
  core_.Select(behind, behind);
}

void TextEditing::ReplaceSelection(UndoKind kind, const Fragment& fragment) {
  const Selection old = core_.Selected();
  core_.Edit(kind, [&] {
    const Position behind = old.start + fragment.Length();
    TakeTables(fragment, old.start);
    ReplaceRange(old.start, old.end, {fragment.leaves, {}});
    core_.Place(behind, behind);
  });
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
  if (static_cast<std::size_t>(old.Length()) != text.size()) return false;
  const CharId format = TypedFormat();
  const ParaId paragraph = TypedParagraph(old.start);
  bool same = true;
  document.ForEachRun(old.start, old.end, [&](Position at, TextView piece, CharId id) {
    const auto offset = static_cast<std::size_t>(at - old.start);
    const CharId own = offset == 0 ? WithoutSectionStart(id, core_.Formats()) : id;
    same = same && own == format && piece.String() == text.substr(offset, piece.Size());
  });
  document.ForEachParagraph(old.start, old.end, [&](ParaId id) { same = same && id == paragraph; });
  return same;
}

void TextEditing::DeleteSelection(UndoKind kind) {
  if (!core_.HasSelection()) return;
  const Selection old = core_.Selected();
  const CharFormat format = core_.InsertionFormat();
  core_.Edit(kind, [&] {
    ReplaceRange(old.start, old.end, {});
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
  const Document& document = core_.Content();
  const Position first = document.ParagraphOf(from);
  const Position last = from == to ? first : document.ParagraphOf(to);
  if (first != last) {
    const bool firstStays = from > document.ParagraphStart(first) ||
                            (fragment.Length() > 0 && to > document.ParagraphStart(last));
    if (firstStays && !ReformatCell(from, to)) Reformat(last, document.ParaFormatAt(from));
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

/// Gives the paragraph at `to` the format of the one at `from` if both are in the same cell, which
/// ends with a tab.
bool TextEditing::ReformatCell(Position from, Position to) {
  const Document& document = core_.Content();
  const auto tab = CellEndBehind(document, to);
  if (!tab || CellAround(document, from) != CellAround(document, to)) return false;
  const ParaId format = TypedParagraph(from);
  const auto map = [&](CharId id) {
    return WithCellFormat(id, core_.Formats(), [=](ParaId) { return format; });
  };
  if (const auto mapped = document.MapFormats(*tab, *tab + 1, map, {}))
    core_.Replace(*tab, *tab + 1, *mapped);
  return true;
}

void TextEditing::Reformat(Position paragraph, ParaId format) {
  const Document& document = core_.Content();
  const Position end = document.ParagraphEnd(paragraph);
  const bool final = paragraph + 1 == document.ParagraphCount();
  const Position to = final ? end : document.ParagraphStart(paragraph + 1);
  const auto map = [=](ParaId) { return format; };
  if (const auto mapped = document.MapFormats(end, to, {}, map, final))
    core_.Replace(end, to, *mapped);
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
    ReplaceRange(old.start, old.end, Plain(kBreak));
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
  const Fragment moved = WithoutSectionStart(document.Copy(old.start, old.end), core_.Formats());
  core_.Edit(UndoKind::DragDrop, [&] {
    core_.Replace(target, target, moved);
    const Position shift = target <= old.start ? old.Length() : 0;
    if (!copy) ReplaceRange(old.start + shift, old.end + shift, {});
    const Position at = copy || shift > 0 ? target : target - old.Length();
    core_.Place(at, at + old.Length());
  });
}

void TextEditing::Drop(const Fragment& fragment, Position target) {
  if (fragment.Length() == 0) return;
  core_.Edit(UndoKind::DragDrop, [&] {
    TakeTables(fragment, target);
    core_.Replace(target, target, {fragment.leaves, {}});
    core_.Place(target, target + fragment.Length());
  });
}

}  // namespace lumenote
