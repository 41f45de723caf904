#include "backends/win32/assist/EditMessages.h"

#include <algorithm>
#include <cmath>

#include "surface/DocumentSurface.h"

namespace lumenote {

namespace {

LRESULT Copy(const std::u16string& text, WPARAM room, LPARAM to) {
  auto* out = reinterpret_cast<char16_t*>(to);
  if (room == 0) return 0;
  const std::size_t length = std::min<std::size_t>(text.size(), room - 1);
  std::copy_n(text.begin(), length, out);
  out[length] = 0;
  return static_cast<LRESULT>(length);
}

LRESULT TellSelection(Selection selected, const Message& message) {
  if (message.w) *reinterpret_cast<DWORD*>(message.w) = static_cast<DWORD>(selected.start);
  if (message.l) *reinterpret_cast<DWORD*>(message.l) = static_cast<DWORD>(selected.end);
  constexpr Position kMost = 0xFFFF;
  return selected.end > kMost ? -1 : MAKELRESULT(selected.start, selected.end);
}

// From 0 to -1 is everything; a start of -1 leaves only the caret.
void Select(NoteView& view, const Message& message) {
  const Position length = view.Surface().Content().Length();
  const auto end = static_cast<Position>(message.l);
  const auto start = static_cast<Position>(message.w);
  if (start < 0) return view.Select(view.Surface().Caret(), view.Surface().Caret());
  view.Select(std::min(start, length), end < 0 ? length : std::min(end, length));
}

class Lines {
 public:
  explicit Lines(NoteView& view) : surface_(view.Surface()) {}

  LRESULT Count() const { return Of(surface_.Content().Length()) + 1; }
  LRESULT Of(LPARAM position) const {
    return surface_.Lines().LineOf(position < 0 ? surface_.Selected().start
                                                : static_cast<Position>(position));
  }
  LRESULT Start(LPARAM line) const {
    return surface_.Lines().LineStart(static_cast<std::int32_t>(line < 0 ? Of(-1) : line));
  }
  LRESULT LengthAt(LPARAM position) const {
    const Line line = surface_.Lines().LineAt(static_cast<Position>(position));
    return line.end - line.start;
  }

 private:
  DocumentSurface& surface_;
};

LRESULT PointOf(NoteView& view, LPARAM position) {
  const auto box = AccessibleText(view).BoxOf(static_cast<Position>(position));
  return box ? MAKELRESULT(static_cast<int>(box->left), static_cast<int>(box->top)) : -1;
}

LRESULT PositionAt(NoteView& view, LPARAM at) {
  return view.Pane().PositionAt(
      {1.0 * static_cast<short>(LOWORD(at)), 1.0 * static_cast<short>(HIWORD(at))});
}

/// The buffer's first unit says how many it holds; no zero ends the copy.
LRESULT CopyLine(NoteView& view, const Message& message) {
  const Position start = static_cast<Position>(Lines(view).Start(static_cast<LPARAM>(message.w)));
  if (start < 0) return 0;
  auto* out = reinterpret_cast<char16_t*>(message.l);
  const Line line = view.Surface().Lines().LineAt(start);
  const Position room = static_cast<WORD>(out[0]);
  const std::u16string text =
      view.Surface().Content().Text(start, std::min(line.end, start + room));
  std::ranges::copy(text, out);
  return static_cast<LRESULT>(text.size());
}

struct Command {
  UINT id;
  bool edits;
  void (DocumentSurface::*run)();
};
constexpr Command kCommands[] = {
    {WM_CUT, true, &DocumentSurface::Cut},     {WM_COPY, false, &DocumentSurface::Copy},
    {WM_PASTE, true, &DocumentSurface::Paste}, {WM_CLEAR, true, &DocumentSurface::Clear},
    {WM_UNDO, true, &DocumentSurface::Undo},   {EM_UNDO, true, &DocumentSurface::Undo}};

std::optional<LRESULT> Run(NoteView& view, const Message& message) {
  const auto* command = std::ranges::find(kCommands, message.id, &Command::id);
  if (command == std::end(kCommands)) return std::nullopt;
  if (command->edits && view.IsLocked()) return FALSE;
  view.Act([&] { (view.Surface().*command->run)(); });
  return TRUE;
}

std::optional<LRESULT> Change(NoteView& view, const Message& message) {
  AccessibleText text(view);
  switch (message.id) {
    case EM_SETSEL:
      Select(view, message);
      return 0;
    case EM_REPLACESEL: {
      const auto* given = reinterpret_cast<const char16_t*>(message.l);
      text.Replace(text.Selected(), given ? given : u"");
      return 0;
    }
    case EM_SCROLLCARET:
      text.Reveal({text.Caret(), text.Caret()});
      return TRUE;
  }
  return Run(view, message);
}

}  // namespace

std::optional<LRESULT> AnswerEdit(NoteView& view, const Message& message) {
  const Document& document = view.Surface().Content();
  switch (message.id) {
    case WM_GETTEXT:
      return Copy(document.Text(0, static_cast<Position>(std::min<WPARAM>(
                                       message.w, static_cast<WPARAM>(document.Length())))),
                  message.w, message.l);
    case WM_GETTEXTLENGTH:
      return document.Length();
    case EM_GETSEL:
      return TellSelection(view.Surface().Selected(), message);
    case EM_CANUNDO:
      return view.Surface().CanUndo();
    case EM_GETLINECOUNT:
      return Lines(view).Count();
    case EM_LINEFROMCHAR:
      return Lines(view).Of(static_cast<LPARAM>(message.w));
    case EM_LINEINDEX:
      return Lines(view).Start(static_cast<LPARAM>(message.w));
    case EM_GETLINE:
      return CopyLine(view, message);
    case EM_GETFIRSTVISIBLELINE:
      return Lines(view).Of(AccessibleText(view).Visible().start);
    case EM_LINELENGTH:
      return Lines(view).LengthAt(static_cast<LPARAM>(message.w));
    case EM_POSFROMCHAR:
      return PointOf(view, static_cast<LPARAM>(message.w));
    case EM_CHARFROMPOS:
      return PositionAt(view, message.l);
  }
  return Change(view, message);
}

}  // namespace lumenote
