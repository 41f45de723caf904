#include "surface/DocumentSurface.h"

#include <cmath>

#include "base/RuntimeError.h"
#include "base/Strings.h"
#include "document/Search.h"
#include "surface/Scan.h"

namespace lumenote {

namespace {

constexpr int kMultilevelUndo = 8;

void RequireNotNegative(Position value) {
  if (value < 0) throw RuntimeError(ErrorNumber::InvalidPropertyValue);
}

SearchOptions SearchOf(int options) {
  return {(options & kFindWholeWord) != 0, (options & kFindMatchCase) != 0};
}

}  // namespace

DocumentSurface::DocumentSurface(Clipboard& clipboard, Files& files, LineBreaker& breaker)
    : core_(breaker), transfer_(core_, text_, clipboard, files), motion_(core_, breaker) {}

std::u16string DocumentSurface::Text() const { return Content().Text(0, Content().Length()); }

void DocumentSurface::SelStart(Position start) {
  RequireNotNegative(start);
  core_.Select(start, start);
}

void DocumentSurface::SelLength(Position length) {
  RequireNotNegative(length);
  const Position start = SelStart();
  core_.Select(start, start + std::min(length, Content().Length() - start));
}

std::u16string DocumentSurface::SelText() const {
  return Content().Text(Selected().start, Selected().end);
}

void DocumentSurface::SelText(std::u16string_view text) {
  text_.ReplaceSelection(UndoKind::Unknown, text);
}

std::optional<int> DocumentSurface::SelIndent() const {
  return paragraphs_.Indent(&ParaFormat::firstIndent);
}

void DocumentSurface::SelIndent(int twips) { paragraphs_.Indent(&ParaFormat::firstIndent, twips); }

std::optional<int> DocumentSurface::SelRightIndent() const {
  return paragraphs_.Indent(&ParaFormat::rightIndent);
}

void DocumentSurface::SelRightIndent(int twips) {
  paragraphs_.Indent(&ParaFormat::rightIndent, twips);
}

std::optional<int> DocumentSurface::SelHangingIndent() const {
  return paragraphs_.Indent(&ParaFormat::hangingIndent);
}

void DocumentSurface::SelHangingIndent(int twips) {
  paragraphs_.Indent(&ParaFormat::hangingIndent, twips);
}

void DocumentSurface::RightMargin(float twips) {
  if (!std::isfinite(twips) || twips < 0) throw RuntimeError(ErrorNumber::InvalidPropertyValue);
  if (twips == rightMargin_) return;
  rightMargin_ = twips;
  core_.NotifyWrapWidth();
}

Position DocumentSurface::Find(std::u16string_view text, Position start, int options) {
  const Position length = Content().Length();
  const Position found =
      start > length ? -1
                     : FindText(Content(), text, std::max(start, 0), length, SearchOf(options));
  if (found < 0) return found;
  core_.Select(found, found + static_cast<Position>(text.size()));
  Reveal();
  return found;
}

Position DocumentSurface::ReplaceAll(std::u16string_view text, std::u16string_view replacement,
                                     int options, Position most) {
  if (const auto count = text_.ReplaceAll(text, replacement, SearchOf(options), most))
    return *count;
  const auto added = static_cast<Position>(WithCrLf(replacement).size());
  Position count = 0;
  AsOneStep(*this, [&] {
    for (Position start = 0; Find(text, start, options) != -1 && ++count <= most;) {
      const Position expected = TextLength() - SelLength() + added;
      start = SelStart() + SelLength();
      SelText(replacement);
      start += TextLength() - expected;  // what of the match stayed
    }
  });
  return count;
}

void DocumentSurface::Span(std::u16string_view set, bool forward, bool negate) {
  const CharacterSet characters(set);
  Selection selection = Selected();
  if (forward)
    selection.end = ScanForward(Content(), selection.end, characters, negate);
  else
    selection.start = ScanBackward(Content(), selection.start, characters, negate);
  if (!(selection == Selected())) core_.Select(selection.start, selection.end);
}

void DocumentSurface::UpTo(std::u16string_view set, bool forward, bool negate) {
  const CharacterSet characters(set);
  const Position found = forward ? ScanForward(Content(), Selected().end, characters, !negate)
                                 : ScanBackward(Content(), Selected().start, characters, !negate);
  if (found != (forward ? Content().Length() : 0)) core_.Select(found, found);
}

void DocumentSurface::TextMode(int mode) {
  if (Content().Length() > 0) throw RuntimeError(ErrorNumber::InvalidPropertyValue);
  core_.MultiLevelUndo((mode & kMultilevelUndo) != 0);
}

std::int32_t DocumentSurface::LineFromChar(Position position) const {
  return core_.Lines().LineOf(position);
}

std::int32_t DocumentSurface::LineFromChar(Position position, std::int32_t limit) const {
  return core_.Lines().LineOf(position, limit);
}

Position DocumentSurface::LineIndex(std::int32_t line) const {
  return core_.Lines().LineStart(line);
}

Position DocumentSurface::LineLength(Position position) const {
  const Line line = core_.Lines().LineAt(position);
  return line.end - line.start;
}

void DocumentSurface::UserType(std::u16string_view text) {
  text_.Type(text);
  Reveal();
}

bool DocumentSurface::UserKey(const KeyStroke& key) {
  if (!keys_.Press(key)) return false;
  if (!UserKeys::KeepsView(key)) Reveal();
  return true;
}

// Most keys, and searches, reveal the caret even if it did not move.
void DocumentSurface::Reveal() { core_.Reveal(); }

}  // namespace lumenote
