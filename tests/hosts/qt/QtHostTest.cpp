// Hosts on the desktop: the application object comes late, goes early or is none, another thread
// calls, and the host's own events use the control while native windows wait.
#include <QApplication>
#include <QDir>
#include <QMenu>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTimer>
#include <QWindow>
#include <gtest/gtest.h>
#include <optional>
#include <set>
#include <thread>
#include <tuple>

#include "base/ErrorOf.h"
#include "control/Component.h"
#include "lumenote/CoBxRtf.h"
#include "lumenote/QtCoBxRtf.h"
#include "session/Session.h"

namespace lumenote {
namespace {

template <class Kind = QApplication>
struct Application {
  char name[5] = "host";
  char* names[2] = {name, nullptr};
  int count = 1;
  Kind object{count, names};
};

std::unique_ptr<CoBxRtf> MakeControl(QtPlatform& platform) {
  auto control = std::make_unique<CoBxRtf>(platform);
  control->pCouleurFen(u"0");
  control->pStrOrchm(u"note");
  return control;
}

struct QtHostTest : testing::Test {
  std::optional<Application<>> application;
  QtPlatform platform;
  std::unique_ptr<CoBxRtf> control = MakeControl(platform);
};

Co_Rtf& EditorOf(CoBxRtf& control) { return *control.Parts().editor.Loaded(); }

void Edit(CoBxRtf& control, std::u16string_view typed) {
  EditorOf(control).Document().SelStart(0);
  EditorOf(control).Document().SelText(typed);
}

void Soon(std::function<void()> event) { QTimer::singleShot(0, qApp, std::move(event)); }

/// Answers the message box that comes up next.
void AnswerBox(std::function<void()> before = [] {}) {
  auto* timer = new QTimer(qApp);
  QObject::connect(timer, &QTimer::timeout, [timer, before = std::move(before)] {
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (!box) return;
    timer->deleteLater();
    timer->stop();
    const QPointer<QMessageBox> shown = box;
    before();
    if (shown) shown->buttons().constFirst()->click();
  });
  timer->start(5);
}

TEST_F(QtHostTest, ThePlatformMayComeBeforeTheApplicationAndOutliveIt) {
  EXPECT_EQ(platform.ToDrivePath("/n/a.rtf"), u"Z:\\n\\a.rtf");
  application.emplace();
  control->ShowMicroEdit();
  Edit(*control, u"ma ");
  AnswerBox();
  application.reset();
  EXPECT_EQ(control->pStrOrchm(), u"ma note");
  EXPECT_EQ(ErrorOf([&] { control->ShowMicroEdit(); }), 5);
  EXPECT_EQ(control->pStrOrchm(), u"ma note");
}

TEST_F(QtHostTest, WithoutAnApplicationThePlatformMakesOne) {
  control->ShowMicroEdit();
  EXPECT_NE(qApp, nullptr);
  Soon([&] { EditorOf(*control).UserClose(); });
  control->ShowMicroEdit(1);
}

TEST_F(QtHostTest, AnApplicationWithoutWindowsIsRefused) {
  const Application<QCoreApplication> windowless;
  try {
    control->ShowMicroEdit(1);
    FAIL();
  } catch (const RuntimeError& error) {
    EXPECT_EQ(error.Description(), u"L'éditeur a besoin d'un objet QApplication");
  }
  EXPECT_EQ(control->pStrOrchm(), u"note");
}

TEST_F(QtHostTest, AnotherThreadThanTheApplicationsIsRefused) {
  application.emplace();
  int elsewhere = 0;
  std::thread([&] {
    elsewhere = ErrorOf([&] { MakeControl(platform)->ShowMicroEdit(1); });
  }).join();
  EXPECT_EQ(elsewhere, 5);
}

/// The host reads the note, shows another one and waits until that has been edited and closed.
void EditNext(CoBxRtf& control) {
  EXPECT_EQ(control.pStrOrchm(), u"note");
  control.pStrOrchm(u"suite");
  Soon([&] {
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    Edit(control, u"la ");
    AnswerBox();
    EditorOf(control).UserClose();
  });
  control.ShowMicroEdit(1);
}

TEST_F(QtHostTest, TheNextNoteOpensWhileAModalWindowOrABoxOfTheOldOneIsUp) {
  application.emplace();
  for (const bool picker : {true, false}) {
    control->pStrOrchm(u"note");
    control->ShowMicroEdit();
    Soon([&] { EditNext(*control); });
    Co_Rtf& editor = EditorOf(*control);
    (picker ? editor.Bar.mnuEdtSymboles : editor.Pop.mnuPopOcrApprendre).UserClick();
    EXPECT_EQ(control->pStrOrchm(), u"la suite");
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
  }
}

TEST_F(QtHostTest, TwoControlsFindTheirOwnNotesAfterARoundTrip) {
  application.emplace();
  const QString programs = QDir::homePath() + "/Program Files/qjot";
  QDir().mkpath(programs);
  QFile::link("/bin/true", programs + "/qjot.exe");
  const auto second = MakeControl(platform);
  second->pStrOrchm(u"autre note");
  const auto watching = [](CoBxRtf& control) { return EditorOf(control).TimerWpd.Enabled(); };
  for (CoBxRtf* each : {control.get(), second.get()}) {
    each->ShowMicroEdit();
    EditorOf(*each).Pop.mnuPopQjot.UserClick();
  }
  while (watching(*control) || watching(*second))
    QApplication::processEvents(QEventLoop::WaitForMoreEvents);
  EXPECT_EQ(control->pStrOrchm(), u"note");
  EXPECT_EQ(second->pStrOrchm(), u"autre note");
  control.reset();
  EXPECT_EQ(QDir::temp().entryList({"lumenote-*"}).size(), 1);
}

TEST_F(QtHostTest, TextsMayBeQStrings) {
  application.emplace();
  QtCoBxRtf host(platform);
  const std::tuple<void (QtCoBxRtf::*)(const QString&), QString, std::u16string Session::*>
      kTexts[] = {{&QtCoBxRtf::pNomAppli, "nom", &Session::applicationName},
                  {&QtCoBxRtf::pTitreFenêtre, "fenêtre", &Session::windowTitle},
                  {&QtCoBxRtf::pTitreCadre, "cadre", &Session::frameTitle},
                  {&QtCoBxRtf::pCouleurFen, "-1", &Session::colourText},
                  {&QtCoBxRtf::pSScléReg, "clé", &Session::settingsKey},
                  {&QtCoBxRtf::pAttribut, "readonly", &Session::access},
                  {&QtCoBxRtf::pModelWord, "C:\\m.dot", &Session::templatePath},
                  {&QtCoBxRtf::pStrOrchm, "Œ ♀", &Session::note},
                  {&QtCoBxRtf::NotePath, "C:\\n.rtf", &Session::note},
                  {&QtCoBxRtf::NoteText, "C:\\n.rtf ♀", &Session::note}};
  for (const auto& [write, text, value] : kTexts) {
    (host.*write)(text);
    EXPECT_EQ((*host.Parts().session).*value, text.toStdU16String());
  }
  const QTemporaryDir folder;
  const std::string program = folder.filePath("herbier").toStdString();
  host.pChmAppli(QString::fromStdU16String(platform.ToDrivePath(program)));
  EXPECT_TRUE(QFile::exists(folder.filePath("ListCorr.txt")));
  EXPECT_EQ(host.pStrOrchm(), QString("C:\\n.rtf ♀"));
}

TEST_F(QtHostTest, TheEditorStaysAboveTheHostsWindow) {
  application.emplace();
  QWidget host;
  host.show();
  const auto owner = [&] { return QApplication::topLevelWindows().constLast()->transientParent(); };
  control->ShowMicroEdit();
  EXPECT_EQ(owner(), nullptr);
  control->pStrOrchm();
  control->HostWindow(host.winId());
  control->ShowMicroEdit();
  EXPECT_EQ(owner(), host.windowHandle());
}

TEST_F(QtHostTest, AStyleSheetOfTheHostsCutsNothing) {
  const auto looks = [&] {
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    control->ShowMicroEdit();
    std::set<std::tuple<int, int, int>> found;  // a font's size, and the room that its text needs
    for (QWidget* window : QApplication::topLevelWidgets())
      for (const QWidget* widget : window->findChildren<QWidget*>())
        found.emplace(widget->fontInfo().pixelSize(), widget->sizeHint().width(),
                      widget->sizeHint().height());
    control->pStrOrchm();
    return found;
  };
  application.emplace();
  const auto plain = looks();
  application->object.setStyleSheet("QWidget { font-size: 24pt; padding: 9px }");
  for (QWidget* closed : QApplication::topLevelWidgets())  // and not gone yet
    for (const QMenu* menu : closed->findChildren<QMenu*>()) menu->sizeHint();
  EXPECT_EQ(looks(), plain);
}

TEST_F(QtHostTest, TheControlGoesWhileItWaitsOrAsks) {
  application.emplace();
  Soon([&] { control.reset(); });
  control->ShowMicroEdit(1);

  control = MakeControl(platform);
  control->ShowMicroEdit();
  Soon([&] { control.reset(); });
  EditorOf(*control).Bar.mnuEdtSymboles.UserClick();

  control = MakeControl(platform);
  control->ShowMicroEdit();
  Edit(*control, u"ma ");
  AnswerBox([&] {
    control.reset();
    AnswerBox();  // tells of the rescue copy
  });
  EditorOf(*control).UserClose();
  EXPECT_TRUE(QDir::home().exists("Secours_TmpFlStr.txt"));
  EXPECT_TRUE(QApplication::topLevelWidgets().empty() || !QApplication::activeModalWidget());
}

}  // namespace
}  // namespace lumenote

int main(int argc, char** argv) {
  const QTemporaryDir home;
  for (const char* name :
       {"HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_STATE_HOME", "TMPDIR", "LUMENOTE_DRIVE_C"})
    qputenv(name, home.path().toUtf8());
  qputenv("QT_QPA_PLATFORM", "offscreen");
  testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
