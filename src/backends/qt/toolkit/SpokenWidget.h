// Widgets of our own as assistive programs see them.
#pragma once
#include <QAccessible>
#include <QWidget>

namespace lumenote {

/// Says what it is; its name is the widget's accessible name, or a window's title.
class SpokenWidget : public QWidget {
 public:
  explicit SpokenWidget(QWidget* parent, Qt::WindowFlags flags = {});

  virtual QAccessible::Role Role() const = 0;
};

}  // namespace lumenote
