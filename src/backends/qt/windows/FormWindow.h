// The native window of a form: menu bar, content, status bar, and window events.
#pragma once
#include <QWidget>
#include <QWindow>
#include <memory>
#include <optional>

#include "backends/qt/toolkit/Spoken.h"
#include "backends/qt/windows/MenuBarWidget.h"
#include "backends/qt/windows/WindowGeometry.h"
#include "forms/Form.h"

namespace lumenote {

/// Notified when the desktop activates a window and when the user works in one.
class ActivationListener {
 public:
  virtual ~ActivationListener() = default;
  virtual void NativelyActive(Form& form) = 0;
  /// A button or key is about to be pressed in the window.
  virtual void Used(Form& form) = 0;
  /// The window was asked to close, and the form stays.
  virtual void Refused(Form& form) = 0;
};

/// Inert after `Detach`: the form may be destroyed while the widget's own events are still running.
class FormWindow : public SpokenWidget {
 public:
  FormWindow(Form& form, ActivationListener& listener);

  void Detach();
  QAccessible::Role Role() const override;

  MenuBarWidget& Bar() { return *bar_; }
  /// The parent widget of the form's controls; its corner is the form's client corner.
  QWidget& Content() { return *content_; }
  /// The widget docked at the lower edge; null for none.
  void Docked(QWidget* widget);

  void ShowCaption();
  void ShowGeometry();
  /// Shows or hides the window, above `owner` if there is one.
  void ShowVisible(QWidget* owner);
  void ShowOnTop();
  void ShowBackColor();
  /// Re-layouts after the menu bar was shown or hidden.
  void LayOutParts();

  /// Resizes as if the user had dragged the border to this outer size, in twips.
  void DragTo(float width, float height);

  /// A mouse button goes down outside the menu bar, or none is held any more, as told to the form.
  void Press();
  void Release();

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
  void ShowSize();
  void HearNative(const QEvent& event);
  void HearMouse(const QMouseEvent& event);
  void ChooseKind();
  QWindow* HostWindow();
  void KeepAboveHost();

  Form* form_;
  ActivationListener& listener_;
  MenuBarWidget* bar_;
  bool altAlone_ = false;  // it is held, and nothing else has happened meanwhile
  QWidget* content_;
  QWidget* docked_ = nullptr;
  WindowGeometry geometry_;
  std::unique_ptr<QWindow> hostWindow_;  // one that is not a widget of this program
};

}  // namespace lumenote
