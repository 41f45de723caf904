// Scripts on windows made for the purpose: what stays open, closes early, or differs.
#include <gtest/gtest.h>
#include <sstream>

#include "backends/headless/HeadlessActs.h"
#include "backends/headless/HeadlessBackend.h"
#include "forms/Timer.h"
#include "forms/controls/edits/RichTextBox.h"
#include "forms/controls/labels/Label.h"
#include "pilot/ScriptRunner.h"
#include "pilot/machine/PilotPlatform.h"
#include "pilot/sandbox/FolderSandbox.h"

namespace lumenote {
namespace {

/// A window under a name that scripts know.
class TestWindow : public Form {
 public:
  TestWindow(WindowList& windows, std::string name)
      : Form(windows, std::move(name), {0, 0, 3000, 3000}, u"Essai") {
    lbl.MouseUp = [this](const MouseEvent&) { Clicked(); };
    box.Change = [this] { Changed(); };
  }

  Label lbl{*this, "lbl", {0, 0, 600, 300}};
  RichTextBox box{*this, "box", {0, 300, 2000, 1000}};
  Timer slow{*this, "slow"};
  Timer fast{*this, "fast"};
  std::function<void()> Clicked = [] {};
  std::function<void()> Changed = [] {};
};

/// Headless; while it is skewed, new windows, which have no boxes, claim a difference.
class SkewedBackend : public HeadlessBackend {
 public:
  std::unique_ptr<FormPeer> Realise(Form& form) override {
    if (!skewed) return HeadlessBackend::Realise(form);
    return std::make_unique<Peer>(form, noBoxes_);
  }
  void RunUntil(const std::function<bool()>&) override {}

  bool skewed = false;

 private:
  struct Peer : HeadlessPeer {
    using HeadlessPeer::HeadlessPeer;
    std::vector<std::string> Differences() const override { return {"caption"}; }
  };
  HeadlessBoxes noBoxes_;
};

class PilotTest : public testing::Test {
 protected:
  /// What the script prints, one line each.
  std::string Run(const std::string& script) {
    std::istringstream lines(script);
    ScriptRunner(lines, context, [this] { log += "end;"; }).Run();
    return out.str();
  }

  std::string log;
  std::ostringstream out;
  std::ostringstream err;
  FolderSandbox sandbox;
  ReportedFonts fonts;
  SkewedBackend inner;
  HeadlessActs acts{inner};
  PilotBackend backend{inner};
  Transcript transcript{out, err};
  PilotPlatform machine{sandbox, backend, fonts};
  CoBxRtf control{machine};
  ScriptContext context{control, sandbox, backend, acts, transcript, fonts};
  TestWindow first{context.Windows(), "Co_Trouver"};
};

TEST_F(PilotTest, AWindowThatCannotBeClosedDoesNotHoldTheEndUp) {
  first.Show();
  first.Clicked = [&] { backend.RunUntil([] { return false; }); };
  Run("click Co_Trouver.lbl\n");
  EXPECT_FALSE(first.IsLoaded());
}

TEST_F(PilotTest, TimersTickInTheOrderOfTimeAlsoInsideATick) {
  first.slow.Tick = [&] {
    log += "s";
    if (first.slow.Interval() == 20) {
      first.slow.Interval(1000);
      backend.Tick(30);
    }
  };
  first.fast.Tick = [&] { log += "f"; };
  first.slow.Interval(20);
  first.fast.Interval(15);
  first.slow.Enabled(true);
  first.fast.Enabled(true);
  first.Load();
  Run("tick 40\n");
  EXPECT_TRUE(log.starts_with("fsffend;")) << log;
}

TEST_F(PilotTest, TypingStopsWhenItClosesTheWindow) {
  first.Show();
  int keys = 0;
  first.Changed = [&] {
    if (++keys == 2) first.Unload();
  };
  EXPECT_EQ(Run("type Co_Trouver.box abcd\nget Co_Trouver.box.Text\n"),
            "{\"error\":\"pilot\",\"description\":\"not loaded\"}\n");
  EXPECT_EQ(keys, 2);
}

TEST_F(PilotTest, LinesWrapAtTheBoxOrAtItsRightMargin) {
  first.box.Surface().Text(std::u16string(90, u'x'));
  first.Load();
  std::vector<std::int32_t> last;
  for (const auto& [width, margin] :
       {std::pair{3000, 0}, {1500, 0}, {1500, 3000}, {500, 3000}, {500, 0}}) {
    first.box.Width(static_cast<float>(width));
    first.box.Surface().RightMargin(static_cast<float>(margin));
    last.push_back(first.box.Surface().LineFromChar(90));
  }
  const std::int32_t n = last.front();
  EXPECT_EQ(last, (std::vector{n, 2 * n + 1, n, n, 6 * n + 5}));
}

TEST_F(PilotTest, DifferencesOfAWindowFailTheScript) {
  first.Show();
  Run("get Co_Trouver.Left\n");
  EXPECT_EQ(transcript.Close(), 0);
  inner.skewed = true;
  Form skewed(context.Windows(), "Co_Symbols", {0, 0, 3000, 3000}, u"");
  skewed.Show();
  Run("get Co_Trouver.Left\n");
  EXPECT_EQ(transcript.Close(), 1);
  EXPECT_EQ(err.str(), "line 1: get Co_Trouver.Left\n  Co_Symbols: caption\n");
}

}  // namespace
}  // namespace lumenote
