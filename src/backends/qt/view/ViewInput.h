// Text composed with an input method.
#pragma once
#include <QInputMethodEvent>
#include <QVariant>

namespace lumenote {

class RichTextView;

class ViewInput {
 public:
  explicit ViewInput(RichTextView& view) : view_(view) {}

  void Compose(const QInputMethodEvent& event);
  QVariant Query(Qt::InputMethodQuery query) const;

 private:
  void Replace(const QInputMethodEvent& event);
  void ShowPreedit(const QInputMethodEvent& event);

  RichTextView& view_;
};

}  // namespace lumenote
