// A host with one control, a disk that can fail, and a user at its boxes.
#pragma once
#include <filesystem>
#include <fstream>
#include <functional>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "backends/headless/HeadlessBackend.h"
#include "base/RuntimeError.h"
#include "control/CoBxRtf.h"
#include "control/Component.h"
#include "pilot/machine/PilotPlatform.h"
#include "pilot/machine/ReportedFonts.h"
#include "pilot/posix/PosixSandbox.h"
#include "session/Session.h"

namespace lumenote {

using Texts = std::vector<std::u16string>;

/// Answers each box as `answer` says, which may act as a host or a program would meanwhile.
class AnsweringBackend : public HeadlessBackend {
 public:
  MessageBox::Answer Show(const MessageBox& box, Form*) override {
    shown.push_back(box.text);
    return answer(box);
  }
  void RunUntil(const std::function<bool()>& done) override {
    while (!done()) Advance(RoundTrip::kInterval);
  }
  /// Lets so many ticks of a round trip pass.
  void Tick(int count) { Advance(count * RoundTrip::kInterval); }

  Texts shown;
  std::function<MessageBox::Answer(const MessageBox&)> answer = DefaultAnswer;
};

/// The disk below, but for what a test lets happen before an operation on a path.
class DisturbedFiles : public Files {
 public:
  explicit DisturbedFiles(Files& inner) : inner_(inner) {}

  bool Exists(std::u16string_view path) const override { return inner_.Exists(path); }
  bool IsReadOnly(std::u16string_view path) const override { return inner_.IsReadOnly(path); }
  FileTime ModificationTime(std::u16string_view path) const override {
    return inner_.ModificationTime(path);
  }
  std::uint64_t Size(std::u16string_view path) const override { return inner_.Size(path); }
  std::string ReadAll(std::u16string_view path) const override {
    before("read", path);
    return inner_.ReadAll(path);
  }
  bool SameFile(std::u16string_view one, std::u16string_view other) const override {
    return inner_.SameFile(one, other);
  }
  std::shared_ptr<void> TakeTurn(std::u16string_view path) const override {
    return inner_.TakeTurn(path);
  }
  void Write(std::u16string_view path, std::string_view bytes) override {
    before("write", path);
    inner_.Write(path, bytes);
  }
  void WriteNew(std::u16string_view path, std::string_view bytes, Readers readers) override {
    before("write", path);
    inner_.WriteNew(path, bytes, readers);
  }
  void AppendLines(std::u16string_view path, std::string_view lines) override {
    before("write", path);
    inner_.AppendLines(path, lines);
  }
  void Delete(std::u16string_view path, bool force) override {
    before("delete", path);
    inner_.Delete(path, force);
  }
  void Copy(std::u16string_view from, std::u16string_view to) override {
    before("write", to);
    inner_.Copy(from, to);
  }
  void Move(std::u16string_view from, std::u16string_view to) override {
    before("write", to);
    inner_.Move(from, to);
  }

  /// May raise, or change something on the disk.
  std::function<void(std::string_view operation, std::u16string_view path)> before =
      [](std::string_view, std::u16string_view) {};

 private:
  Files& inner_;
};

/// A sandbox with that disk.
class DisturbedPlatform final : public Platform {
 public:
  DisturbedPlatform(Sandbox& sandbox, Backend& windows, const Fonts& fonts)
      : inner_(sandbox, windows, fonts), files(sandbox.FileSystem()) {}

  Backend& Windows() override { return inner_.Windows(); }
  Settings& UserSettings() override { return inner_.UserSettings(); }
  Files& FileSystem() override { return files; }
  Folders& SpecialFolders() override { return inner_.SpecialFolders(); }
  StateFolder& State() override { return inner_.State(); }
  Clipboard& SystemClipboard() override { return inner_.SystemClipboard(); }
  const Fonts& SystemFonts() override { return inner_.SystemFonts(); }
  const Registry& MachineRegistry() override { return inner_.MachineRegistry(); }
  const ProgramFolders& InstalledPrograms() override { return inner_.InstalledPrograms(); }
  Processes& Programs() override { return inner_.Programs(); }

 private:
  PilotPlatform inner_;

 public:
  DisturbedFiles files;
};

class HostTest : public testing::Test {
 protected:
  void Open(std::u16string_view note) {
    control.pCouleurFen(u"0");
    control.pStrOrchm(note);
    control.ShowMicroEdit();
  }
  /// Opens a file with that content.
  void OpenFile(std::u16string_view path, std::string_view content) {
    sandbox.MakeParents(path);
    disk.Write(path, content);
    Open(path);
  }
  Co_Rtf& Editor() { return control.Parts().editor.Get(); }
  bool IsOpen() { return control.Parts().editor.Loaded() != nullptr; }
  Session& Values() { return Editor().Values(); }
  void Type(std::u16string_view text) { Editor().Document().SelText(text); }
  std::u16string Shown() { return Editor().Document().Text(); }
  void Answer(MessageBox::Answer yesOrNo) {
    backend.answer = [=](const MessageBox& box) {
      return box.buttons == MessageBox::Buttons::Ok ? MessageBox::Answer::Ok : yesOrNo;
    };
  }
  /// From now on such operations on such paths fail as on a full disk.
  void Fail(std::string_view operation, std::u16string_view part) {
    platform.files.before = [=](std::string_view asked, std::u16string_view path) {
      if (asked == operation && path.find(part) != path.npos)
        throw RuntimeError(ErrorNumber::DiskFull);
    };
  }
  /// Takes away both places of rescue copies.
  void LeaveNoPlace() {
    sandbox.Remove(u"C:\\Documents");
    std::filesystem::remove_all(folder.Path() + "/state");
    std::ofstream(folder.Path() + "/state") << "no folder";
  }
  /// Whether a file of the user's holds that text; temporary ones do not count.
  bool OnDisk(const std::string& text) {
    for (const auto& entry : std::filesystem::recursive_directory_iterator(folder.Path())) {
      if (!entry.is_regular_file() || entry.path().string().find("/Temp/") != std::string::npos)
        continue;
      std::ifstream file(entry.path());
      const std::string bytes(std::istreambuf_iterator<char>(file), {});
      if (bytes.find(text) != bytes.npos) return true;
    }
    return false;
  }
  Texts Boxes() { return std::exchange(backend.shown, {}); }

  TemporaryFolder folder;
  PosixSandbox sandbox{folder.Path()};
  Files& disk = sandbox.FileSystem();
  AnsweringBackend backend;
  ReportedFonts fonts;
  DisturbedPlatform platform{sandbox, backend, fonts};
  CoBxRtf control{platform};
};

}  // namespace lumenote
