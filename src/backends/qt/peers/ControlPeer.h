// The base of peers: the widget of one control.
#pragma once
#include <QLabel>
#include <QMouseEvent>
#include <QPointer>
#include <QWheelEvent>
#include <QWidget>
#include <memory>

#include "backends/qt/text/QtLayouter.h"
#include "forms/Control.h"
#include "forms/Differences.h"

namespace lumenote {

class RichTextBox;
class Speller;

/// Common to all controls; each kind has a derived class. The parent widget owns the widget, which
/// may outlive the peer; the peer then no longer receives its events.
class ControlPeer : public QObject {
 public:
  ControlPeer(Control& control, QWidget& widget);
  ~ControlPeer() override;

  Control& Shown() const { return control_; }
  QWidget& Widget() const { return *widget_; }
  /// Whether the window docks it at its lower edge.
  virtual bool IsDocked() const { return false; }

  /// Copies the changed state from the control.
  virtual void Update(Property property);
  /// Names the widget for assistive programs.
  virtual void ShowName();
  /// The label that names it.
  virtual void ShowLabel(QLabel& label) { label.setBuddy(widget_); }
  virtual void Compare(DifferenceList& differences) const;

  bool eventFilter(QObject* object, QEvent* event) override;

 protected:
  /// Whether pressing and releasing the left button is a click; native buttons report clicks
  /// themselves.
  virtual bool ClicksByMouse() const { return false; }
  /// Whether the widget's mouse events are forwarded to the control.
  virtual bool PassesMouse() const { return true; }

 private:
  void ShowFont();
  bool PassWheel(const QWheelEvent& wheel);
  void PassMouse(const QMouseEvent& mouse);

  Control& control_;
  QPointer<QWidget> widget_;
  int turned_ = 0;  // the wheel, since its last whole notch
};

/// What peers need of the backend.
class LayouterSource {
 public:
  virtual ~LayouterSource() = default;
  /// What lays out the text of the box's surface.
  virtual QtLayouter& LayouterOf(const Control& box) = 0;
  /// What looks up its words; null if they are not checked.
  virtual Speller* SpellerOf(const RichTextBox& box) = 0;
};

/// Creates the peer for any kind of control, its widget a child of `parent`, in the control's
/// state.
std::unique_ptr<ControlPeer> MakeControlPeer(Control& control, QWidget& parent,
                                             LayouterSource& layouters);

}  // namespace lumenote
