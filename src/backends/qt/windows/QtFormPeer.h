// The native side of one form.
#pragma once
#include <memory>
#include <unordered_map>

#include "backends/qt/peers/ControlPeer.h"
#include "backends/qt/toolkit/WidgetRegistry.h"
#include "backends/qt/windows/FormWindow.h"
#include "backends/qt/windows/MenuTree.h"
#include "forms/Backend.h"

namespace lumenote {

/// Services that peers share; must outlive each of them.
class PeerServices : public LayouterSource, public ActivationListener {
 public:
  virtual WidgetRegistry& Widgets() = 0;
  /// The window was asked to become active.
  virtual void Activating(Form& form) = 0;
  virtual void Gone(Form& form) = 0;
};

/// Builds the widgets of any form from its elements. Widgets outlive the peer while their own
/// events run.
class QtFormPeer final : public FormPeer {
 public:
  QtFormPeer(Form& form, PeerServices& services);
  ~QtFormPeer() override;

  void Update(Element& element, Property property) override;
  void Focus(Control& control) override;
  void FocusMenuBar(bool on) override;
  void Activate() override;
  std::optional<Rect> SelectionIn(const RichTextBox& box) override;
  void Add(Control& control) override;
  void Remove(Control& control) override;
  void PopUp(Menu& menu, Point at) override;
  std::vector<std::string> Differences() const override;

 private:
  void EndDialogs();
  void AddControls(const Container& container, QWidget& parent);
  void Add(Control& control, QWidget& parent);
  void NameControls();
  void Rename(const Element& element);
  void UpdateForm(Property property);
  QWidget* OwnerWindow() const;
  void Compare(DifferenceList& differences) const;

  Form& form_;
  PeerServices& services_;
  FormWindow* window_;
  std::unordered_map<const Element*, std::unique_ptr<ControlPeer>> controls_;
  MenuTree menus_;
};

}  // namespace lumenote
