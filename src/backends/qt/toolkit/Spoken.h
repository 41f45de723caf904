// Widgets of our own as assistive programs see them.
#pragma once
#include <QAccessibleWidget>
#include <QWidget>

namespace lumenote {

/// A base beside a widget's own. What assistive programs call it is the widget's accessible name,
/// or a window's title.
class Spoken {
 public:
  Spoken();

  virtual QAccessible::Role Role() const = 0;
  /// The widget that labels this one; null for none.
  virtual QWidget* LabelledBy() const { return nullptr; }
  /// The widget that this one labels; null for none.
  virtual QWidget* LabelFor() const { return nullptr; }
  /// Assistive programs own what it returns. `widget` is this one.
  virtual QAccessibleInterface* MakeInterface(QWidget& widget);

 protected:
  ~Spoken() = default;
};

/// The interface of a widget that is nothing but `Spoken`.
class AccessibleWidget : public QAccessibleWidget {
 public:
  AccessibleWidget(QWidget& widget, const Spoken& spoken)
      : QAccessibleWidget(&widget), spoken_(spoken) {}

  QAccessible::Role role() const override { return spoken_.Role(); }
  QVector<QPair<QAccessibleInterface*, QAccessible::Relation>> relations(
      QAccessible::Relation match) const override;

 private:
  const Spoken& spoken_;
};

class SpokenWidget : public QWidget, public Spoken {
 public:
  using QWidget::QWidget;
};

}  // namespace lumenote
