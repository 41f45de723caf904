// What an input method says to a view, and asks of it.
#pragma once
#include <QInputMethodEvent>
#include <QTextLayout>
#include <QVariant>

#include "view/acts/ViewInput.h"

namespace lumenote {

class RichTextView;

ViewInput::Message MessageOf(const QInputMethodEvent& event);
/// How the text being composed is to look, from its start.
QList<QTextLayout::FormatRange> FormatsOf(const QInputMethodEvent& event);
QVariant AnswerInput(RichTextView& view, Qt::InputMethodQuery query);

}  // namespace lumenote
