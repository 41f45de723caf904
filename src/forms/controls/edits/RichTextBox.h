// The rich-text control of a window.
#pragma once
#include <functional>
#include <memory>
#include <string>

#include "forms/Control.h"
#include "platform/RichTextSurface.h"

namespace lumenote {

/// Wraps a surface that the backend creates. `Locked` blocks edits by the user, not by the program.
class RichTextBox : public Control {
 public:
  RichTextBox(Container& container, std::string name, Rect bounds);
  ~RichTextBox() override;

  RichTextSurface& Surface() { return *surface_; }
  const RichTextSurface& Surface() const { return *surface_; }

  bool Locked() const { return locked_; }
  void Locked(bool on) { locked_ = on; }
  /// Tab goes to the next control instead of being typed.
  bool TabLeaves() const { return tabLeaves_; }
  void TabLeaves(bool on) { tabLeaves_ = on; }
  bool TakesFocus() const override { return true; }
  void CompleteComposition() override { surface_->CompleteComposition(); }

  /// The user follows a link; targets that are none to open are ignored.
  void UserOpenLink(std::u16string_view address);

  /// The content has changed, whatever changed it.
  std::function<void()> Change;

  /// Whether misspelt words are marked, if the backend can. To be set before the window is shown.
  bool ChecksSpelling() const { return checksSpelling_; }
  void ChecksSpelling(bool on) { checksSpelling_ = on; }
  /// Required then. The user has mended a word and wants the correction to be kept.
  std::function<void(const std::u16string& wrong, const std::u16string& right)> Learn;

  void Describe(MemberTable& members) override;

 private:
  std::unique_ptr<RichTextSurface> surface_;
  bool locked_ = false;
  bool checksSpelling_ = false;
  bool tabLeaves_ = false;
};

}  // namespace lumenote
