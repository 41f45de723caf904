// Any allocation of an act in the editor may fail: the note is as before the act or as behind it,
// the failure is told and never reaches the host's event loop, and what was typed is not lost.
#include "base/Strings.h"
#include "hosts/Host.h"
#include "surface/FailingNew.h"

namespace lumenote {
namespace {

/// A host with an edited note in a file.
class Desk : public HostTest {
 public:
  struct Act {
    const char* name;
    std::function<void(Desk&)> run;
    std::function<void(Desk&)> prepare = [](Desk&) {};
    friend std::ostream& operator<<(std::ostream& out, const Act& act) { return out << act.name; }
  };
  static const Act kActs[];

  explicit Desk(const Act& act) {
    OpenFile(u"C:\\n\\a.rtf", "{\\rtf1 un \\b deux\\b0  trois\\par quatre}");
    Type(u"SAISI ");
    Editor().Document().SelStart(8);
    Editor().Document().SelLength(6);
    act.prepare(*this);
    Boxes();
  }

  ~Desk() override { backend.events.clear(); }  // they use this object

  /// What the user and the host have of the note.
  std::u16string State() {
    return control && IsOpen() ? Values().documentPath + Editor().Document().TextRTF() : u"closed";
  }
  /// Runs the act with one allocation failing; whether there are so many.
  bool FailsAt(long number, const Act& act) {
    const FailingNew failing(number);
    try {
      act.run(*this);
    } catch (const RuntimeError&) {
      raised_ = true;
    }
    return failing.HasFailed();
  }
  CoBxRtf& Control() {
    if (!control) control = MakeControl();
    return *control;
  }
  bool IsTold() {
    return raised_ || !Boxes().empty() ||
           (control && IsOpen() && !Editor().Bar_Etat.Panel(2).empty());
  }
  /// Closes what is open; whether what was typed is the host's or on the disk.
  bool KeepsTyped() {
    const std::u16string note = Control().pStrOrchm();
    return (note.find(u"SAISI") != note.npos || OnDisk("SAISI")) && !IsOpen();
  }
  bool OpensAgain() {
    Open(u"autre");
    return IsOpen() && Shown() == u"autre";
  }

 private:
  void TestBody() override {}
  /// What fails in a wait is done again, as a user would.
  void OnEvents(const std::function<void()>& event) {
    for (int times = 0; times < 3; ++times) OnEvent(event);
  }
  /// Null when it is not open.
  template <class Window>
  Window* Dialog() {
    for (Form* form : control->Parts().windows.Loaded())
      if (auto* window = dynamic_cast<Window*>(form)) return window;
    return nullptr;
  }

