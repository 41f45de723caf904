// The selected text of a view as MIME data.
#pragma once
#include <QMimeData>
#include <QPointer>
#include <optional>

#include "view/acts/TextDrag.h"

namespace lumenote {

class RichTextView;

/// Text, RTF and HTML are generated on request, whatever their size: of the selection at that time,
/// or of the selection when this was created.
class SelectionMime : public QMimeData {
 public:
  enum class Of { Then, Now };
  SelectionMime(RichTextView& view, Of when);

  /// The view from which the text can be moved; null if it is gone or was edited since.
  RichTextView* Source() const;

  QStringList formats() const override;
  bool hasFormat(const QString& format) const override { return formats().contains(format); }

 protected:
  QVariant retrieveData(const QString& format, QMetaType type) const override;

 private:
  std::optional<TextExcerpt> Content() const;

  QPointer<RichTextView> view_;
  std::optional<TextExcerpt> taken_;
  int edits_;  // edit count of the view at creation
};

}  // namespace lumenote
