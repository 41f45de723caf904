// The widget of one control.
#pragma once
#include <QMouseEvent>
#include <QPointer>
#include <QWidget>
#include <memory>

#include "backends/qt/text/QtLayouter.h"
#include "backends/qt/toolkit/Differences.h"
#include "forms/Control.h"

namespace lumenote {

/// What all controls have; each kind derives from it and adds its own. The widget belongs to the
/// widget it stands on and may outlive the peer, which then no longer listens to it.
class ControlPeer : public QObject {
 public:
  ControlPeer(Control& control, QWidget& widget);
  ~ControlPeer() override;

  Control& Shown() const { return control_; }
  QWidget& Widget() const { return *widget_; }
  /// Whether the window places it at its lower edge.
  virtual bool IsDocked() const { return false; }

  /// Takes on the state that has changed.
  virtual void Update(Property property);
  virtual void Compare(DifferenceList& differences) const;

  bool eventFilter(QObject* object, QEvent* event) override;

 protected:
  /// Whether a press and release of the left button is a click; native buttons tell by themselves.
  virtual bool ClicksByMouse() const { return false; }
  /// Whether mouse events reach the control as they come to the widget.
  virtual bool PassesMouse() const { return true; }

 private:
  void ShowFont();
  void PassMouse(const QMouseEvent& mouse);

  Control& control_;
  QPointer<QWidget> widget_;
};

/// What peers need of the backend.
class LayouterSource {
 public:
  virtual ~LayouterSource() = default;
  /// What lays out the text of the box's surface.
  virtual QtLayouter& LayouterOf(const Control& box) = 0;
};

/// The peer for a control of any kind, its widget a child of `parent`, all of its state taken on.
std::unique_ptr<ControlPeer> MakeControlPeer(Control& control, QWidget& parent,
                                             LayouterSource& layouters);

}  // namespace lumenote
