// The selected text of a view, handed over when it is asked for.
#pragma once
#include <QMimeData>
#include <QPointer>

#include "backends/qt/RichTextView.h"

namespace lumenote {

/// Costs nothing until another program or widget wants the content, however large.
class SelectionMime : public QMimeData {
 public:
  explicit SelectionMime(RichTextView& view) : view_(&view) {}

  /// The view whose selection it is; null when that has gone.
  RichTextView* View() const { return view_; }

  QStringList formats() const override;
  bool hasFormat(const QString& format) const override { return formats().contains(format); }

 protected:
  QVariant retrieveData(const QString& format, QMetaType type) const override;

 private:
  QPointer<RichTextView> view_;
};

}  // namespace lumenote
