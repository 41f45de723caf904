// Text dragged by the mouse of the system: within the note, out of it and into it.
#include "win32/Elsewhere.h"
#include "win32/Input.h"
#include "win32/SurfaceBench.h"

namespace lumenote {
namespace {

class DragTest : public SurfaceWindowTest {
 protected:
  DragTest() { SetDoubleClickTime(1); }  // each press counts by itself
  ~DragTest() override { SetDoubleClickTime(usual_); }

  /// Presses at a point of the screen, moves on to another and does the rest there, while the
  /// window's own loop or that of a drag runs.
  void Drag(
      POINTL from, POINTL to, const std::function<void()>& rest = [] {}) {
    const std::vector<std::function<void()>> acts = {[&] { MoveMouse(from); },
                                                     [] { UseMouse(MOUSEEVENTF_LEFTDOWN); },
                                                     [&] {
                                                       MoveMouse({from.x + 20, from.y});
                                                     },
                                                     [&] {
                                                       MoveMouse({to.x + 1, to.y});
                                                     },
                                                     [&] { MoveMouse(to); },
                                                     rest,
                                                     [] { UseMouse(MOUSEEVENTF_LEFTUP); }};
    std::size_t done = 0;
    const Meanwhile hand([&] {
      if (done < acts.size()) acts[done]();
      return ++done > acts.size() + 1 && !other.dragging;
    });
    MSG message;
    while ((done <= acts.size() + 1 || other.dragging) && GetMessageW(&message, nullptr, 0, 0) > 0)
      DispatchMessageW(&message);
    Pump();
  }

  static constexpr POINTL kElsewhere = {550, 50};
  Elsewhere other{{500, 0, 600, 100},
                  (surface.Text(u"ailleurs"), surface.UserSelect(0, 8), TextExcerpt(surface))};

 private:
  const UINT usual_ = GetDoubleClickTime();
};

TEST_F(DragTest, WithinTheNoteNothingIsLost) {
  struct Row {
    const char* what;
    Position to;
    WORD key;
    const char* after;
    std::function<void()> meanwhile = [] {};
  };
  const Row rows[] = {
      {"moved to the start", 0, 0, "^deux|un  trois"},
      {"moved to the end", 13, 0, "un  trois^deux|"},
      {"copied", 0, VK_CONTROL, "^deux|un deux trois"},
      {"abandoned", 0, VK_ESCAPE, "un ^deux| trois"},
      {"dropped on itself", 6, 0, "un ^deux| trois"},
      {"another selection", 0, 0, "^deux|un  trois", [&] { surface.UserSelect(8, 13); }},
      {"edited meanwhile", 0, 0, "^deux|un deux trois et",
       [&] {
         surface.UserSelect(13, 13);
         surface.UserType(u" et");
       }},
      {"locked meanwhile", 0, 0, "un ^deux| trois", [&] { locked = true; }}};
  for (const Row& row : rows) {
    Put(u"un ^deux| trois");
    Drag(OnScreen(5), OnScreen(row.to), [&] {
      if (row.key) Hold(row.key, true);
      row.meanwhile();
    });
    if (row.key) Hold(row.key, false);
    Pump();
    EXPECT_EQ(Shown(), row.after) << row.what;
    locked = false;
    if (surface.Text() == u"un deux trois") continue;
    EXPECT_EQ(surface.UndoType(), UndoKind::DragDrop) << row.what;
    surface.Undo();
    EXPECT_EQ(surface.Text().substr(0, 13), u"un deux trois") << row.what;
  }
}

TEST_F(DragTest, OutOfTheNoteOnlyWhatWasMovedGoes) {
  struct Row {
    const char* what;
    Elsewhere::Manners manners;
    const char16_t* after;
    std::function<void()> meanwhile = [] {};
  };
  const Row rows[] = {
      {"copied", {DROPEFFECT_COPY}, u"un deux trois"},
      {"moved", {DROPEFFECT_MOVE}, u"un  trois"},
      {"refused", {DROPEFFECT_NONE}, u"un deux trois"},
      {"failed", {DROPEFFECT_MOVE, E_FAIL}, u"un deux trois"},
      {"moved, another selection",
       {DROPEFFECT_MOVE},
       u"un  trois",
       [&] { surface.UserSelect(8, 13); }},
      {"moved, but edited meanwhile",
       {DROPEFFECT_MOVE},
       u"Xun deux trois",
       [&] {
         surface.UserSelect(0, 0);
         surface.UserType(u"X");
       }},
      {"moved, but locked meanwhile", {DROPEFFECT_MOVE}, u"un deux trois", [&] { locked = true; }}};
  for (const Row& row : rows) {
    Put(u"un ^deux| trois");
    other.manners = row.manners;
    other.taken.clear();
    Drag(OnScreen(5), kElsewhere, row.meanwhile);
    EXPECT_EQ(surface.Text(), row.after) << row.what;
    EXPECT_EQ(other.taken, row.manners.effect == DROPEFFECT_NONE ? u"" : u"deux") << row.what;
    locked = false;
    surface.Undo();
    EXPECT_EQ(surface.Text(), u"un deux trois") << row.what;
  }
  locked = true;
  Put(u"un ^deux| trois");
  other.manners = Elsewhere::Manners{DROPEFFECT_MOVE};
  Drag(OnScreen(5), kElsewhere);
  EXPECT_EQ(surface.Text(), u"un deux trois") << "only a copy was offered";
}

TEST_F(DragTest, IntoTheNoteACopyComes) {
  Put(u"un |deux");
  Drag(kElsewhere, OnScreen(3));
  EXPECT_EQ(Shown(), "un ^ailleurs|deux");
  EXPECT_EQ(other.done, DWORD{DROPEFFECT_COPY});
  EXPECT_EQ(surface.UndoType(), UndoKind::DragDrop);
  surface.Undo();
  EXPECT_EQ(surface.Text(), u"un deux");
  locked = true;
  Drag(kElsewhere, OnScreen(3));
  EXPECT_EQ(surface.Text(), u"un deux");
  EXPECT_EQ(other.done, DWORD{DROPEFFECT_NONE});
}

}  // namespace
}  // namespace lumenote
