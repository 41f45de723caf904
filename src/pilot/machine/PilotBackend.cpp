// Answers boxes, dismisses popups and waits as the script says.
#include "pilot/machine/PilotBackend.h"

#include <utility>

#include "forms/Menu.h"

namespace lumenote {
namespace {

/// Forwards to the real peer, except that popup menus close at once.
class PilotPeer final : public FormPeer {
 public:
  PilotPeer(std::unique_ptr<FormPeer> inner, std::optional<std::string>& popUp)
      : inner_(std::move(inner)), popUp_(popUp) {}

  void Update(Element& element, Property property) override { inner_->Update(element, property); }
  void Focus(Control& control) override { inner_->Focus(control); }
  void FocusMenuBar(bool on) override { inner_->FocusMenuBar(on); }
  void Activate() override { inner_->Activate(); }
  std::optional<Rect> SelectionIn(const RichTextBox& box) override {
    return inner_->SelectionIn(box);
  }
  void Add(Control& control) override { inner_->Add(control); }
  void Remove(Control& control) override { inner_->Remove(control); }
  void PopUp(Menu& menu, Point) override { popUp_ = menu.Name(); }
  std::vector<std::string> Differences() const override { return inner_->Differences(); }

 private:
  std::unique_ptr<FormPeer> inner_;
  std::optional<std::string>& popUp_;
};

bool HasButton(const MessageBox& box, MessageBox::Answer answer) {
  const bool ok = answer == MessageBox::Answer::Ok;
  return ok == (box.buttons == MessageBox::Buttons::Ok);
}

}  // namespace

std::unique_ptr<FormPeer> PilotBackend::Realise(Form& form) {
  return std::make_unique<PilotPeer>(inner_.Realise(form), popUp_);
}

std::unique_ptr<RichTextSurface> PilotBackend::MakeSurface(RichTextBox& box, Clipboard& clipboard,
                                                           Files& files) {
  return inner_.MakeSurface(box, clipboard, files);
}

MessageBox::Answer PilotBackend::Show(const MessageBox& box, Form*) {
  MessageBox::Answer answer = DefaultAnswer(box);
  if (!answers_.empty() && HasButton(box, answers_.front())) {
    answer = answers_.front();
    answers_.pop_front();
  }
  boxes_.push_back({box, answer});
  return answer;
}

std::optional<FontChoice> PilotBackend::ChooseFont(const FontChoice&, Form*) {
  std::optional<FontChoice> answer = std::move(fontAnswer_);
  fontAnswer_.reset();
  return answer;
}

void PilotBackend::RunUntil(const std::function<bool()>& done) {
  while (!done() && (lines_->RunLine() || lines_->CloseTop())) {
  }
}

void PilotBackend::EventFailed(const RuntimeError& error, Form* form) {
  if (trap_ && !trap_->caught_) trap_->caught_ = error;
  Backend::EventFailed(error, form);
}

std::vector<ShownBox> PilotBackend::TakeBoxes() { return std::exchange(boxes_, {}); }

std::optional<std::string> PilotBackend::TakePopUp() { return std::exchange(popUp_, {}); }

PilotBackend::FailureTrap::FailureTrap(PilotBackend& backend)
    : backend_(backend), outer_(std::exchange(backend.trap_, this)) {}

PilotBackend::FailureTrap::~FailureTrap() { backend_.trap_ = outer_; }

}  // namespace lumenote
