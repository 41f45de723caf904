// Hosts whose own events use the control while its editor waits or asks.
#include "Host.h"
#include "base/ErrorOf.h"

namespace lumenote {
namespace {

class ReentryTest : public HostTest {
 protected:
  void SetUp() override {
    control = MakeControl();
    sandbox.MakeParents(kOld);
    disk.Write(kOld, "ancienne");
    disk.Write(kNew, "nouvelle");
    control->pNomAppli(u"Flore");
  }

  static constexpr std::u16string_view kOld = u"C:\\n\\ancienne.txt";
  static constexpr std::u16string_view kNew = u"C:\\n\\nouvelle.txt";
};

/// What keeps the old editor on the stack.
struct Act {
  const char* name;
  void (*begin)(Co_Rtf& editor);
};

const Act kActs[] = {
    {"the symbol picker", [](Co_Rtf& editor) { editor.Bar.mnuEdtSymboles.UserClick(); }},
    {"the learning dialog",
     [](Co_Rtf& editor) {
       editor.Document().SelLength(3);
       editor.Pop.mnuPopOcrApprendre.UserClick();
     }},
    {"the font dialog", [](Co_Rtf& editor) { editor.Bar.mnuFmtPolice.UserClick(); }},
    {"a refusal", [](Co_Rtf& editor) { editor.Pop.mnuPopOcrApprendre.UserClick(); }},
    {"the question before a style is stored",
     [](Co_Rtf& editor) {
       editor.Bar.mnuFmtParagraph.UserClick();
       auto& dialog = dynamic_cast<Co_Paragraph&>(*editor.Windows().Active());
       dialog.CboSaveStyleReg.UserPick(1);
     }},
    {"a box from a tick",
     [](Co_Rtf& editor) {
       editor.Timer1.Tick = [&editor] { editor.AskOver({.text = u"tic"}); };
       editor.Timer1.Interval(5);
       dynamic_cast<HostBackend&>(editor.Machine().Windows()).Advance(5);
     }},
};

// The host reads the note back, writes another one and shows it while the old editor is in the
// middle of something.
TEST_F(ReentryTest, TheNextNoteOpensWhileAnActOfTheOldEditorGoesOn) {
  for (const bool wait : {false, true})
    for (const Act& act : kActs) {
      SCOPED_TRACE(act.name);
      SetUp();
      Open(kOld);
      OnEvent([&] {
        EXPECT_EQ(control->pStrOrchm(), kOld);
        control->pStrOrchm(kNew);
        OnEvent([&] { Type(u"bien "); });
        OnEvent([&] { Editor().UserClose(); });
        control->ShowMicroEdit(wait ? 1 : 0);
        if (!wait) Editor().SuspendreDessus();
      });
      act.begin(Editor());
      if (!wait) {
        const Session& session = *control->Parts().session;
        EXPECT_FALSE(session.onTop);
        EXPECT_FALSE(session.closed);
        EXPECT_EQ(session.note, kNew);
        EXPECT_EQ(Shown(), u"nouvelle");
        EXPECT_FALSE(session.dirty);
        backend.RunUntil([&] { return backend.events.empty(); });
      }
      EXPECT_EQ(control->pStrOrchm(), kNew);
      EXPECT_EQ(disk.ReadAll(kNew), "bien nouvelle");
      EXPECT_TRUE(control->Parts().windows.Loaded().empty());
      for (const std::u16string& box : Boxes())
        EXPECT_FALSE(box.starts_with(u"Erreur d'exécution"));
    }
}

TEST_F(ReentryTest, TheControlGoesWhileAnActOfItsEditorGoesOn) {
  for (const Act& act : kActs) {
    SCOPED_TRACE(act.name);
    SetUp();
    auto owned = std::make_shared<HostPlatform>(sandbox, backend, fonts);
    const std::weak_ptr<Platform> machine = owned;
    control = std::make_unique<CoBxRtf>(std::move(owned));
    control->pCouleurFen(u"0");
    Open(kOld);
    Type(u"bien ");
    OnEvent([&] {
      control.reset();
      EXPECT_FALSE(machine.expired());
    });
    act.begin(Editor());
    EXPECT_TRUE(machine.expired());
    EXPECT_EQ(control, nullptr);
    EXPECT_TRUE(!disk.Exists(kOld) || disk.ReadAll(kOld) == "bien ancienne");
  }
}

TEST_F(ReentryTest, AWaitEndsWithItsOwnEditor) {
  std::u16string trace;
  OnEvent([&] {
    OnEvent([&] { Editor().UserClose(); });
    control->ShowMicroEdit(1);  // for the same editor: ends first
    trace += u"lu " + control->pStrOrchm();
    control->pStrOrchm(u"deux");
    OnEvent([&] { Type(u"vingt-"); });
    OnEvent([&] { Editor().UserClose(); });
    control->ShowMicroEdit(1);
    trace += u", lu " + control->pStrOrchm();
    control->pStrOrchm(u"trois");
    control->ShowMicroEdit();
  });
  control->pStrOrchm(u"un");
  control->ShowMicroEdit(1);
  EXPECT_EQ(trace, u"lu un, lu vingt-deux");
  EXPECT_EQ(Shown(), u"trois");
}

TEST_F(ReentryTest, InsideTheClosingQuestionNothingCanBeWaitedFor) {
  Open(u"note");
  Type(u"ma ");
  OnEvent([&] {
    EXPECT_EQ(control->pStrOrchm(), u"note");
    EXPECT_EQ(ErrorOf([&] { control->ShowMicroEdit(1); }), 5);
    control->ShowMicroEdit();
    control->pStrOrchm(u"suivante");
  });
  EXPECT_EQ(control->pStrOrchm(), u"suivante");
}

TEST_F(ReentryTest, ANoteWrittenWhileTheLoadingFailsIsTheNextOne) {
  OnEvent([&] { control->pStrOrchm(kNew); });
  Open(u"C:\\n\\absente.odt");
  EXPECT_EQ(Boxes().size(), 1U);
  EXPECT_EQ(control->pStrOrchm(), kNew);
  control->ShowMicroEdit();
  EXPECT_EQ(Shown(), u"nouvelle");
}

}  // namespace
}  // namespace lumenote
