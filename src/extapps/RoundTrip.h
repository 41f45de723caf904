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

/// What an exchange needs of the editor beyond `EditorWindow`.
class RoundTripClient {
 public:
  virtual ~RoundTripClient() = default;
  /// Switches the timer of the watch, which calls `TimerWpd_Timer` every 20 ms.
  virtual void Watch(bool on) = 0;
  /// Writes the note to the document path, as a save does; whether it is there now.
  virtual bool WriteNote() = 0;
  /// Loads the document path into the surface again; tells the user of a failure.
  virtual void Reload() = 0;
  /// Goes on with the surface instead, as an unsaved note in the form of the document path.
  virtual void GoOnUnsaved() = 0;
  /// A rescue copy of the note as it stands in the surface, since its file has been changed; tells
  /// the user. False when none could be made.
  virtual bool KeepNote() = 0;
  /// A rescue copy of a file: its path; empty when none could be made.
  virtual std::optional<std::u16string> CopyFile(std::u16string_view path) = 0;
  /// Tells the user of such copies, in one box; of none, nothing.
  virtual void Announce(Cause cause, const std::vector<std::u16string>& copies) = 0;
};

/// One exchange at a time, carried forward by the ticks of a timer; nothing here waits. At every
/// moment the note is on the disk, in the surface, or in both: it is written before the program
/// starts, only what the program saved whole replaces it, and at once or not at all, and the
/// surface is loaded again only from a file that holds the note. What the program saved and what
/// was typed meanwhile end in the note or in a rescue copy. Other failing file operations are
/// passed over.
class RoundTrip {
 public:
  static constexpr int kInterval = 20;  // milliseconds between two ticks

  /// All outlive the exchange. `programs` may be filled again between two exchanges; `outstanding`
  /// are the work files that earlier editors of the control have left to programs.
  RoundTrip(EditorWindow& editor, RoundTripClient& client, const ProgramTable& programs,
            Processes& processes, std::vector<SentWorkFile>& outstanding)
      : editor_(editor),
        client_(client),
        programs_(programs),
        processes_(processes),
        outstanding_(outstanding) {}
  /// An editor that never closed leaves it all the same.
  ~RoundTrip();
  RoundTrip(const RoundTrip&) = delete;
  RoundTrip& operator=(const RoundTrip&) = delete;

  /// The menu commands: refuse a read-only note and a missing program with a message, else begin.
  void mnuPopQjot_Click() { Appeler(kQjot); }
  void mnuPopAtlantis_Click() { Appeler(kAtlantis); }
  void mnuPopMSWord_Click() { Appeler(kWord); }

  /// Begin, from the first state on, or report the missing program.
  void EditerAvecQjot() { EditerAvec(kQjot); }
  void EditerAvecAtlantis() { EditerAvec(kAtlantis); }
  void EditerAvecWord() { EditerAvec(kWord); }

  /// The next state and what it does. Raises Overflow when the states run out of 16 bits, and what
  /// `Processes::Start` raises; the next tick goes on behind it.
  void TimerWpd_Timer();

  /// The editor closes: what a program still works on is left to it.
  void Leave();
  /// What programs that have ended saved for editors that had closed becomes a rescue copy.
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
  /// An error while one of the programs that were asked to end goes on running.
  std::optional<SystemError> Lingering();
  void AwaitInstances();
  void PrepareWorkFile();
  /// False when something that a program saved could be kept nowhere, and must not be purged.
  bool KeepEarlierResults();
  /// The same for what earlier exchanges have left, where `ready` says so.
  template <class Ready>
  bool RescueResults(Ready ready);
  void WriteNote();
  void TakeTime();
  void StartProgram();
  /// Tells that the work file is missing; the next tick ends the watch.
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
  /// Where the program leaves copies of its own; empty for none.
  std::u16string ProgramCopies() const;
  std::u16string CommandLine() const;

  EditorWindow& editor_;
  RoundTripClient& client_;
  const ProgramTable& programs_;
  Processes& processes_;
  std::vector<SentWorkFile>& outstanding_;

  std::int32_t type_ = 0;     // as last chosen
  std::int32_t running_ = 0;  // of this exchange
  std::int16_t state_ = 0;
  bool busy_ = false;     // a tick has not returned yet
  bool waiting_ = false;  // for programs to end; the state stays
  int patience_ = 0;
  std::u16string workFile_;
  std::u16string workTime_;
  bool workWritten_ = false;
  FileTraces old_;                    // what the purge could not take away
  std::optional<SentWorkFile> sent_;  // from the start of the program to the way back
  ProcessId process_ = 0;
  bool noteOnDisk_ = false;           // the document path holds the note of this exchange
  bool broughtBack_ = false;          // and it is what the program saved
  std::uint64_t changesWritten_ = 0;  // how far the note had changed when it was written
};

}  // namespace lumenote
