// A host with several notes, one control each on one platform, conducted by lines on its standard
// input. usage: notes_host NOTE...
//
//   show N          opens the editor of note N (from 1), whose title is "Note N"
//   wait N          the same with ShowMicroEdit(1): answers when that editor has closed
//   read N          closes the editor of note N; answers with what the host gets back
//   text N          the text on the surface; "rtf N" its source, "selected N" what is selected,
//                   "undo N" the kind of the step that would be undone, "ontop N" whether the
//                   editor takes itself for the topmost window, "focus N" the control that has the
//                   keyboard in its active window, "nobody" without one, "bar N" whether its menu
//                   bar is "hidden", "shown" or, with the keyboard, "focused", "sign N" what its
//                   status bar's sign says
//   quit            QApplication::quit()
//
// Each line is answered by one, "ok" where there is nothing to tell, line ends as "\n". A line that
// arrives while another one waits is carried out meanwhile. When the application's loop ends, the
// program writes "ended" and ends.
#include <QApplication>
#include <QMenuBar>
#include <QSocketNotifier>
#include <cstdlib>
#include <iostream>
#include <memory>
#include <sstream>
#include <string>
#include <unistd.h>
#include <vector>

#include "base/RuntimeError.h"
#include "base/Strings.h"
#include "control/Component.h"
#include "lumenote/CoBxRtf.h"
#include "lumenote/QtPlatform.h"

using namespace lumenote;

namespace {

std::string OnOneLine(std::u16string_view text) {
  return ToUtf8(ReplaceEvery(ReplaceEvery(text, u"\r", u""), u"\n", u"\\n"));
}

class Host {
 public:
  Host(QtPlatform& platform, int count, char** notes) {
    for (int i = 0; i < count; ++i) {
      CoBxRtf& control = *controls_.emplace_back(std::make_unique<CoBxRtf>(platform));
      control.pNomAppli(u"notes_host");
      control.pTitreFenêtre(u"Note " + FromUtf8(std::to_string(i + 1)));
      control.pCouleurFen(u"14737632");
      control.pSScléReg(u"notes_host");
      control.pChmAppli(platform.ToDrivePath(std::string(std::getenv("HOME")) + "/notes_host"));
      control.pStrOrchm(FromUtf8(notes[i]));
    }
  }

  void Obey(const std::string& line) {
    std::istringstream words(line);
    std::string verb;
    std::size_t number = 0;
    words >> verb >> number;
    std::string answer;
    try {
      answer = Answer(verb, *controls_.at(number > 0 ? number - 1 : 0));
    } catch (const RuntimeError& error) {
      answer = "error " + std::to_string(error.Number());
    }
    std::cout << answer << std::endl;
  }

 private:
  static std::string Answer(const std::string& verb, CoBxRtf& control) {
    if (verb == "quit") QApplication::quit();
    if (verb == "show") control.ShowMicroEdit();
    if (verb == "wait") control.ShowMicroEdit(1);
    if (verb == "read") return OnOneLine(control.pStrOrchm());
    Co_Rtf* editor = control.Parts().editor.Loaded();
    const Form* active = control.Parts().windows.Active();
    if (verb == "focus")
      return active && active->ActiveControl() ? active->ActiveControl()->Name() : "nobody";
    if (verb == "bar" && editor) return BarOf(*editor);
    if (verb == "sign" && editor) return ToUtf8(editor->Bar_Etat.SignTip());
    if (verb == "ontop") return control.Parts().session->onTop ? "yes" : "no";
    return editor ? Answer(verb, editor->Document()) : "ok";
  }

  static std::string BarOf(const Co_Rtf& editor) {
    if (dynamic_cast<QMenuBar*>(QApplication::focusWidget())) return "focused";
    return editor.HasMenuBar() ? "shown" : "hidden";
  }

  static std::string Answer(const std::string& verb, const RichTextSurface& surface) {
    if (verb == "text") return OnOneLine(surface.Text());
    if (verb == "rtf") return OnOneLine(surface.TextRTF());
    if (verb == "selected") return OnOneLine(surface.SelText());
    if (verb == "undo") return std::to_string(static_cast<int>(surface.UndoType()));
    return "ok";
  }

  std::vector<std::unique_ptr<CoBxRtf>> controls_;
};

/// Hands on the lines that have come in; the end of the input ends nothing.
class Lines {
 public:
  explicit Lines(Host& host) : host_(host) {
    QObject::connect(&notifier_, &QSocketNotifier::activated, [this] { Read(); });
  }

 private:
  void Read() {
    char bytes[4096];
    const ssize_t count = read(STDIN_FILENO, bytes, sizeof bytes);
    if (count <= 0) return notifier_.setEnabled(false);
    pending_.append(bytes, static_cast<std::size_t>(count));
    for (std::size_t end; (end = pending_.find('\n')) != std::string::npos;) {
      const std::string line = pending_.substr(0, end);
      pending_.erase(0, end + 1);
      QMetaObject::invokeMethod(
          &notifier_, [this, line] { host_.Obey(line); }, Qt::QueuedConnection);
    }
  }

  Host& host_;
  std::string pending_;
  QSocketNotifier notifier_{STDIN_FILENO, QSocketNotifier::Read};
};

}  // namespace

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  QtPlatform platform;
  Host host(platform, argc - 1, argv + 1);
  const Lines lines(host);
  const int status = QApplication::exec();
  std::cout << "ended" << std::endl;
  return status;
}
