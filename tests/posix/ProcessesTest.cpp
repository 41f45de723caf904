// Real programs: starting, watching and ending them.
#include <cerrno>
#include <chrono>
#include <csignal>
#include <filesystem>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <thread>

#include "Sandbox.h"
#include "backends/native/folders/NativeProgramFolders.h"
#include "backends/posix/programs/PosixProcesses.h"
#include "base/Strings.h"
#include "platform/Paths.h"
#include "platform/ProgramCommand.h"

namespace lumenote {
namespace {

/// A desktop on which every process that it knows has a window.
struct FakeWindows : ProgramWindows {
  bool AskToClose(const std::vector<pid_t>& processes) override {
    asked += processes.size();
    return hasWindows;
  }
  bool AnyTitleContains(std::string_view text) const override { return ++looks, text == title; }

  bool hasWindows = true;
  std::size_t asked = 0;
  mutable int looks = 0;
  std::string title;
};

class ProcessesTest : public PosixTest {
 protected:
  void Script(const std::string& name, const std::string& lines) {
    Put(name, "#!/bin/sh\n" + lines, 0755);
  }
  /// Whether it comes true within ten seconds.
  template <class Condition>
  static bool Soon(Condition condition) {
    for (int i = 0; i < 1000 && !condition(); ++i)
      std::this_thread::sleep_for(std::chrono::milliseconds(10));
    return condition();
  }
  bool EndsSoon(ProcessId process) {
    return Soon([&] { return !processes.IsRunning(process); });
  }
  static bool HasChildren() { return waitpid(-1, nullptr, WNOHANG) != -1 || errno != ECHILD; }

