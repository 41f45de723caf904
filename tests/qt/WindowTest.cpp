// Windows on real widgets: they show what the forms hold, and what the user does comes in.
#include <QAccessible>
#include <QApplication>
#include <QColorDialog>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>
#include <QWindow>
#include <gtest/gtest.h>

#include "backends/qt/QtBackend.h"
#include "backends/qt/QtUserActs.h"
#include "backends/qt/view/RichTextView.h"
#include "backends/qt/windows/FormWindow.h"
#include "backends/qt/windows/Shot.h"
#include "forms/Menu.h"
#include "forms/controls/edits/RichTextBox.h"
#include "forms/controls/labels/Frame.h"
#include "pilot/machine/PilotPlatform.h"
#include "pilot/machine/ReportedFonts.h"
#include "pilot/sandbox/FolderSandbox.h"

namespace lumenote {
namespace {

/// A window with a box and a menu; counts what it is told.
class TestForm final : public Form {
 public:
  explicit TestForm(WindowList& windows, std::string name = "TestForm")
      : Form(windows, std::move(name), {1500, 1500, 6000, 4500}, u"Essai") {}
  ~TestForm() override { Unload(); }

  Frame frame{*this, "frame", {80, 84, 5700, 3600}, u"Cadre"};
  RichTextBox box{frame, "box", {30, 270, 5640, 3200}};
  Menu popup{*this, "popup", u"popup", false};
  Menu cut{popup, "cut", u"&Couper"};
  int resizes = 0;

 private:
  void Form_Resize() override { ++resizes; }
};

struct WindowTest : testing::Test {
  WindowTest() { form->Show(); }

  std::vector<std::string> Differences() { return form->Peer()->Differences(); }
  template <class Widget>
  Widget& Native(Element& element) {
    return *backend.Widgets().Find<Widget>(element);
  }

