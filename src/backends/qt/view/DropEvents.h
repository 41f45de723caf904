// Forwards Qt's drag-and-drop events to a view.
#pragma once
#include <QDropEvent>
#include <optional>

#include "view/acts/ViewDrop.h"

namespace lumenote {

class RichTextView;

class DropEvents {
 public:
  explicit DropEvents(RichTextView& view);

  ViewDrop& Rules() { return rules_; }
  void Move(QDropEvent& event);
  void Drop(QDropEvent& event);

 private:
  Qt::DropAction ActionOf(const QDropEvent& event) const;
  bool Accepts(const QDropEvent& event) const;
  /// What is dragged from the view itself; empty for what comes from elsewhere.
  std::optional<TextDrag> Own(const QDropEvent& event) const;

  RichTextView& view_;
  ViewDrop rules_;
};

}  // namespace lumenote
