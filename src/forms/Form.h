// A window without a toolkit: its state, its controls, its life.
#pragma once
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "base/RuntimeError.h"
#include "forms/Backend.h"
#include "forms/Control.h"
#include "forms/WindowList.h"

namespace lumenote {

class Button;
class Timer;

/// A window class derives from it and has its controls as members. Made unloaded; `Load` realises
/// it, `Unload` takes it down and asks its keeper to destroy it, which waits until the form's own
/// events and those of the windows it holds have returned. State lives here; the peer only mirrors
/// it.
class Form : public Element, public Container {
 public:
  /// Places in twips of the screen, outer size with nominal decorations of 8 by 27 pixels (15 twips
  /// each).
  Form(WindowList& windows, std::string name, Rect bounds, std::u16string caption);
  ~Form() override;

  Form& ContainingForm() override { return *this; }
  WindowList& Windows() const { return windows_; }
  Platform& Machine() const { return windows_.Machine(); }

  const std::u16string& Caption() const { return caption_; }
  void Caption(std::u16string_view text);
  /// 0xBBGGRR, or -1 for the desktop's own colour.
  std::int32_t BackColor() const { return backColor_; }
  void BackColor(std::int32_t colour);

  const Rect& Bounds() const { return bounds_; }
  float Left() const { return bounds_.left; }
  void Left(float twips);
  float Top() const { return bounds_.top; }
  void Top(float twips);
  /// Changing width or height raises Resize. Negative sizes raise InvalidPropertyValue (380).
  float Width() const { return bounds_.width; }
  void Width(float twips);
  float Height() const { return bounds_.height; }
  void Height(float twips);

  /// The user cannot resize the window: its controls have fixed places. Written before it is
  /// loaded.
  void FixedSize(bool on) { fixedSize_ = on; }
  bool IsFixedSize() const { return fixedSize_; }
  /// Moves it over the middle of `other`, but not beyond the screen's upper left corner.
  void CentreOver(const Rect& other);

  bool Visible() const { return visible_; }
  /// Above all other windows; set on the native window in place.
  bool OnTop() const { return onTop_; }
  void OnTop(bool on);

  /// Raises Load once; the window exists, hidden.
  void Load();
  bool IsLoaded() const { return loaded_; }
  /// Its closing has begun and a question of it may still stand.
  bool IsUnloading() const { return unloading_; }
  /// Taken down; it is still there because an event of it has not returned yet.
  bool IsUnloaded() const { return unloaded_; }
  /// Loads when needed, shows and activates. An owned window stays above `owner`.
  void Show(Form* owner = nullptr);
  /// Brings a visible window that is not the active one to the front; one that a modal window locks
  /// stays where it is.
  void Activate();
  /// Shows and returns when the window has been unloaded; the other windows are locked meanwhile.
  void ShowModal();
  bool IsModal() const { return modal_; }
  Form* OwnerWindow() const { return ownerWindow_; }
  /// A window of the host's own above which this one stays, as the window system numbers it; 0 for
  /// none. Written before the form is shown.
  std::uintptr_t HostWindow() const { return hostWindow_; }
  void HostWindow(std::uintptr_t window) { hostWindow_ = window; }
  /// Raises QueryUnload, which may refuse, and Unload at once, then leaves the list of windows. A
  /// form that is not loaded, or is unloading already, is left alone. False when the window stays.
  bool Unload();
  /// Types what is being composed with an input method. What unloads or keeps the form, or opens a
  /// menu, does so first: what the user sees is what counts.
  void CompleteComposition();
  /// Keeps what the window holds for the next start, since the program may end at any moment.
  void Keep();
  /// Takes the window down whatever it says to that, once what it holds is kept. One that is
  /// unloading stays until that is decided.
  void Abandon();
  /// The window system has destroyed the native window: the form is abandoned, at the latest when
  /// its unloading has been decided.
  void Lose();

  /// What Return and Escape click, where the control with the keyboard has no use for them; null
  /// for none. A button that is disabled or hidden is not clicked.
  void DefaultButton(Button* button) { defaultButton_ = button; }
  Button* DefaultButton() const { return defaultButton_; }
  void CancelButton(Button* button) { cancelButton_ = button; }
  /// Escape closes the window, which has no cancel button.
  void EscapeCloses(bool on) { escapeCloses_ = on; }

  Control* ActiveControl() const { return activeControl_; }
  /// The control that has the keyboard while the window is active, as the peer reports it.
  void ActiveControl(Control* control) { activeControl_ = control; }

  /// Runs an event: an error or a failed allocation that reaches its edge is shown, the form
  /// outlives it.
  void Raise(const std::function<void()>& event);

  /// Shows a box over this window and returns the answer.
  MessageBox::Answer Ask(const MessageBox& box);
  /// Pops the menu up at a point of `control`, after its opening event.
  void PopUp(Menu& menu, Control& control, Point at);

