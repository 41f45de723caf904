#include "backends/qt/QtBackend.h"

#include <QEventLoop>
#include <QGuiApplication>
#include <algorithm>
#include <utility>

#include "backends/qt/toolkit/QtText.h"
#include "backends/qt/toolkit/Units.h"
#include "backends/qt/windows/FontDialog.h"
#include "backends/qt/windows/MessageBoxes.h"
#include "backends/qt/windows/PrintDialog.h"
#include "backends/qt/x11/WindowOrder.h"
#include "forms/controls/edits/RichTextBox.h"
#include "surface/DocumentSurface.h"

namespace lumenote {

namespace {
constexpr int kActivationTime = 500;  // milliseconds
}

std::unique_ptr<FormPeer> QtBackend::Realise(Form& form) {
  auto peer = std::make_unique<QtFormPeer>(form, static_cast<PeerServices&>(*this));
  forms_.push_back(&form);
  return peer;
}

void QtBackend::CloseForms() {
  const std::vector<Form*> open = forms_;
  for (auto form = open.rbegin(); form != open.rend(); ++form)
    if (std::find(forms_.begin(), forms_.end(), *form) != forms_.end() && !(*form)->Unload())
      (*form)->Abandon();
}

std::unique_ptr<RichTextSurface> QtBackend::MakeSurface(RichTextBox& box, Clipboard& clipboard,
                                                        Files& files) {
  auto& layout = layouts_[&box] = std::make_unique<SurfaceLayout>();
  layout->layouter.Width(ToPixels(box.Bounds().width));
  return std::make_unique<DocumentSurface>(clipboard, files, layout->breaker);
}

Speller* QtBackend::SpellerOf(const RichTextBox& box) {
  return box.ChecksSpelling() ? speller_ : nullptr;
}

// A modal parent elsewhere would lock windows above another one.
QWidget* QtBackend::DialogParent(const Form* over) const {
  if (!over) return nullptr;
  const Form* modal = over->Windows().TopModal();
  return widgets_.Find<QWidget>(modal ? *modal : *over);
}

MessageBox::Answer QtBackend::Show(const MessageBox& box, Form* over) {
  return ShowMessageBox(box, DialogParent(over));
}

std::optional<FontChoice> QtBackend::ChooseFont(const FontChoice& shown, Form* over) {
  return ShowFontDialog(shown, DialogParent(over));
}

void QtBackend::Print(RichTextBox& note, std::u16string_view title, Form& over) {
  const auto& surface = dynamic_cast<const DocumentSurface&>(note.Surface());
  if (PrintByDialog(surface, ToQString(title), DialogParent(&over))) return;
  Show({.text = u"Impression impossible", .icon = MessageBox::Icon::Critical}, &over);
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

QtBackend::QtBackend() {
  awaiting_.setSingleShot(true);
  awaiting_.setInterval(kActivationTime);
  QObject::connect(&awaiting_, &QTimer::timeout, [this] { EndAwaiting(); });
  QObject::connect(qGuiApp, &QGuiApplication::commitDataRequest, &awaiting_,
                   [this] { SessionEnds(); });
}

// Pending activation events for windows activated earlier are stale: they would make those windows
// active again for a moment.
void QtBackend::Activating(Form& form) {
  awaited_ = &form;
  activatedMeanwhile_ = nullptr;
  awaiting_.start();
}

void QtBackend::NativelyActive(Form& form) {
  if (awaited_ && awaited_ != &form) {
    activatedMeanwhile_ = &form;
    return;
  }
  awaited_ = activatedMeanwhile_ = nullptr;
  form.UserActivate();
}

// The events were not stale: the desktop has settled on another window than the awaited one.
void QtBackend::EndAwaiting() {
  awaited_ = nullptr;
  Form* form = std::exchange(activatedMeanwhile_, nullptr);
  const auto* window = form ? widgets_.Find<QWidget>(*form) : nullptr;
  if (window && window->isActiveWindow()) form->UserActivate();
}

// A window in use is the active one, whatever pending events say.
void QtBackend::Used(Form& form) {
  sessionEnds_ = false;  // it goes on after all
  if (form.Windows().Active() == &form) return;
  Activating(form);
  form.UserActivate();
}

// --- the session's end

// The windows are asked to close a moment later, unless the user calls it off.
void QtBackend::SessionEnds() {
  sessionEnds_ = true;
  for (Form* form : forms_) form->Keep();
}

// A note that can be kept nowhere holds its window, but not the system.
void QtBackend::Refused(Form& form) {
  if (sessionEnds_) form.Abandon();
}

void QtBackend::Gone(Form& form) {
  std::erase(forms_, &form);
  if (awaited_ == &form) awaited_ = nullptr;
  if (activatedMeanwhile_ == &form) activatedMeanwhile_ = nullptr;
}

}  // namespace lumenote
