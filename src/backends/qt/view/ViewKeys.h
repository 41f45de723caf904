// What the keys do in a view.
#pragma once
#include <QKeyEvent>

namespace lumenote {

class RichTextView;

/// Text and editing keys go to the surface; a few are the view's own; the rest is left to the
/// window.
class ViewKeys {
 public:
  explicit ViewKeys(RichTextView& view) : view_(view) {}

  /// Whether the key did something; the view may be detached then.
  bool Press(const QKeyEvent& event);

 private:
  bool Edit(const QKeyEvent& event);
  bool Zoom(const QKeyEvent& event);
  bool OpenMenu(const QKeyEvent& event);

  RichTextView& view_;
};

}  // namespace lumenote
