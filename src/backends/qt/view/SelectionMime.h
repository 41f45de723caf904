// The selected text of a view as MIME data.
#pragma once
#include <QMimeData>
#include <QPointer>
#include <optional>

#include "view/acts/TextDrag.h"

namespace lumenote {

class RichTextView;

/// Text, RTF and HTML are generated on request, whatever their size: of the selection at that time,
/// or of what is dragged.
class SelectionMime : public QMimeData {
 public:
  explicit SelectionMime(RichTextView& view);
  SelectionMime(RichTextView& view, const TextDrag& drag);

  /// What is dragged from that view; empty if it is another's.
  std::optional<TextDrag> DragFrom(const RichTextView& view) const;

  QStringList formats() const override;
  bool hasFormat(const QString& format) const override { return formats().contains(format); }

 protected:
  QVariant retrieveData(const QString& format, QMetaType type) const override;

 private:
  std::optional<TextExcerpt> Content() const;

  QPointer<RichTextView> view_;
  std::optional<TextDrag> drag_;
};

}  // namespace lumenote
