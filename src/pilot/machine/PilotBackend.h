// A backend under script control: the script's next line acts as the user.
#pragma once
#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "forms/Backend.h"
#include "forms/ManualClock.h"

namespace lumenote {

/// What a wait needs from the script.
class ScriptLines {
 public:
  virtual ~ScriptLines() = default;
  /// Executes the next line; false at the end of the script.
  virtual bool RunLine() = 0;
  /// Closes the topmost window that can be closed; false if there is none.
  virtual bool CloseTop() = 0;
};

/// A message box that was shown, with its answer.
struct ShownBox {
  MessageBox box;
  MessageBox::Answer answer{};
};

/// Windows and surfaces come from the wrapped backend. The script answers boxes; popup menus close
/// with nothing chosen; timers tick as the script says; a wait executes the lines that follow. Must
/// outlive the windows.
class PilotBackend final : public Backend {
 public:
  explicit PilotBackend(Backend& inner) : inner_(inner) {}

  /// Must be set before any wait, and outlive it.
  void Script(ScriptLines& lines) { lines_ = &lines; }

  std::unique_ptr<FormPeer> Realise(Form& form) override;
  std::unique_ptr<RichTextSurface> MakeSurface(RichTextBox& box, Clipboard& clipboard,
                                               Files& files) override;
  MessageBox::Answer Show(const MessageBox& box, Form* over) override;
  std::optional<FontChoice> ChooseFont(const FontChoice& shown, Form* over) override;
  /// Also ends when the script is over and no window is left to close.
  void RunUntil(const std::function<bool()>& done) override;
  bool IsTopmost(const Form& form) override { return inner_.IsTopmost(form); }
  void Arm(Timer& timer) override { clock_.Arm(timer); }
  void Disarm(Timer& timer) override { clock_.Disarm(timer); }
  void EventFailed(const RuntimeError& error, Form* form) override;

  /// Queues an answer. The next box takes the first queued answer if it has such a button, else its
  /// default button.
  void Answer(MessageBox::Answer answer) { answers_.push_back(answer); }
  bool HasAnswers() const { return !answers_.empty(); }
  /// Sets the next font dialog's answer; without one it is cancelled.
  void FontAnswer(std::optional<FontChoice> choice) { fontAnswer_ = std::move(choice); }
  /// Returns the boxes shown since the last call.
  std::vector<ShownBox> TakeBoxes();
  /// Returns the name of the last menu popped up since the last call.
  std::optional<std::string> TakePopUp();
  void Tick(std::int64_t milliseconds) { clock_.Advance(milliseconds); }

  /// Catches the first error that reaches an event's edge during its lifetime; traps nest.
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