  PosixProcesses processes{drives_};
};

TEST_F(ProcessesTest, AnyFileNameIsOneNativeArgumentAndTheTemplateSwitchGoes) {
  for (const std::string name :
       {"a b", "a\"b", "\"", "\" \"", "\"\"a", "'$x", "a\tb\nc", " ", "é α"}) {
    std::filesystem::create_directory(Native(name));
    Script(name + "/p.exe", "printf '%s|' \"$@\" > \"${0%/*}/out\"\n");
    const std::u16string folder = u"C:\\" + FromUtf8(name) + u"\\";
    EXPECT_TRUE(EndsSoon(processes.Start(QuotedProgram(folder + u"p.exe") + u" " +
                                         Quoted(folder + FromUtf8(name) + u".rtf") +
                                         u" x /l\"C:\\m.dot\"")));
    EXPECT_EQ(Get(name + "/out"), Native(name + "/" + name + ".rtf") + "|x|");
  }
  EXPECT_FALSE(HasChildren());
}

TEST_F(ProcessesTest, LinksOpenNoProgram) {
  std::filesystem::create_directory(Native("bin"));
  Script("bin/xdg-open", "echo \"$1\" >> \"${0%/*}/opened\"\n");
  const ScopedVariable path("PATH", (Native("bin") + ":" + getenv("PATH")).c_str());
  Script("a b.txt", "exit\n");
  Put("n.txt", "x");
  Put("bin/opened", "");
  const std::string folder = "file://" + Native("");
  std::string opened;
  for (const auto& [address, opens] : {std::pair(folder + "a%20b.txt", false),
                                       {folder + "a b.txt#x", false},
                                       {folder + "n.txt#x", true},
                                       {"https://a.fr/", true}}) {
    processes.Open(FromUtf8(address));
    if (opens) opened += address + "\n";
    EXPECT_TRUE(Soon([&] { return processes.Reap(), processes.Idle(); }));
    EXPECT_EQ(Get("bin/opened"), opened) << address;
  }
}

TEST_F(ProcessesTest, WhatCannotBeStartedIsAnError) {
  Put("text", "x");
  EXPECT_EQ(ErrorOf([&] { processes.Start(u"\"C:\\none.exe\""); }), 53);
  EXPECT_EQ(ErrorOf([&] { processes.Start(u"C:\\text"); }), 75);
  EXPECT_EQ(ErrorOf([&] { processes.Start(u""); }), 53);
  EXPECT_FALSE(processes.IsRunning(0));
}

TEST_F(ProcessesTest, AProgramRunsWhileAnythingOfItsGroupDoes) {
  Script("p.exe", "sh -c 'while [ ! -e \"$1\" ]; do sleep 0.02; done' - \"${0%/*}/go\" &\n");
  const ProcessId process = processes.Start(u"C:\\p.exe");
  EXPECT_TRUE(Soon([] { return !HasChildren(); }));
  EXPECT_TRUE(processes.IsRunning(process));
  Put("go", "");
  EXPECT_TRUE(EndsSoon(process));
}

/// Of a program the user's other instances end too; a script is only known by what was started
/// here.
TEST_F(ProcessesTest, OnlyTheProgramItselfIsEnded) {
  for (const bool script : {false, true}) {
    const auto install = [&](const std::string& name) {
      if (script) return Script(name, "while :; do sleep 0.02; done\n");
      std::filesystem::copy_file("/bin/sleep", Native(name));
    };
    std::filesystem::remove(Native("a.exe"));
    std::filesystem::remove(Native("b.exe"));
    install("a.exe");
    install("b.exe");
    PosixProcesses another(drives_);
    const ProcessId own = processes.Start(u"C:\\a.exe 60");
    const ProcessId foreign = another.Start(u"C:\\a.exe 60");
    const ProcessId other = processes.Start(u"C:\\b.exe 60");
    EXPECT_TRUE(processes.StillRunning(u"C:\\a.exe"));
    EXPECT_FALSE(processes.Terminate(u"C:\\a.exe"));
    EXPECT_TRUE(EndsSoon(own));
    EXPECT_TRUE(script || Soon([&] { return !another.IsRunning(foreign); }));
    EXPECT_EQ(another.IsRunning(foreign), script);
    EXPECT_FALSE(processes.StillRunning(u"C:\\a.exe"));
    EXPECT_TRUE(processes.IsRunning(other));
    another.Terminate(u"C:\\a.exe");
    processes.Terminate(u"C:\\b.exe");
    EXPECT_TRUE(EndsSoon(other));
  }
}

TEST_F(ProcessesTest, AProgramWithWindowsIsAskedThroughThem) {
  FakeWindows windows;
  PosixProcesses desktop(drives_, &windows);
  std::filesystem::copy_file("/bin/sleep", Native("a.exe"));
  const ProcessId own = desktop.Start(u"C:\\a.exe 60");
  const ProcessId foreign = processes.Start(u"C:\\a.exe 60");
  EXPECT_TRUE(Soon([&] {  // the copy of this process has become the program
    windows.asked = 0;
    desktop.Terminate(u"C:\\a.exe");
    return windows.asked == 2;
  }));
  EXPECT_TRUE(desktop.IsRunning(own) && processes.IsRunning(foreign));
  EXPECT_TRUE(desktop.StillRunning(u"C:\\a.exe"));
  windows.hasWindows = false;
  EXPECT_FALSE(desktop.Terminate(u"C:\\a.exe"));
  EXPECT_TRUE(Soon([&] { return !desktop.IsRunning(own) && !processes.IsRunning(foreign); }));
}

TEST_F(ProcessesTest, AFileThatWasHandedOverIsWaitedFor) {
  FakeWindows windows;
  PosixProcesses desktop(drives_, &windows);
  Script("p.exe", "exit 0\n");
  const ProcessId process = desktop.Start(u"C:\\p.exe \"C:\\Temp\\Sav a.rtf\"");
  windows.title = "Sav a.rtf";
  // It looks each quarter of a second, and for two seconds it would wait for the window anyway.
  EXPECT_TRUE(Soon([&] { return !desktop.IsRunning(process) || windows.looks > 9; }));
  EXPECT_TRUE(desktop.IsRunning(process));
  EXPECT_TRUE(desktop.HoldsFiles());
  windows.title.clear();
  EXPECT_TRUE(Soon([&] { return !desktop.IsRunning(process); }));
}

TEST_F(ProcessesTest, AProgramThatRefusesLingers) {
  Script("p.exe",
         "trap '' TERM\n: > \"${0%/*}/up\"\nwhile [ ! -e \"${0%/*}/go\" ]; do sleep 0.02; done\n");
  const ProcessId process = processes.Start(u"C:\\p.exe");
  EXPECT_TRUE(Soon([&] { return Get("up").empty(); }));
  EXPECT_FALSE(processes.Terminate(u"C:\\p.exe"));
  const auto error = processes.StillRunning(u"C:\\p.exe");
  ASSERT_TRUE(error);
  EXPECT_EQ(error->number, ETIMEDOUT);
  EXPECT_FALSE(error->description.empty());
  Put("go", "");
  EXPECT_TRUE(EndsSoon(process));
}

TEST(ProgramFoldersTest, TheComponentsFolderHoldsThisProgram) {
  const NativeProgramFolders folders(DrivePaths::OfUser());
  const std::string native = DrivePaths::OfUser().ToNative(folders.Component());
  EXPECT_EQ(native, std::filesystem::read_symlink("/proc/self/exe").parent_path().string());
}

}  // namespace
}  // namespace lumenote
