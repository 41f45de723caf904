// The native window of a form: menu bar, content, status bar, and what the user does to the window.
#pragma once
#include <QMenuBar>
#include <QWidget>
#include <QWindow>
#include <memory>
#include <optional>

#include "backends/qt/windows/WindowGeometry.h"
#include "forms/Form.h"

namespace lumenote {

/// Told which window the desktop has made the active one, and which the user works in.
class ActivationListener {
 public:
  virtual ~ActivationListener() = default;
  virtual void NativelyActive(Form& form) = 0;
  /// A button or key is about to go down in the window.
  virtual void Used(Form& form) = 0;
  /// The window was asked to close, and the form stays.
  virtual void Refused(Form& form) = 0;
};

/// Does nothing any more after `Detach`, since the form may be gone while the widget's own events
/// are still running.
class FormWindow : public QWidget {
 public:
  FormWindow(Form& form, ActivationListener& listener);

  void Detach() { form_ = nullptr; }

  QMenuBar& Bar() { return *bar_; }
  /// What the form's controls stand on; its corner is the form's inner corner.
  QWidget& Content() { return *content_; }
  /// The widget at the lower edge; null for none.
  void Docked(QWidget* widget);

  void ShowCaption();
  void ShowGeometry();
  /// Shows or hides the window, over `owner` if there is one.
  void ShowVisible(QWidget* owner);
  void ShowOnTop();
  void ShowBackColor();
  /// The menu bar has come or gone.
  void PlaceParts();

  /// As if the user had dragged the border to this outer size, in twips.
  void DragTo(float width, float height);

  QColor Ground() const { return content_->palette().color(QPalette::Window); }
  QColor WantedGround() const;

 protected:
  bool event(QEvent* event) override;
  bool eventFilter(QObject* object, QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void moveEvent(QMoveEvent* event) override;

 private:
  void ChooseKind();
  QWindow* HostWindow();

  Form* form_;
  ActivationListener& listener_;
  QMenuBar* bar_;
  QWidget* content_;
  QWidget* docked_ = nullptr;
  WindowGeometry geometry_;
  std::unique_ptr<QWindow> hostWindow_;  // one that is no widget of this program
};

}  // namespace lumenote