  /// An element by name; null when there is none. An index in parentheses belongs to the name.
  Element* Find(std::string_view name);
  /// Every part of the window, in the order of declaration.
  const std::vector<Element*>& Elements() const { return elements_; }
  const std::vector<Menu*>& Menus() const { return menus_; }
  /// Whether any top-level menu is visible: then a menu bar of 300 twips stands above the content.
  bool HasMenuBar() const;

  /// The user's acts on the window, reported by the peer.
  void UserResize(float width, float height);
  void UserMove(float left, float top);
  /// The window has become the active one of this control; raises Activate if it was not.
  void UserActivate();
  void UserClose() { Unload(); }
  /// The pointer moves over the window where no control is.
  void UserMouseMove(const MouseEvent& event);
  /// Whether the window uses such a key wherever the keyboard is, so that no shortcut of the host's
  /// should take it.
  bool HasShortcut(const KeyStroke& key) const;
  /// A key that its control had no use for; whether the window had.
  bool UserKey(const KeyStroke& key);
  /// F10, or Alt pressed and released alone: the menu bar gets the keyboard, or gives it back.
  /// Whether the window has a bar.
  bool UserMenuKey();
  /// The menu bar has got the keyboard, or lost it. While a list of the bar is open, it has it.
  void UserMenuBarFocus(bool has);
  /// A mouse button goes down outside the menu bar, before the control there is told.
  void UserPress();
  /// No mouse button is held any more, and the control has been told.
  void UserRelease();
  /// Whether a release is due.
  bool IsPressed() const { return pressed_; }

  /// Gives the keyboard back to the controls, if the menu bar has it. The window hears of that when
  /// no mouse button is held, since what it does then may move the controls.
  void LeaveMenuBar();
  /// Whether the key means something to the menu bar, which has the keyboard.
  bool IsForMenuBar(const KeyStroke& key) const;

  /// Called when the form has unloaded: its window has gone, and the next one is active.
  std::function<void()> Unloaded;
  /// Called when the form may be destroyed; set by the keeper.
  std::function<void()> Released;
  /// The form that has this one as a part and stays as long as this one is in use; null for none.
  void Holder(Form* form) { holder_ = form; }

  /// While one stands, the form is in use and is not destroyed, nor are its holders.
  class InUse {
   public:
    explicit InUse(Form& form) : form_(form) { form_.Enter(); }
    ~InUse() { form_.Leave(); }
    InUse(const InUse&) = delete;
    InUse& operator=(const InUse&) = delete;

   private:
    Form& form_;
  };

  FormPeer* Peer() const { return peer_.get(); }
  void Describe(MemberTable& members) override;

 protected:
  /// Gives the window a shortcut, named as `ParseKey` names it.
  void AddShortcut(std::u16string_view key, std::function<void()> act);

  /// Life events, overridden by the windows.
  virtual void Form_Load() {}
  virtual void Form_Activate() {}
  virtual void Form_Resize() {}
  virtual void Form_MouseMove(const MouseEvent&) {}
  /// A key has called for the menu bar, which gets the keyboard if it is shown then; and has left.
  virtual void Form_EnterMenuBar() {}
  virtual void Form_LeaveMenuBar() {}
  /// Whether the window may go.
  virtual bool Form_QueryUnload() { return true; }
  virtual void Form_Unload() {}
  virtual void Form_Keep() {}

 private:
  struct Shortcut {
    KeyStroke key;
    std::function<void()> act;
  };

  friend class Element;
  friend class Menu;
  friend class Timer;

  void Enter();
  void Leave();
  void Bounds(Rect bounds);
  void TakeDown();
  void TellMenuBarLeft();
  /// Shows an error that has reached an event's edge; without one, that memory was wanting.
  void ShowFailure(const RuntimeError* error);
  void RearmTimers();
  /// Gives the keyboard to the first control that takes it, unless one has it already.
  void FocusFirst();

  WindowList& windows_;
  std::unique_ptr<FormPeer> peer_;
  std::vector<Element*> elements_;
  std::vector<Menu*> menus_;
  std::vector<Timer*> timers_;
  std::vector<Shortcut> shortcuts_;
  std::u16string caption_;
  Rect bounds_;
  std::int32_t backColor_ = -1;
  Form* ownerWindow_ = nullptr;
  std::uintptr_t hostWindow_ = 0;
  Form* holder_ = nullptr;
  Control* activeControl_ = nullptr;
  Button* defaultButton_ = nullptr;
  Button* cancelButton_ = nullptr;
  int depth_ = 0;
  bool visible_ = false;
  bool onTop_ = false;
  bool loaded_ = false;
  bool unloading_ = false;
  bool unloaded_ = false;
  bool lost_ = false;  // the native window has gone
  bool modal_ = false;
  bool escapeCloses_ = false;
  bool fixedSize_ = false;
  bool menuBarFocused_ = false;
  bool menuBarLeft_ = false;  // the window has not heard of it yet
  bool pressed_ = false;
};

}  // namespace lumenote
