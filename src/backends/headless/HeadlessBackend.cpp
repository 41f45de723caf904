#include "backends/headless/HeadlessBackend.h"

#include "base/RuntimeError.h"
#include "base/Twips.h"
#include "forms/Form.h"
#include "forms/controls/edits/RichTextBox.h"
#include "surface/DocumentSurface.h"

namespace lumenote {
std::unique_ptr<FormPeer> HeadlessBackend::Realise(Form& form) {
  return std::make_unique<HeadlessPeer>(form, boxes_);
}

std::unique_ptr<RichTextSurface> HeadlessBackend::MakeSurface(RichTextBox& box,
                                                              Clipboard& clipboard, Files& files) {
  auto& made = boxes_[&box] = std::make_unique<HeadlessBox>();
  made->layouter.Width(box.Width() / kTwipsPerPixel);
  return std::make_unique<DocumentSurface>(clipboard, files, made->breaker);
}

std::shared_ptr<HeadlessView> HeadlessBackend::ViewOf(const Control& box) const {
  const auto found = boxes_.find(&box);
  return found == boxes_.end() ? nullptr : found->second->view;
}

MessageBox::Answer HeadlessBackend::Show(const MessageBox& box, Form*) {
  return DefaultAnswer(box);
}

void HeadlessBackend::RunUntil(const std::function<bool()>& done) {
  if (!done())
    throw RuntimeError(ErrorNumber::InvalidArgument,
                       u"Sans système de fenêtres, cette attente ne finirait jamais");
}

}  // namespace lumenote