  const std::vector<std::string> none;
  FolderSandbox sandbox;
  QtBackend backend;
  ReportedFonts fonts;
  PilotPlatform platform{sandbox, backend, fonts};
  WindowList windows{platform};
  QtUserActs acts{backend};
  std::unique_ptr<TestForm> form = std::make_unique<TestForm>(windows);
};

TEST_F(WindowTest, NoticesADifference) {
  form->cut.Checked(true);
  acts.Choose(form->cut);  // the toolkit's own toggling of a mark does not show
  EXPECT_EQ(Differences(), none);
  Native<FormWindow>(*form).setWindowTitle(QStringLiteral("?"));
  EXPECT_EQ(Differences(), std::vector<std::string>{"TestForm.Caption"});
}

TEST_F(WindowTest, KeepsTwipsThatAreNoWholePixels) {
  const Rect place = form->Bounds();
  form->Width(5651);
  QApplication::sendPostedEvents();
  EXPECT_EQ(form->Bounds(), (Rect{place.left, place.top, 5651, place.height}));
  auto& native = Native<FormWindow>(*form);
  const int resizes = form->resizes;
  native.resize(native.width() + 20, native.height());
  EXPECT_EQ(form->Width(), 5951);
  EXPECT_EQ(form->resizes, resizes + 1);
  acts.Resize(*form, 7000, 5001);
  EXPECT_EQ(form->Bounds(), (Rect{place.left, place.top, 7000, 5001}));
  EXPECT_EQ(Differences(), none);
  form->Width(1e9F);
  form->Height(1e9F);
  EXPECT_EQ(native.size(), QSize(16384, 16384));
  EXPECT_EQ(form->Width(), 1e9F);
  EXPECT_THROW(SaveWindowShot(backend.Widgets(), *form, "huge.png"), RuntimeError);
}

TEST_F(WindowTest, ComposedTextIsTypedAndAssistiveProgramsReadAndEdit) {
  auto& view = Native<RichTextView>(form->box);
  form->box.Surface().Text(u"un deux\r\ntrois");
  QInputMethodEvent done;
  done.setCommitString(QStringLiteral("ê"));
  QApplication::sendEvent(&view, &done);
  EXPECT_EQ(Differences(), none);
  QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(&view);
  int start = 0;
  int end = 0;
  EXPECT_EQ(accessible->textInterface()->textAtOffset(4, QAccessible::WordBoundary, &start, &end),
            QStringLiteral("deux"));
  EXPECT_EQ(start, 4);
  accessible->editableTextInterface()->replaceText(1, 3, QStringLiteral("tre"));
  EXPECT_EQ(form->box.Surface().Text(), u"être deux\r\ntrois");
}

TEST_F(WindowTest, WhatIsBeingComposedIsKept) {
  const std::pair<const char*, std::function<void()>> rows[] = {
      {"a click",
       [&] {
         acts.Mouse(form->box, UserActs::MouseAct::Down, {MouseButton::Left, {30, 90}});
       }},
      {"a menu", [&] { form->popup.UserOpen(); }},
      {"a command", [&] { acts.Choose(form->cut); }},
      {"the end of the session", [&] { form->Keep(); }},
      {"closing", [&] { acts.Close(*form); }}};
  for (const auto& [what, act] : rows) {
    form->box.Surface().Text(u"un");
    QInputMethodEvent composing(QStringLiteral("ê"), {});
    QApplication::sendEvent(&Native<RichTextView>(form->box), &composing);
    EXPECT_EQ(form->box.Surface().Text(), u"un") << what;
    act();
    EXPECT_EQ(form->box.Surface().Text(), u"êun") << what;
  }
}

TEST_F(WindowTest, AThirdClickIsOneThatWasMadeSoon) {
  auto& view = Native<RichTextView>(form->box);
  const auto click = [&](QEvent::Type type, quint64 when) {
    const QPointF at(4, 8);
    QMouseEvent event(type, at, view.viewport()->mapToGlobal(at), Qt::LeftButton, Qt::LeftButton,
                      Qt::NoModifier);
    event.setTimestamp(when);
    QApplication::sendEvent(view.viewport(), &event);
  };
  form->box.Surface().Text(u"un deux");
  for (const auto& [when, selected] : {std::pair(5100, 7), std::pair(9000, 0)}) {
    click(QEvent::MouseButtonDblClick, 5000);
    EXPECT_EQ(form->box.Surface().SelLength(), 2);
    click(QEvent::MouseButtonPress, static_cast<quint64>(when));
    click(QEvent::MouseButtonRelease, static_cast<quint64>(when));
    EXPECT_EQ(form->box.Surface().SelLength(), selected) << when;
  }
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

TEST_F(WindowTest, AModalWindowLocksTheOthersUntilItHasUnloaded) {
  TestForm modal(windows, "Modal");
  bool locked = false;
  QTimer::singleShot(0, [&] {
    auto& native = Native<FormWindow>(modal);
    locked = QApplication::activeModalWidget() == &native &&
             native.windowHandle()->transientParent() == Native<FormWindow>(*form).windowHandle();
    acts.Close(modal);
  });
  modal.ShowModal();
  EXPECT_TRUE(locked);
  EXPECT_FALSE(modal.IsLoaded());
}

/// What the labels, buttons and frames of the topmost dialog say, without mnemonics and what is
/// hidden.
QStringList TextsOf(const QWidget& dialog) {
  QStringList texts;
  const auto add = [&](const QWidget& part, QString text) {
    if (part.isVisible() && !text.trimmed().isEmpty()) texts += text.remove(u'&');
  };
  for (auto* label : dialog.findChildren<QLabel*>()) add(*label, label->text());
  for (auto* button : dialog.findChildren<QAbstractButton*>()) add(*button, button->text());
  for (auto* frame : dialog.findChildren<QGroupBox*>()) add(*frame, frame->title());
  for (auto* style : dialog.findChildren<QLineEdit*>(Qt::FindDirectChildrenOnly))
    if (style->isReadOnly()) add(*style, style->text());
  texts.sort();
  return texts;
}

TEST_F(WindowTest, FontsAndColoursAreChosenInFrench) {
  QStringList fonts;
  QStringList colours;
  const auto later = [](auto act) { QTimer::singleShot(0, qApp, act); };
  const auto top = [] { return qobject_cast<QDialog*>(QApplication::activeModalWidget()); };
  const auto inColours = [&] {
    colours = TextsOf(*top());
    static_cast<QColorDialog*>(top())->setCurrentColor(Qt::red);
    top()->accept();
  };
  const auto inFonts = [&] {
    QDialog& dialog = *top();
    fonts = TextsOf(dialog);
    later(inColours);
    for (auto* button : dialog.findChildren<QPushButton*>())
      if (button->text().contains(u"ouleur")) button->click();
    dialog.accept();
  };
  later(inFonts);
  FontChoice shown;
  shown.name = u"DejaVu Sans";
  shown.bold = true;
  const auto choice = backend.ChooseFont(shown, form.get());
  ASSERT_TRUE(choice);
  EXPECT_EQ(choice->colour, 0xFF);
  EXPECT_EQ(choice->bold, std::nullopt);
  EXPECT_EQ(
      fonts.join(u'|').toStdString(),
      "Annuler|Barré|Couleur...|DejaVu Sans|Effets|Exemple|Gras|OK|Police|Souligné|Style|Taille");
  EXPECT_EQ(colours.join(u'|').toStdString(),
            "Ajouter aux couleurs personnelles|Annuler|Bleu :|Couleurs de base|Couleurs "
            "personnelles|HTML:|Luminosité :|OK|Prélever à l'écran|Rouge :|Saturation :|Teinte "
            ":|Vert :");
}

}  // namespace
}  // namespace lumenote
