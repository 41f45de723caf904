#include "editor/storage/Recovery.h"

#include <chrono>

#include "base/RuntimeError.h"
#include "forms/Timer.h"
#include "lumenote/Platform.h"
#include "platform/Paths.h"
#include "session/Session.h"

namespace lumenote {

namespace {

// An edit waits for the copy being written, for the delay, and for its own copy. With a generous
// two seconds for each copy that stays within ten seconds.
constexpr int kDelay = 5000;  // milliseconds from an edit to its copy
constexpr int kPause = 10;    // between two slices
constexpr std::chrono::milliseconds kSlice(2);

}  // namespace

Recovery::Recovery(EditorWindow& editor, Timer& clock) : editor_(editor), clock_(clock) {
  clock_.Tick = [this] { Tick(); };
}

Recovery::~Recovery() {
  if (copy_) copy_->Leave();
}

void Recovery::Edited() {
  due_ = true;
  if (!clock_.Enabled()) Schedule();
}

void Recovery::Drop() {
  due_ = false;
  writer_.reset();
  copy_.reset();
  Schedule();
}

void Recovery::Schedule() {
  clock_.Interval(writer_ ? kPause : kDelay);
  clock_.Enabled(writer_ || due_);
}

void Recovery::Tick() {
  const bool written =
      IgnoringErrors([this] { TranslateBadAlloc([this] { writer_ ? WriteSlice() : Begin(); }); });
  if (!written) {
    writer_.reset();
    due_ = true;
  }
  Schedule();
}

void Recovery::Begin() {
  const Session& session = editor_.Values();
  if (!copy_) copy_ = editor_.Services().State().MakeCopy();
  copy_->Begin(session.fileMode ? session.documentPath : FileName(session.documentPath));
  writer_ = editor_.Document().WriteSnapshot(
      session.format == u"txt" ? FileType::Text : FileType::Rtf,
      [copy = copy_.get()](std::string_view bytes) { copy->Append(bytes); });
  due_ = false;
}

void Recovery::WriteSlice() {
  using Clock = std::chrono::steady_clock;
  const Clock::time_point end = Clock::now() + kSlice;
  while (Clock::now() < end) {
    if (!writer_->Step()) return Commit();
  }
}

void Recovery::Commit() {
  copy_->Commit();
  writer_.reset();
}

void Recovery::WriteNow() {
  const Session& session = editor_.Values();
  if (!session.dirty && !session.CannotReturn()) return;
  IgnoringErrors([this] {
    TranslateBadAlloc([this] {
      Begin();
      while (writer_->Step()) continue;
      Commit();
    });
  });
}

}  // namespace lumenote
