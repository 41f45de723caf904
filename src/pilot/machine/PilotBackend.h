// A backend under a script: the user at it is the script's next line.
#pragma once
#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "forms/Backend.h"
#include "forms/ManualClock.h"

namespace lumenote {

/// What a wait needs of the script.
class ScriptLines {
 public:
  virtual ~ScriptLines() = default;
  /// Carries out the next line; false when the script is over.
  virtual bool RunLine() = 0;
  /// Closes the topmost window that lets itself be closed; false when there is none.
  virtual bool CloseTop() = 0;
};

/// A message box that was shown, and the answer it got.
struct ShownBox {
  MessageBox box;
  MessageBox::Answer answer;
};

/// Windows and surfaces are those of the backend behind it; boxes are answered by the script, popup
/// menus close with nothing chosen, timers tick as the script says, and a wait carries out the
/// lines that follow. Outlives the windows.
class PilotBackend final : public Backend {
 public:
  explicit PilotBackend(Backend& inner) : inner_(inner) {}

  /// Set before anything waits; outlives the waits.
  void Script(ScriptLines& lines) { lines_ = &lines; }

  std::unique_ptr<FormPeer> Realise(Form& form) override;
  std::unique_ptr<RichTextSurface> MakeSurface(RichTextBox& box, Clipboard& clipboard,
                                               Files& files) override;
  MessageBox::Answer Show(const MessageBox& box, Form* over) override;
  std::optional<FontChoice> ChooseFont(const FontChoice& shown, Form* over) override;
  /// Ends, too, when the script is over and nothing is left that could be closed.
  void RunUntil(const std::function<bool()>& done) override;
  bool IsTopmost(const Form& form) override { return inner_.IsTopmost(form); }
  void Arm(Timer& timer) override { clock_.Arm(timer); }
  void Disarm(Timer& timer) override { clock_.Disarm(timer); }
  void EventFailed(const RuntimeError& error, Form* form) override;

  /// Queues an answer. The next box that has such a button takes it; a box that finds none at the
  /// head of the queue gets its default button.
  void Answer(MessageBox::Answer answer) { answers_.push_back(answer); }
  bool HasAnswers() const { return !answers_.empty(); }
  /// What the next font dialog answers; without an answer it is cancelled.
  void FontAnswer(std::optional<FontChoice> choice) { fontAnswer_ = std::move(choice); }
  /// The boxes shown since the last call.
  std::vector<ShownBox> TakeBoxes();
  /// Name of the menu popped up last since the last call.
  std::optional<std::string> TakePopUp();
  void Tick(std::int64_t milliseconds) { clock_.Advance(milliseconds); }

  /// Catches the first error that reaches an event's edge while it stands; they nest.
  class FailureTrap {
   public:
    explicit FailureTrap(PilotBackend& backend);
    ~FailureTrap();
    FailureTrap(const FailureTrap&) = delete;
    FailureTrap& operator=(const FailureTrap&) = delete;

    const std::optional<RuntimeError>& Caught() const { return caught_; }

   private:
    friend class PilotBackend;
    PilotBackend& backend_;
    FailureTrap* outer_;
    std::optional<RuntimeError> caught_;
  };

 private:
  Backend& inner_;
  ScriptLines* lines_ = nullptr;
  ManualClock clock_;
  std::deque<MessageBox::Answer> answers_;
  std::vector<ShownBox> boxes_;
  std::optional<std::string> popUp_;
  std::optional<FontChoice> fontAnswer_;
  FailureTrap* trap_ = nullptr;
};

}  // namespace lumenote
