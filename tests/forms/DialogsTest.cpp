// The controls of the dialogs, but for the grid of symbols, lie inside their frames and beside each
// other.
#include "base/Strings.h"
#include "hosts/Host.h"

namespace lumenote {
namespace {

class DialogsTest : public HostTest {
 protected:
  void Check(const Container& container, float width, float height) {
    std::vector<Control*> controls = container.Controls();
    std::erase_if(controls, [](const Control* control) { return !control->Visible(); });
    for (std::size_t i = 0; i < controls.size(); ++i) {
      const Control& one = *controls[i];
      EXPECT_TRUE(one.Left() >= 0 && one.Top() >= 0 && one.Left() + one.Width() <= width &&
                  one.Top() + one.Height() <= height)
          << one.Name();
      for (std::size_t j = 0; j < i; ++j)
        EXPECT_FALSE(Overlap(one, *controls[j])) << one.Name() << " " << controls[j]->Name();
      if (const auto* inner = dynamic_cast<const Container*>(&one))
        Check(*inner, one.Width(), one.Height());
    }
  }
  static bool Overlap(const Control& one, const Control& other) {
    return one.Left() < other.Left() + other.Width() && other.Left() < one.Left() + one.Width() &&
           one.Top() < other.Top() + other.Height() && other.Top() < one.Top() + one.Height();
  }
};

TEST_F(DialogsTest, HaveRoomForTheirControls) {
  constexpr float kSides = 8 * 15, kCaption = 27 * 15;  // twips
  int seen = 0;
  const auto check = [&] {
    Form& dialog = *control->Parts().windows.Active();
    Check(dialog, dialog.Width() - kSides, dialog.Height() - kCaption);
    ++seen;
    dialog.Unload();
  };
  Open(u"un mot");
  Editor().Bar.mnuFmtParagraph.UserClick();
  check();
  Editor().Bar.mnuEdtTrouver.UserClick();
  check();
  OnEvent(check);
  Editor().Document().SelLength(2);
  Choose(&ContextMenu::mnuPopOcrApprendre);
  EXPECT_EQ(seen, 3);
}

}  // namespace
}  // namespace lumenote
