// Translates between Qt's input methods and a view.
#pragma once
#include <QInputMethodEvent>
#include <QTextLayout>
#include <QVariant>

#include "view/acts/ViewInput.h"

namespace lumenote {

class RichTextView;

ViewInput::Message MessageOf(const QInputMethodEvent& event);
/// Formats of the composed text, relative to its start.
QList<QTextLayout::FormatRange> FormatsOf(const QInputMethodEvent& event);
QVariant AnswerInput(RichTextView& view, Qt::InputMethodQuery query);

}  // namespace lumenote