  bool raised_ = false;
};

const Desk::Act Desk::kActs[] = {
    {"cut", [](Desk& d) { d.Choose(&ContextMenu::mnuPopCut); }},
    {"undo", [](Desk& d) { d.Choose(&ContextMenu::mnuPopUndo); },
     [](Desk& d) { d.Choose(&ContextMenu::mnuPopCut); }},
    {"save", [](Desk& d) { d.Choose(&ContextMenu::mnuPopEnregistrer); }},
    {"to text", [](Desk& d) { d.Choose(&ContextMenu::mnuPopRichTextText); }},
    {"clean up", [](Desk& d) { d.Choose(&ContextMenu::mnuPopOcrNettoyer); }},
    {"quit", [](Desk& d) { d.Choose(&ContextMenu::mnuPopQuitter); }},
    {"close box", [](Desk& d) { d.Editor().UserClose(); }},
    {"note", [](Desk& d) { d.control->pStrOrchm(); }},
    {"control goes", [](Desk& d) { d.control.reset(); }},
    {"context menu",
     [](Desk& d) {
       d.Editor().Bx_RTF.UserMouseUp({MouseButton::Right, {9, 9}});
     }},
    {"plain", [](Desk& d) { d.Editor().Bar.mnuNorm.UserClick(); }},
    {"bullet", [](Desk& d) { d.Editor().Bar.mnubulles.UserClick(); },
     [](Desk& d) { d.Editor().Bar.mnubulles.UserClick(); }},
    {"capitals", [](Desk& d) { d.Editor().Bar.mnuEdtUpperCase.UserClick(); }},
    {"titles", [](Desk& d) { d.Editor().Bar.mnuEdtTitre.UserClick(); }},
    {"style", [](Desk& d) { d.Editor().Bar.mnuFmtStyStandard.UserClick(); }},
    {"paragraph", [](Desk& d) { d.Editor().Bar.mnuFmtParagraph.UserClick(); }},
    {"find", [](Desk& d) { d.Editor().Bar.mnuEdtTrouver.UserClick(); }},
    {"spin", [](Desk& d) { d.Dialog<Co_Paragraph>()->UD_LeftIndent.UserSpin(true); },
     [](Desk& d) { d.Editor().Bar.mnuFmtParagraph.UserClick(); }},
    {"save style", [](Desk& d) { d.Dialog<Co_Paragraph>()->CboSaveStyleReg.UserPick(2); },
     [](Desk& d) { d.Editor().Bar.mnuFmtParagraph.UserClick(); }},
    {"replace all", [](Desk& d) { d.Dialog<Co_Trouver>()->cmdReplaceAll.UserClick(); },
     [](Desk& d) {
       d.Editor().Bar.mnuEdtTrouver.UserClick();
       auto* dialog = d.Dialog<Co_Trouver>();
       dialog->cmdReplace.UserClick();
       dialog->cboFind.Text(u"e");
       dialog->cboReplace.Text(u"est");
     }},
    {"symbol", [](Desk& d) { d.Editor().Bar.mnuEdtSymboles.UserClick(); },
     [](Desk& d) {
       d.OnEvent([&d] {
         auto* dialog = d.Dialog<Co_Symbols>();
         if (!dialog) return;
         dialog->lblsymbols(3).UserClick();
         dialog->cmdInsert.UserClick();
       });
       d.OnEvents([&d] {
         if (auto* dialog = d.Dialog<Co_Symbols>()) dialog->UserClose();
       });
     }},
    {"learn", [](Desk& d) { d.Choose(&ContextMenu::mnuPopOcrApprendre); },
     [](Desk& d) {
       d.OnEvents([&d] {
         if (auto* dialog = d.Dialog<Co_Apprendre>()) dialog->UserClose();
       });
     }},
    {"wait", [](Desk& d) { d.control->ShowMicroEdit(1); },
     [](Desk& d) {
       d.OnEvents([&d] {
         if (d.IsOpen()) d.Choose(&ContextMenu::mnuPopQuitter);
       });
     }},
    {"open", [](Desk& d) { d.control->ShowMicroEdit(); }, [](Desk& d) { d.control->pStrOrchm(); }},
    {"close a string", [](Desk& d) { d.control->pStrOrchm(); },
     [](Desk& d) {
       d.control->pStrOrchm();
       d.Open(u"avant");
       d.Type(u"SAISI ");
     }},
};

class FailedActs : public testing::TestWithParam<Desk::Act> {};

TEST_P(FailedActs, AreUndoneOrDoneAndTold) {
  const Desk::Act& act = GetParam();
  Desk whole(act);
  const std::u16string before = whole.State();
  act.run(whole);
  const std::u16string behind = whole.State();
  bool failed = true;
  for (long number = 1; failed && !HasFailure(); number += 1 + number / 4) {
    Desk desk(act);
    failed = desk.FailsAt(number, act);
    const std::u16string state = desk.State();
    EXPECT_TRUE(state == before || state == behind) << number << ToUtf8(state);
    EXPECT_TRUE(state == behind || desk.IsTold()) << number;
    EXPECT_TRUE(desk.KeepsTyped()) << number;
    EXPECT_TRUE(desk.OpensAgain()) << number;
  }
}
INSTANTIATE_TEST_SUITE_P(Acts, FailedActs, testing::ValuesIn(Desk::kActs));

}  // namespace
}  // namespace lumenote
