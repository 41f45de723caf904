// Windows on real widgets: they show what the forms hold, and what the user does comes in.
#include <QAccessible>
#include <QApplication>
#include <QMenu>
#include <QTimer>
#include <QWindow>
#include <gtest/gtest.h>

#include "Desk.h"
#include "backends/qt/QtUserActs.h"
#include "backends/qt/toolkit/Pixels.h"
#include "backends/qt/view/RichTextView.h"
#include "backends/qt/windows/FormWindow.h"
#include "backends/qt/windows/Shot.h"

namespace lumenote {
namespace {

struct WindowTest : testing::Test {
  WindowTest() { form->Show(); }

  std::vector<std::string> Differences() { return form->Peer()->Differences(); }
  FormWindow& Native() { return *platform.windows.Widgets().Find<FormWindow>(*form); }

  const std::vector<std::string> none;
  TestPlatform platform;
  WindowList windows{platform};
  QtUserActs acts{platform.windows};
  std::unique_ptr<TestForm> form = std::make_unique<TestForm>(windows);
};

TEST_F(WindowTest, NoticesADifference) {
  Native().setWindowTitle(QStringLiteral("?"));
  EXPECT_EQ(Differences(), std::vector<std::string>{"TestForm.Caption"});
}

TEST_F(WindowTest, KeepsTwipsThatAreNoWholePixels) {
  const Rect place = form->Bounds();
  form->Width(5651);
  QApplication::sendPostedEvents();
  EXPECT_EQ(form->Width(), 5651);
  EXPECT_EQ(form->Left(), place.left);
  const int resizes = form->resizes;
  Native().resize(Native().width() + 20, Native().height());
  EXPECT_EQ(form->Width(), 5951);
  EXPECT_EQ(form->resizes, resizes + 1);
  acts.Resize(*form, 7000, 5001);
  EXPECT_EQ(form->Width(), 7000);
  EXPECT_EQ(form->Height(), 5001);
  EXPECT_EQ(Differences(), none);
}

TEST_F(WindowTest, ClickAndShiftClickSelect) {
  form->box.Surface().Text(u"abc def");
  auto& view = *platform.windows.Widgets().Find<RichTextView>(form->box);
  const auto click = [&](Position at, Qt::KeyboardModifiers modifiers, QEvent::Type type) {
    const QPointF point = ToQRect(*view.Pane().CaretAt(at)).center();
    QMouseEvent press(type, point, view.viewport()->mapToGlobal(point), Qt::LeftButton,
                      Qt::LeftButton, modifiers);
    QApplication::sendEvent(view.viewport(), &press);
    QMouseEvent release(QEvent::MouseButtonRelease, point, view.viewport()->mapToGlobal(point),
                        Qt::LeftButton, Qt::NoButton, modifiers);
    QApplication::sendEvent(view.viewport(), &release);
  };
  click(1, {}, QEvent::MouseButtonPress);
  click(6, Qt::ShiftModifier, QEvent::MouseButtonPress);
  EXPECT_EQ(form->box.Surface().SelText(), u"bc de");
  click(2, {}, QEvent::MouseButtonDblClick);
  EXPECT_EQ(form->box.Surface().SelText().substr(0, 3), u"abc");
}

TEST_F(WindowTest, ComposedTextIsShownAndThenTyped) {
  auto& view = *platform.windows.Widgets().Find<RichTextView>(form->box);
  form->box.Surface().Text(u"ab");
  form->box.Surface().SelStart(1);
  QInputMethodEvent composing(QStringLiteral("^"), {});
  QApplication::sendEvent(&view, &composing);
  const auto& piece = static_cast<const QtPiece&>(view.Pane().Cache().At(0));
  EXPECT_EQ(piece.layout.text(), QStringLiteral("a^b"));
  QInputMethodEvent done;
  done.setCommitString(QStringLiteral("ê"));
  QApplication::sendEvent(&view, &done);
  EXPECT_EQ(form->box.Surface().Text(), u"aêb");
  EXPECT_EQ(Differences(), none);
}

// --- menus

TEST_F(WindowTest, TheToolkitsOwnTogglingOfAMarkDoesNotShow) {
  form->cut.Checked(true);
  acts.Choose(form->cut);
  EXPECT_EQ(Differences(), none);
}

TEST_F(WindowTest, APopupOpensOnceAndEndsWithTheWindow) {
  int opened = 0;
  form->popup.Click = [&] { ++opened; };
  form->box.MouseUp = [&](const MouseEvent& event) {
    form->PopUp(form->popup, form->box, event.at);
  };
  form->Released = [&] { form.reset(); };
  QTimer::singleShot(0, [&] { form->Unload(); });
  acts.Mouse(form->box, UserActs::MouseAct::Up, {MouseButton::Right, {100, 250}});
  EXPECT_EQ(opened, 1);
  EXPECT_FALSE(form);
}

// --- life

TEST_F(WindowTest, OnlyChangesBetweenWindowsActivate) {
  TestForm other(windows, "Other");
  other.Show();
  acts.Activate(*form);
  acts.Activate(*form);
  EXPECT_EQ(form->activations, 2);
  EXPECT_EQ(other.activations, 1);
}

TEST_F(WindowTest, AModalWindowLocksTheOthersUntilItHasUnloaded) {
  TestForm modal(windows, "Modal");
  bool locked = false;
  QTimer::singleShot(0, [&] {
    auto* native = platform.windows.Widgets().Find<FormWindow>(modal);
    locked = QApplication::activeModalWidget() == native;
    EXPECT_EQ(native->windowHandle()->transientParent(), Native().windowHandle());
    acts.Close(modal);
  });
  modal.ShowModal();
  EXPECT_TRUE(locked);
  EXPECT_FALSE(modal.IsLoaded());
}

TEST_F(WindowTest, AssistiveProgramsReadAndEdit) {
  form->box.Surface().Text(u"un deux\r\ntrois");
  auto* view = platform.windows.Widgets().Find<RichTextView>(form->box);
  QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(view);
  QAccessibleTextInterface* text = accessible->textInterface();
  ASSERT_TRUE(text);
  EXPECT_EQ(text->text(3, 7), QStringLiteral("deux"));
  int start = 0;
  int end = 0;
  EXPECT_EQ(text->textAtOffset(4, QAccessible::WordBoundary, &start, &end), QStringLiteral("deux"));
  EXPECT_EQ(text->textAtOffset(11, QAccessible::LineBoundary, &start, &end),
            QStringLiteral("trois"));
  EXPECT_EQ(start, 9);
  accessible->editableTextInterface()->replaceText(0, 2, QStringLiteral("une"));
  EXPECT_EQ(form->box.Surface().Text(), u"une deux\r\ntrois");
}

TEST_F(WindowTest, AHugeFormHasAWindowOfBoundedSizeAndNoPicture) {
  TestForm huge(windows, "Huge");
  huge.Load();
  huge.Width(1e9F);
  huge.Height(1e9F);
  EXPECT_EQ(platform.windows.Widgets().Find<FormWindow>(huge)->size(), QSize(16384, 16384));
  EXPECT_EQ(huge.Width(), 1e9F);
  EXPECT_THROW(SaveWindowShot(platform.windows.Widgets(), huge, "huge.png"), RuntimeError);
}

}  // namespace
}  // namespace lumenote
