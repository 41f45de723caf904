// Text dropped on a view.
#pragma once
#include <QDropEvent>

namespace lumenote {

class RichTextView;

/// Text dragged within the view is moved (with Ctrl copied), text from elsewhere is put in.
class ViewDrop {
 public:
  explicit ViewDrop(RichTextView& view) : view_(view) {}

  void Move(QDropEvent& event);
  void Leave();
  void Drop(QDropEvent& event);

 private:
  bool Accepts(const QDropEvent& event) const;
  bool IsOwn(const QDropEvent& event) const;
  void ScrollNearEdge(double y);

  RichTextView& view_;
};

}  // namespace lumenote
