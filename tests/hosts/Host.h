// A host with one control, on a machine without a desktop: a disk that can fail, programs that only
// seem to run, a user at the boxes, and events of the host that come meanwhile.
#pragma once
#include <deque>
#include <filesystem>
#include <fstream>
#include <functional>
#include <gtest/gtest.h>
#include <memory>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "backends/headless/HeadlessBackend.h"
#include "base/RuntimeError.h"
#include "control/Component.h"
#include "lumenote/CoBxRtf.h"
#include "pilot/machine/PilotPlatform.h"
#include "pilot/machine/ReportedFonts.h"
#include "pilot/sandbox/FolderSandbox.h"
#include "session/Session.h"

namespace lumenote {

using Texts = std::vector<std::u16string>;

/// While a box is up one event of the host comes, then the box is answered as `answer` says. A wait
/// lets events come, and time pass, until it ends.
class HostBackend final : public HeadlessBackend {
 public:
  MessageBox::Answer Show(const MessageBox& box, Form*) override {
    shown.push_back(box.text);
    RunEvent();
    return answer(box);
  }
  std::optional<FontChoice> ChooseFont(const FontChoice& choice, Form*) override {
    RunEvent();
    return choice;
  }
  void RunUntil(const std::function<bool()>& done) override {
    for (int ticks = 0; !done();) {
      if (ticks++ > 10'000) throw std::logic_error("waits for ever");
      if (!RunEvent()) Tick(1);
    }
  }
  /// Lets so many ticks of a round trip pass.
  void Tick(int count) { Advance(count * RoundTrip::kInterval); }

  std::deque<std::function<void()>> events;
  std::function<MessageBox::Answer(const MessageBox&)> answer = DefaultAnswer;
  Texts shown;

 private:
  bool RunEvent() {
    if (events.empty()) return false;
    const auto event = std::move(events.front());
    events.pop_front();
    event();
    return true;
  }
};

/// The disk, but for what a test lets happen before an operation on a path.
class DisturbedFiles final : public NativeFiles {
 public:
  explicit DisturbedFiles(const NativeFiles& disk) : NativeFiles(disk) {}

  bool Exists(std::u16string_view path) const override {
    before("look", path);
    return NativeFiles::Exists(path);
  }
  std::string ReadAll(std::u16string_view path) const override {
    before("read", path);
    return NativeFiles::ReadAll(path);
  }
  void Write(std::u16string_view path, std::string_view bytes) override {
    before("write", path);
    NativeFiles::Write(path, bytes);
  }
  void WriteNew(std::u16string_view path, std::string_view bytes,
                Permissions permissions) override {
    before("write", path);
    NativeFiles::WriteNew(path, bytes, permissions);
  }
  void Delete(std::u16string_view path, bool force) override {
    before("delete", path);
    NativeFiles::Delete(path, force);
  }

  /// May raise, or change something on the disk.
  std::function<void(std::string_view operation, std::u16string_view path)> before =
      [](std::string_view, std::u16string_view) {};
};

/// A sandbox with that disk, and with the programs that a test puts in its place.
class HostPlatform final : public PilotPlatform {
 public:
  HostPlatform(FolderSandbox& sandbox, Backend& windows, const Fonts& fonts)
      : PilotPlatform(sandbox, windows, fonts),
        files(dynamic_cast<NativeFiles&>(sandbox.FileSystem())),
        programs(&sandbox.Programs()) {}

  Files& FileSystem() override { return files; }
  Processes& Programs() override { return *programs; }

  DisturbedFiles files;
  Processes* programs;
};

class HostTest : public testing::Test {
 protected:
  /// One whose editor can be opened.
  std::unique_ptr<CoBxRtf> MakeControl() {
    auto made = std::make_unique<CoBxRtf>(platform);
    made->pCouleurFen(u"0");
    return made;
  }
  static void Open(CoBxRtf& control, std::u16string_view note) {
    control.pStrOrchm(note);
    control.ShowMicroEdit();
  }
  void Open(std::u16string_view note) { Open(*control, note); }
  /// Opens a file with that content.
  void OpenFile(std::u16string_view path, std::string_view content) {
    sandbox.MakeParents(path);
    disk.Write(path, content);
    Open(path);
  }
  static Co_Rtf& EditorOf(CoBxRtf& control) { return *control.Parts().editor.Loaded(); }
  Co_Rtf& Editor() { return EditorOf(*control); }
  bool IsOpen() { return control->Parts().editor.Loaded() != nullptr; }
  Session& Values() { return Editor().Values(); }
  void Type(std::u16string_view text) { Editor().Document().SelText(text); }
  std::u16string Shown() { return Editor().Document().Text(); }
  void Choose(Menu ContextMenu::*entry) { (Editor().Pop.*entry).UserClick(); }
  void OnEvent(std::function<void()> event) { backend.events.push_back(std::move(event)); }
  Texts Boxes() { return std::exchange(backend.shown, {}); }

  void Install(std::u16string_view program) {
    sandbox.MakeParents(program);
    sandbox.Programs().Put(program);
  }
  /// From now on such operations on such paths fail as on a full disk, until `Mend`.
  void Fail(std::string_view operation, std::u16string_view part) {
    platform.files.before = [=](std::string_view asked, std::u16string_view path) {
      if (asked == operation && path.find(part) != path.npos)
        throw RuntimeError(ErrorNumber::DiskFull);
    };
  }
  void Mend() {
    platform.files.before = [](std::string_view, std::u16string_view) {};
  }
  /// Takes away both places of rescue copies.
  void LeaveNoPlace() {
    sandbox.Remove(u"C:\\Documents");
    std::filesystem::remove_all(folder.Path() + "/state");
    std::ofstream(folder.Path() + "/state") << "no folder";
  }
  /// Whether a file holds that text; those with `except` in their path do not count.
  bool OnDisk(std::string_view text, std::string_view except = "//") const {
    for (const auto& entry : std::filesystem::recursive_directory_iterator(folder.Path())) {
      if (!entry.is_regular_file() ||
          entry.path().generic_string().find(except) != std::string::npos)
        continue;
      std::ifstream file(entry.path());
      const std::string bytes(std::istreambuf_iterator<char>(file), {});
      if (bytes.find(text) != bytes.npos) return true;
    }
    return false;
  }
  /// An empty disk, but for the programs.
  void Clear() {
    for (const std::u16string used : {u"C:\\n", u"C:\\Temp", u"C:\\Documents"}) {
      IgnoringErrors([&] { sandbox.Remove(used); });
      sandbox.MakeParents(used + u"\\x");
    }
  }

  TemporaryFolder folder;
  FolderSandbox sandbox{folder.Path()};
  Files& disk = sandbox.FileSystem();
  HostBackend backend;
  ReportedFonts fonts;
  HostPlatform platform{sandbox, backend, fonts};
  std::unique_ptr<CoBxRtf> control = MakeControl();
};

}  // namespace lumenote
