// The life of windows: which one is active next, who outlives whom, what an unload ends.
#include <gtest/gtest.h>

#include "backends/headless/HeadlessBackend.h"
#include "base/ErrorOf.h"
#include "forms/Button.h"
#include "forms/Instance.h"
#include "forms/Timer.h"
#include "pilot/machine/PilotPlatform.h"
#include "pilot/machine/ReportedFonts.h"
#include "pilot/sandbox/FolderSandbox.h"

namespace lumenote {
namespace {

/// Counts what the peers of windows without boxes are told.
class CountingBackend final : public HeadlessBackend {
 public:
  std::unique_ptr<FormPeer> Realise(Form& form) override {
    auto peer = std::make_unique<Peer>(form, noBoxes_);
    peer->updates = &updates;
    return peer;
  }

  int updates = 0;

 private:
  struct Peer final : HeadlessPeer {
    using HeadlessPeer::HeadlessPeer;
    void Update(Element&, Property) override { ++*updates; }
    int* updates = nullptr;
  };
  HeadlessBoxes noBoxes_;
};

class Window : public Form {
 public:
  Window(WindowList& windows, std::string name)
      : Form(windows, std::move(name), {100, 200, 3000, 4000}, u"") {
    close.Click = [this] { Unload(); };
    escape.Click = [this] { ++escapes; };
    DefaultButton(&close);
    AddShortcut(u"Home", [] {});
  }
  ~Window() override { Gone(); }

  Button close{*this, "close", {0, 0, 600, 300}, u"Fermer"};
  Button escape{*this, "escape", {0, 300, 600, 300}, u"Annuler"};
  Timer timer{*this, "timer"};
  int activations = 0, resizes = 0, escapes = 0;
  std::function<void()> Gone = [] {};

 private:
  void Form_Activate() override { ++activations; }
  void Form_Resize() override { ++resizes; }
};

class WindowsTest : public testing::Test {
 protected:
  FolderSandbox sandbox;
  CountingBackend backend;
  ReportedFonts fonts;
  PilotPlatform platform{sandbox, backend, fonts};
  WindowList windows{platform};
  Window first{windows, "first"}, second{windows, "second"}, third{windows, "third"};
};

TEST_F(WindowsTest, AfterAnUnloadItsOwnerIsActiveElseTheLatestShown) {
  first.Show();
  second.Show();
  third.Show(&first);
  third.Unload();
  EXPECT_EQ(windows.Active(), &first);
  third.Show();
  third.Unload();
  EXPECT_EQ(windows.Active(), &second);
  third.Load();
  second.Unload();
  EXPECT_EQ(windows.Active(), &first);
  EXPECT_EQ(first.activations, 3);
  second.Show();
  first.Unload();
  EXPECT_EQ(windows.Active(), &second);
  EXPECT_EQ(second.activations, 3);
  third.Show(&second);
  second.Unload();
  third.Unload();
  EXPECT_EQ(windows.Active(), nullptr);
  EXPECT_TRUE(windows.Loaded().empty());
}

TEST_F(WindowsTest, ReturnAndEscapeClickTheirButtonsWhileThoseCanBeClicked) {
  const KeyStroke enter{.name = KeyName::Return}, escape{.name = KeyName::Escape};
  const auto keys = [&] { return std::pair(first.UserKey(enter), first.UserKey(escape)); };
  first.Show();
  EXPECT_TRUE(first.UserKey({.name = KeyName::Home}));
  first.close.Visible(false);
  EXPECT_EQ(keys(), std::pair(false, false));
  first.CancelButton(&first.escape);
  EXPECT_EQ(keys(), std::pair(false, true));
  EXPECT_FALSE(first.UserKey({.name = KeyName::Escape, .control = true}));
  first.escape.Enabled(false);
  first.close.Visible(true);
  EXPECT_EQ(keys(), std::pair(true, false));
  EXPECT_EQ(first.escapes, 1);
  EXPECT_FALSE(first.IsLoaded());
  second.Show();
  second.EscapeCloses(true);
  EXPECT_TRUE(second.UserKey(escape));
  EXPECT_FALSE(second.IsLoaded());
}

TEST_F(WindowsTest, APeerHearsOfWhatChangesAlone) {
  const std::function<void()> assignments[] = {
      [&] { first.Caption(u"x"); },        [&] { first.BackColor(5); },
      [&] { first.OnTop(true); },          [&] { first.Left(7); },
      [&] { first.close.Caption(u"x"); },  [&] { first.close.Enabled(false); },
      [&] { first.close.Visible(false); }, [&] { first.close.Top(7); },
  };
  first.Load();
  for (const auto& assign : assignments)
    for (const int told : {1, 0}) {
      assign();
      EXPECT_EQ(std::exchange(backend.updates, 0), told) << &assign - assignments;
    }
}

TEST_F(WindowsTest, SizesResizeOnceAndNegativeOnesAreRefused) {
  first.Width(3000);
  first.Left(5);
  EXPECT_EQ(first.resizes, 0);
  first.Height(4001);
  first.Width(0);
  EXPECT_EQ(first.resizes, 2);
  EXPECT_EQ(ErrorOf([&] { first.Width(-1); }), 380);
  EXPECT_EQ(ErrorOf([&] { first.Height(-1); }), 380);
  EXPECT_EQ(first.Bounds(), (Rect{5, 200, 0, 4001}));
}

TEST_F(WindowsTest, ATimerTicksWhileItsWindowIsLoadedOnly) {
  auto window = std::make_unique<Window>(windows, "window");
  Timer& timer = window->timer;
  int ticks = 0;
  timer.Interval(10);
  timer.Enabled(true);
  timer.Tick = [&] { ++ticks; };
  const struct {
    std::function<void()> act;
    int milliseconds, ticks;
  } rows[] = {
      {[] {}, 10, 0},
      {[&] { window->Load(); }, 9, 0},
      {[] {}, 1, 1},
      {[&] { timer.Interval(5); }, 10, 3},
      {[&] { timer.Enabled(false); }, 10, 3},
      {[&] { timer.Enabled(true); }, 4, 3},
      {[&] { timer.Interval(5); }, 1, 4},  // as it was, so it counts on
      {[&] { window->Unload(); }, 10, 4},
      {[&] { window->Load(); }, 5, 5},
      {[&] { window.reset(); }, 10, 5},
  };
  for (const auto& row : rows) {
    row.act();
    backend.Advance(row.milliseconds);
    EXPECT_EQ(ticks, row.ticks) << &row - rows;
  }
}

TEST_F(WindowsTest, AWindowInUseOutlivesItsUnloadBesideTheNextOne) {
  std::string gone;
  int made = 0;
  const auto make = [&] {
    auto window = std::make_unique<Window>(windows, std::to_string(++made));
    window->Gone = [&gone, name = window->Name()] { gone += name; };
    return window;
  };
  Instance<Window> outer(make);
  Instance<Window> inner(make, &outer.Get());
  Window& dialog = inner.Get();
  outer.Get().Load();
  dialog.Load();
  dialog.Raise([&] {
    dialog.Unload();
    outer.Get().Unload();
    EXPECT_EQ(outer.Loaded(), nullptr);
    EXPECT_NE(&inner.Get(), &dialog);
    EXPECT_NE(outer.Get().Name(), "1");
    EXPECT_EQ(gone, "");
  });
  EXPECT_EQ(gone, "21");
  EXPECT_EQ(made, 4);
}

}  // namespace
}  // namespace lumenote
