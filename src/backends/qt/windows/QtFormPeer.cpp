#include "backends/qt/windows/QtFormPeer.h"

#include <QDialog>
#include <QGuiApplication>
#include <QWindow>

#include "backends/qt/toolkit/QtText.h"
#include "backends/qt/toolkit/Units.h"
#include "backends/qt/view/RichTextView.h"
#include "forms/controls/SpokenName.h"
#include "forms/controls/edits/RichTextBox.h"
#include "forms/controls/labels/Label.h"

namespace lumenote {

QtFormPeer::QtFormPeer(Form& form, PeerServices& services)
    : form_(form),
      services_(services),
      window_(new FormWindow(form, services)),
      menus_(form.Menus(), window_->Bar(), *window_, services.Widgets()) {
  services_.Widgets().Add(form, *window_);
  AddControls(form, window_->Content());
  NameControls();
  window_->ShowCaption();
  window_->ShowBackColor();
  window_->ShowGeometry();
}

QtFormPeer::~QtFormPeer() {
  window_->Detach();
  for (const auto& [control, peer] : controls_) services_.Widgets().Remove(*control);
  services_.Widgets().Remove(form_);
  services_.Gone(form_);
  controls_.clear();
  EndDialogs();
  window_->hide();
  window_->deleteLater();
}

// A box above a closing window would lock the next window.
void QtFormPeer::EndDialogs() {
  for (QDialog* dialog : window_->findChildren<QDialog*>()) dialog->hide();
}

void QtFormPeer::AddControls(const Container& container, QWidget& parent) {
  for (Control* control : container.Controls()) Add(*control, parent);
}

void QtFormPeer::Add(Control& control, QWidget& parent) {
  auto peer = MakeControlPeer(control, parent, services_);
  if (peer->IsDocked()) {
    peer->Widget().setParent(window_);
    peer->Widget().setVisible(control.Visible());
    window_->Docked(&peer->Widget());
  }
  services_.Widgets().Add(control, peer->Widget());
  if (const auto* container = dynamic_cast<const Container*>(&control))
    AddControls(*container, peer->Widget());
  controls_[&control] = std::move(peer);
}

void QtFormPeer::Update(Element& element, Property property) {
  if (const auto peer = controls_.find(&element); peer != controls_.end())
    peer->second->Update(property);
  else if (const auto* menu = dynamic_cast<const Menu*>(&element))
    menus_.Update(*menu);
  else if (&element == &form_)
    UpdateForm(property);
  if (property == Property::Visible) window_->LayOutParts();
  if (property == Property::Caption) Rename(element);
}

// Frames, labels and the window name other controls, too; the many cells of a grid do not.
void QtFormPeer::Rename(const Element& element) {
  const auto* label = dynamic_cast<const Label*>(&element);
  if (!label || label->Style() == LabelStyle::Text)
    NameControls();
  else if (const auto peer = controls_.find(&element); peer != controls_.end())
    peer->second->ShowName();
}

void QtFormPeer::NameControls() {
  for (const auto& [element, peer] : controls_) {
    peer->ShowName();
    if (const Label* label = LabelOf(peer->Shown()))
      peer->ShowLabel(dynamic_cast<QLabel&>(controls_.at(label)->Widget()));
  }
}

void QtFormPeer::Add(Control& control) {
  const auto* outer = dynamic_cast<const Control*>(&control.Parent());
  Add(control, outer ? controls_.at(outer)->Widget() : window_->Content());
  controls_.at(&control)->ShowName();
}

void QtFormPeer::Remove(Control& control) {
  const auto found = controls_.find(&control);
  if (found == controls_.end()) return;
  services_.Widgets().Remove(control);
  QWidget& widget = found->second->Widget();
  controls_.erase(found);
  widget.hide();
  widget.deleteLater();
}

void QtFormPeer::UpdateForm(Property property) {
  if (property == Property::Caption) window_->ShowCaption();
  if (property == Property::Geometry) window_->ShowGeometry();
  if (property == Property::Visible) window_->ShowVisible(OwnerWindow());
  if (property == Property::OnTop) window_->ShowOnTop();
  if (property == Property::BackColor) window_->ShowBackColor();
}

// A modal window without an owner stays above the window it was opened from.
QWidget* QtFormPeer::OwnerWindow() const {
  const Form* owner = form_.OwnerWindow();
  if (!owner && form_.IsModal()) owner = form_.Windows().Active();
  return owner && owner != &form_ ? services_.Widgets().Find<QWidget>(*owner) : nullptr;
}

void QtFormPeer::Focus(Control& control) { controls_.at(&control)->Widget().setFocus(); }

void QtFormPeer::FocusMenuBar(bool on) {
  MenuBarWidget& bar = window_->Bar();
  Control* const control = form_.ActiveControl();
  if (on)
    bar.TakeKeyboard();
  else if (&bar == window_->focusWidget() && control)
    Focus(*control);
}

void QtFormPeer::Activate() {
  services_.Activating(form_);
  window_->setWindowState(window_->windowState() & ~Qt::WindowMinimized);
  if (QGuiApplication::platformName() != u"offscreen") window_->raise();  // it only warns
  window_->activateWindow();
}

std::optional<Rect> QtFormPeer::SelectionIn(const RichTextBox& box) {
  auto& view = dynamic_cast<RichTextView&>(controls_.at(&box)->Widget());
  const auto selected = view.Text().SelectionBox();
  if (!selected) return std::nullopt;
  const QPointF corner = view.viewport()->mapToGlobal(QPointF(selected->left, selected->top));
  return Rect{ToTwips(corner.x()), ToTwips(corner.y()), ToTwips(selected->Width()),
              ToTwips(selected->Height())};
}

void QtFormPeer::PopUp(Menu& menu, Point at) {
  const QPoint corner(RoundToPixel(at.x), RoundToPixel(at.y));
  menus_.PopUp(menu, window_->Content().mapToGlobal(corner));
}

std::vector<std::string> QtFormPeer::Differences() const {
  DifferenceList differences;
  Compare(differences);
  menus_.Compare(differences);
  for (const auto& [control, peer] : controls_) peer->Compare(differences);
  return differences.Lines();
}

void QtFormPeer::Compare(DifferenceList& differences) const {
  const auto check = [&](const char* member, bool same) { differences.Check(form_, member, same); };
  check("Visible", window_->isVisible() == form_.Visible());
  check("Caption", window_->windowTitle() == ToQString(form_.Caption()));
  check("BackColor", window_->Ground() == window_->WantedGround());
  if (!form_.Visible()) return;
  check("Size", window_->size() == WindowGeometry::ClientSize(form_.Bounds()));
  check("TopMost",
        form_.OnTop() == window_->windowHandle()->flags().testFlag(Qt::WindowStaysOnTopHint));
  check("menu bar", window_->Bar().isVisible() == form_.HasMenuBar());
}

}  // namespace lumenote
