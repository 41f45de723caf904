// Editing the note in an external program: out to a work file, and back when the program has ended.
#pragma once
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "extapps/ProgramTable.h"
#include "extapps/WorkCopies.h"
#include "platform/Processes.h"
#include "session/EditorWindow.h"

namespace lumenote {

class Files;

/// What a round trip needs of the editor beyond `EditorWindow`.
class RoundTripClient {
 public:
  virtual ~RoundTripClient() = default;
  /// Switches the timer that calls `TimerWpd_Timer` every 20 ms.
  virtual void Watch(bool on) = 0;
  /// Writes the note to the document path, as a save does. Returns whether that succeeded.
  virtual bool WriteNote() = 0;
  /// Reloads the document path into the surface. Reports a failure to the user.
  virtual void Reload() = 0;
  /// Keeps the surface instead, as an unsaved note in the format of the document path.
  virtual void GoOnUnsaved() = 0;
  /// Makes a rescue copy of the note in the surface, since its file has changed, and tells the
  /// user. False if none could be made.
  virtual bool KeepNote() = 0;
  /// Makes a rescue copy of a file and returns its path; empty if none could be made.
  virtual std::optional<std::u16string> CopyFile(std::u16string_view path) = 0;
  /// Tells the user of such copies in one box, if there are any.
  virtual void Announce(Cause cause, const std::vector<std::u16string>& copies) = 0;
};

/// A state machine driven by the ticks of a timer; one round trip at a time, and no call waits. At
/// every moment the note is on disk, in the surface, or in both: it is written before the program
/// starts, only a complete result replaces it, atomically, and the surface is reloaded only from a
/// file that holds the note. What the program saved, and what was typed meanwhile, end up in the
/// note or in a rescue copy. Other failures of file operations are ignored.
class RoundTrip {
 public:
  static constexpr int kInterval = 20;  // milliseconds between two ticks

  /// All must outlive this object. `programs` may change between round trips; `outstanding` holds
  /// the work files that earlier editors of the control left to programs.
  RoundTrip(EditorWindow& editor, RoundTripClient& client, const ProgramTable& programs,
            Processes& processes, std::vector<SentWorkFile>& outstanding)
      : editor_(editor),
        client_(client),
        programs_(programs),
        processes_(processes),
        outstanding_(outstanding) {}
  /// Leaves the work file to its program, even if the editor never closed.
  ~RoundTrip();
  RoundTrip(const RoundTrip&) = delete;
  RoundTrip& operator=(const RoundTrip&) = delete;

  /// The menu commands: refuse a read-only note or a missing program with a message, else start.
  void mnuPopQjot_Click() { Appeler(kQjot); }
  void mnuPopAtlantis_Click() { Appeler(kAtlantis); }
  void mnuPopMSWord_Click() { Appeler(kWord); }

  /// Start in the first state, or report the missing program.
  void EditerAvecQjot() { EditerAvec(kQjot); }
  void EditerAvecAtlantis() { EditerAvec(kAtlantis); }
  void EditerAvecWord() { EditerAvec(kWord); }

  /// Enters the next state. Raises Overflow when the state number exceeds 16 bits, and the errors
  /// of `Processes::Start`; the next tick continues with the state after that.
  void TimerWpd_Timer();

  /// Call when the editor closes: leaves the work file to its program.
  void Leave();
  /// Makes rescue copies of what programs saved, now that they have ended, for closed editors.
  void RescueLateResults();

  std::int32_t TypeEditeur() const { return type_; }  // 1 Qjot, 2 Atlantis, 3 Word; 0 none yet
  std::int16_t EtatWpd() const { return state_; }
  const std::u16string& FichierTravail() const { return workFile_; }
  /// Modification time of the work file as it went out, at full precision.
  const std::u16string& DateTravail() const { return workTime_; }

 private:
  static constexpr std::int32_t kQjot = 1;
  static constexpr std::int32_t kAtlantis = 2;
  static constexpr std::int32_t kWord = 3;

  void Appeler(std::int32_t type);
  void EditerAvec(std::int32_t type);

  void Step();
  void TerminateInstances();
  /// Asks the running instances of that program to quit; reports a failure to the user.
  void TuerParNom(Program program);
  void Report(const SystemError& error);
  /// An error as long as a program that was asked to quit still runs.
  std::optional<SystemError> Lingering();
  void AwaitInstances();
  void PrepareWorkFile();
  /// False if some result could be kept nowhere and must not be purged.
  bool KeepEarlierResults();
  /// The same for the outstanding work files that are `ready`.
  template <class Ready>
  bool RescueResults(Ready ready);
  void WriteNote();
  void TakeTime();
  void StartProgram();
  /// Reports a missing work file; the next tick ends the round trip.
  void GiveUp();
  void ReportWorkFile();
  void BringBack();
  /// The file that a result replaces.
  std::u16string TargetOf(std::u16string_view result);
  bool BringOnto(const std::u16string& result);
  void RememberOthers(SentWorkFile sent);
  void Finish();
  bool KeepTyped();

  Files& Disk();
  const std::u16string& ProgramPath() const;
  /// The folder of the program's own copies; empty for none.
  std::u16string ProgramCopies() const;
  std::u16string CommandLine() const;

  EditorWindow& editor_;
  RoundTripClient& client_;
  const ProgramTable& programs_;
  Processes& processes_;
  std::vector<SentWorkFile>& outstanding_;

  std::int32_t type_ = 0;     // last chosen
  std::int32_t running_ = 0;  // of this round trip
  std::int16_t state_ = 0;
  bool busy_ = false;     // inside a tick
  bool waiting_ = false;  // for programs to quit, in the same state
  int patience_ = 0;
  std::u16string workFile_;
  std::u16string workTime_;
  bool workWritten_ = false;
  FileTraces old_;                    // left over by the purge
  std::optional<SentWorkFile> sent_;  // while the program has it
  ProcessId process_ = 0;
  bool noteOnDisk_ = false;           // the document path holds the note of this round trip
  bool broughtBack_ = false;          // and that is the program's result
  std::uint64_t changesWritten_ = 0;  // of the note when it was written
};

}  // namespace lumenote
