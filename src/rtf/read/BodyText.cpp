// Holds breaks and cell ends back until their meaning is known.
#include "rtf/read/BodyText.h"

namespace lumenote {

void BodyText::Release() {
  if (break_) builder_.AppendBreak(break_->character, break_->paragraph);
  if (cell_) builder_.Append(u"\t", *cell_);
  break_.reset();
  cell_.reset();
  holds_ = false;
  started_ = true;
}

void BodyText::Break(const FinalMark& formats) {
  Release();
  break_ = formats;
  holds_ = true;
  started_ = false;
}

void BodyText::Cell(CharId format) {
  if (cell_) Release();
  cell_ = format;
  holds_ = true;
}

void BodyText::Row(const FinalMark& formats) {
  cell_.reset();
  Break(formats);
}

Fragment BodyText::Finish(RtfTarget target, const FinalMark& unfinished) {
  const FinalMark mark = break_.value_or(unfinished);
  cell_.reset();
  if (target == RtfTarget::Selection) Release();
  Fragment fragment = builder_.Finish();
  if (target == RtfTarget::Document) fragment.mark = mark;
  return fragment;
}

}  // namespace lumenote
