// The selected text of a view as other programs and widgets get it.
#pragma once
#include <QMimeData>
#include <QPointer>
#include <optional>

#include "view/acts/TextDrag.h"

namespace lumenote {

class RichTextView;

/// Text and RTF are written when they are asked for, however large: either of what is selected
/// then, or of what was selected when this was made.
class SelectionMime : public QMimeData {
 public:
  enum class Of { Then, Now };
  SelectionMime(RichTextView& view, Of when);

  /// The view that the text can be moved from: null when it has gone, or has been edited since.
  RichTextView* Source() const;

  QStringList formats() const override;
  bool hasFormat(const QString& format) const override { return formats().contains(format); }

 protected:
  QVariant retrieveData(const QString& format, QMetaType type) const override;

 private:
  std::optional<TextExcerpt> Content() const;

  QPointer<RichTextView> view_;
  std::optional<TextExcerpt> taken_;
  int edits_;  // that the view had seen
};

}  // namespace lumenote
