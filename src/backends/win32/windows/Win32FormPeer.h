// The native side of one form.
#pragma once
#include <memory>
#include <unordered_map>

#include "backends/win32/peers/base/ControlPeer.h"
#include "backends/win32/toolkit/WindowRegistry.h"
#include "backends/win32/windows/ContentWindow.h"
#include "backends/win32/windows/FormStacking.h"
#include "backends/win32/windows/ModalLock.h"
#include "backends/win32/windows/WindowGeometry.h"
#include "backends/win32/windows/menus/FormMenus.h"
#include "forms/Form.h"

namespace lumenote {

/// What the peers of all forms share; outlives each of them.
class PeerServices {
 public:
  virtual ~PeerServices() = default;
  virtual WindowRegistry& Windows() = 0;
  virtual ControlFonts& Fonts() = 0;
  virtual UniscribeLayouter& LayouterOf(const Control& box) = 0;
  /// A form is on top now, or not any more: so are those above it.
  virtual void Restack() = 0;
  virtual void Gone(Form& form) = 0;
};

/// Builds the windows of any form from its elements: menu bar, content with the controls, docked
/// status bar. The native windows outlive the peer while their own messages are handled, hidden.
class Win32FormPeer final : public FormPeer, private PeerHost, private MessageListener {
 public:
  Win32FormPeer(Form& form, PeerServices& services);
  ~Win32FormPeer() override;

  void Update(Element& element, Property property) override;
  void Focus(Control& control) override;
  void FocusMenuBar(bool on) override;
  void Activate() override;
  std::optional<Rect> SelectionIn(const RichTextBox& box) override;
  void Add(Control& control) override;
  void Remove(Control& control) override;
  void PopUp(Menu& menu, Point at) override;
  std::vector<std::string> Differences() const override;

  HWND Handle() const { return window_->Handle(); }
  const FormMenus& Menus() const { return menus_; }
  /// The peer of a control of the form; null for none.
  ControlPeer* PeerOf(const Control& control) const;
  const FormStacking& Stacking() const { return stacking_; }
  /// Resizes as if the user had dragged the border to this outer size, in twips.
  void DragTo(float width, float height);

 private:
  // PeerHost
  Scale Resolution() const override { return scale_; }
  ControlFonts& Fonts() override { return services_.Fonts(); }
  UniscribeLayouter& LayouterOf(const Control& box) override { return services_.LayouterOf(box); }
  void Focused(Control& control) override;
  bool UnusedKey(Control& control, const KeyStroke& key) override;
  bool UseMnemonic(char16_t character) override;
  void Used() override;
  void Pressed() override { form_.UserPress(); }
  void Released() override { form_.UserRelease(); }
  // MessageListener
  std::optional<LRESULT> Hear(const Message& message) override;
  std::optional<LRESULT> HearNotice(const Message&) override { return std::nullopt; }

  bool IsDialog() const { return form_.OwnerWindow() || form_.IsModal(); }
  /// Captions of other elements name controls, too.
  void Rename(const Element& element);
  void NameControls();
  void AddControls(const Container& container, HWND parent);
  void Add(Control& control, HWND parent);
  void UpdateForm(Property property);
  void ShowGeometry();
  void ShowVisible();
  void ShowMenuBar();
  void LayOutParts();
  void FocusInside();
  void ShowDefault();
  void FollowUser();
  void Rescaled(int dpi, const RECT& suggested);
  void TellAll(Message message);
  std::optional<LRESULT> HearKey(const Message& message);
  void EndBoxes();
  void Compare(DifferenceList& differences) const;

  Form& form_;
  PeerServices& services_;
  std::shared_ptr<Window> window_;
  FormStacking stacking_;
  Scale scale_;
  FormMenus menus_;
  std::shared_ptr<ContentWindow> content_;
  std::unordered_map<const Element*, std::unique_ptr<ControlPeer>> controls_;
  HWND docked_ = nullptr;  // the status bar; null for none
  WindowGeometry geometry_;
  std::unique_ptr<ModalLock> lock_;
  bool placing_ = false;  // what the window tells of its place is an echo
};

}  // namespace lumenote
