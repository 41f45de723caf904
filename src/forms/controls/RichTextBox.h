// A box of rich text on a window.
#pragma once
#include <functional>
#include <memory>

#include "forms/Control.h"
#include "platform/RichTextSurface.h"

namespace lumenote {

/// A control around a surface that the backend makes. `Locked` keeps the user from editing; the
/// program still can.
class RichTextBox : public Control {
 public:
  RichTextBox(Container& container, std::string name, Rect place);
  ~RichTextBox() override;

  RichTextSurface& Surface() { return *surface_; }
  const RichTextSurface& Surface() const { return *surface_; }

  bool Locked() const { return locked_; }
  void Locked(bool on) { locked_ = on; }
  bool TakesFocus() const override { return true; }

  /// The content has changed, whoever changed it.
  std::function<void()> Change;

  void Describe(MemberTable& members) override;

 private:
  std::unique_ptr<RichTextSurface> surface_;
  bool locked_ = false;
};

}  // namespace lumenote
