#include "backends/qt/QtBackend.h"

#include <QCoreApplication>
#include <QEventLoop>

#include "backends/qt/FontDialog.h"
#include "backends/qt/MessageBoxes.h"
#include "backends/qt/Units.h"
#include "backends/qt/WindowOrder.h"
#include "forms/RichTextBox.h"
#include "surface/DocumentSurface.h"

namespace lumenote {

namespace {
constexpr int kActivationTime = 500;  // milliseconds
}

std::unique_ptr<FormPeer> QtBackend::Realise(Form& form) {
  return std::make_unique<QtFormPeer>(form, static_cast<PeerServices&>(*this));
}

std::unique_ptr<RichTextSurface> QtBackend::MakeSurface(RichTextBox& box, Clipboard& clipboard,
                                                        Files& files) {
  auto& layout = layouts_[&box] = std::make_unique<SurfaceLayout>();
  layout->layouter.Width(ToPixels(box.Place().width));
  return std::make_unique<DocumentSurface>(clipboard, files, layout->breaker);
}

MessageBox::Answer QtBackend::Show(const MessageBox& box, Form* over) {
  return ShowMessageBox(box, over ? widgets_.Find<QWidget>(*over) : nullptr);
}

std::optional<FontChoice> QtBackend::ChooseFont(const FontChoice& shown, Form* over) {
  return ShowFontDialog(shown, over ? widgets_.Find<QWidget>(*over) : nullptr);
}

bool QtBackend::IsTopmost(const Form& form) {
  const auto* window = widgets_.Find<QWidget>(form);
  return (window ? IsTopmostOnDesktop(*window) : std::nullopt).value_or(Backend::IsTopmost(form));
}

void QtBackend::RunUntil(const std::function<bool()>& done) {
  QEventLoop loop;
  while (!done()) loop.processEvents(QEventLoop::WaitForMoreEvents);
}

// --- activation

// What the desktop still has to say about windows that were activated before is no news: it would
// make them active again for a moment.
void QtBackend::Activating(Form& form) {
  awaited_ = &form;
  awaiting_.setRemainingTime(kActivationTime);
}

void QtBackend::NativelyActive(Form& form) {
  if (awaited_ && awaited_ != &form && !awaiting_.hasExpired()) return;
  awaited_ = nullptr;
  form.UserActivate();
}

void QtBackend::Gone(Form& form) {
  if (awaited_ == &form) awaited_ = nullptr;
}

}  // namespace lumenote
