// What reaches a host when it goes wrong: run-time errors only, each with the member it is about.
#include <gtest/gtest.h>
#include <optional>
#include <stdexcept>
#include <thread>

#include "Machine.h"

namespace lumenote {
namespace {

/// Number and member of the error that `statement` raises; any other exception ends the test.
template <class Statement>
std::pair<int, std::u16string> Raised(Statement statement) {
  try {
    statement();
  } catch (const RuntimeError& error) {
    return {error.Number(), error.Member()};
  }
  return {};
}

using Error = std::pair<int, std::u16string>;

TEST(ErrorsTest, AColourTextThatIsNoNumberNamesItsProperty) {
  Machine machine;
  CoBxRtf control(machine.platform);
  const struct {
    std::u16string_view text;
    int number;
  } cases[] = {{u"", 13},          {u"rouge", 13},      {u"1 2", 13},       {u" ", 13},
               {u"2147483648", 6}, {u"-2147483649", 6}, {u"4294967295", 6}, {u"1e400", 6},
               {u" 12632256 ", 0}, {u"2147483647", 0},  {u"-1", 0},         {u"\t255", 0}};
  EXPECT_EQ(Raised([&] { control.ShowMicroEdit(); }), Error(13, u"pCouleurFen"));
  for (const auto& c : cases) {
    control.pCouleurFen(c.text);
    EXPECT_EQ(Raised([&] { control.ShowMicroEdit(); }),
              c.number ? Error(c.number, u"pCouleurFen") : Error());
    EXPECT_EQ(control.Parts().editor.Loaded() != nullptr, c.number == 0);
    control.pStrOrchm();
  }
}

TEST(ErrorsTest, OnlyAPathWithADriveNamesAFile) {
  Machine machine;
  CoBxRtf control(machine.platform);
  const std::pair<std::u16string_view, bool> notes[] = {
      {u"C:\\a.rtf", true},          {u"C:\\a.rt", false},
      {u"?:\\abcde", true},          {u"?:\\abcd", false},
      {u"\\\\server\\x.rtf", false}, {u"notes\\x.rtf", false},
      {u"C:/notes/x.rtf", false},    {u"", false}};
  for (const auto& [note, isFile] : notes) {
    control.pStrOrchm(note);
    EXPECT_EQ(control.Parts().session->fileMode, isFile) << testing::PrintToString(note);
    EXPECT_EQ(control.Parts().session->documentPath, isFile ? note : u"");
  }
}

TEST(ErrorsTest, AnotherThreadIsRefusedAtOnceByEveryMember) {
  Machine machine;
  CoBxRtf control(machine.platform);
  control.pCouleurFen(u"0");
  control.pStrOrchm(u"note");
  control.ShowMicroEdit();
  const std::pair<std::u16string, std::function<void()>> members[] = {
      {u"pNomAppli", [&] { control.pNomAppli(u"x"); }},
      {u"pChmAppli", [&] { control.pChmAppli(u"C:\\x\\y.exe"); }},
      {u"pTitreFenêtre", [&] { control.pTitreFenêtre(u"x"); }},
      {u"pTitreCadre", [&] { control.pTitreCadre(u"x"); }},
      {u"pCouleurFen", [&] { control.pCouleurFen(u"x"); }},
      {u"pSScléReg", [&] { control.pSScléReg(u"x"); }},
      {u"pAttribut", [&] { control.pAttribut(u"x"); }},
      {u"pModelWord", [&] { control.pModelWord(u"x"); }},
      {u"pStrOrchm", [&] { control.pStrOrchm(u"x"); }},
      {u"pStrOrchm", [&] { control.pStrOrchm(); }},
      {u"ShowMicroEdit", [&] { control.ShowMicroEdit(1); }}};
  for (const auto& [name, call] : members) {
    Error raised;
    std::thread([&, &call = call] { raised = Raised(call); }).join();
    EXPECT_EQ(raised, Error(5, name));
  }
  EXPECT_NE(control.Parts().editor.Loaded(), nullptr);
  EXPECT_EQ(control.pStrOrchm(), u"note");
}

/// A machine whose parts are broken in a way that is no run-time error.
struct BrokenPlatform final : Platform {
  PosixSandbox sandbox;
  [[noreturn]] static void Break() { throw std::length_error("broken"); }
  Backend& Windows() override { Break(); }
  Settings& UserSettings() override { Break(); }
  Files& FileSystem() override { Break(); }
  Folders& SpecialFolders() override { return sandbox.SpecialFolders(); }
  StateFolder& State() override { Break(); }
  Clipboard& SystemClipboard() override { Break(); }
  const Fonts& SystemFonts() override { Break(); }
  const Registry& MachineRegistry() override { Break(); }
  const ProgramFolders& InstalledPrograms() override { Break(); }
  Processes& Programs() override { Break(); }
};

TEST(ErrorsTest, OnlyRunTimeErrorsCrossTheControl) {
  BrokenPlatform platform;
  CoBxRtf control(platform);
  control.pCouleurFen(u"0");
  EXPECT_EQ(Raised([&] { control.ShowMicroEdit(); }), Error(51, u"ShowMicroEdit"));
  EXPECT_EQ(Raised([&] { control.pChmAppli(u"C:\\x\\y.exe"); }), Error(51, u"pChmAppli"));
  EXPECT_EQ(control.Parts().session->listCorrPath, u"C:\\x\\ListCorr.txt");
}

TEST(ErrorsTest, WithoutAWindowSystemNothingCanBeWaitedFor) {
  PosixSandbox sandbox;
  HeadlessBackend backend;
  ReportedFonts fonts;
  PilotPlatform platform(sandbox, backend, fonts);
  CoBxRtf control(platform);
  control.pCouleurFen(u"0");
  control.pStrOrchm(u"note");
  EXPECT_EQ(Raised([&] { control.ShowMicroEdit(1); }), Error(5, u"ShowMicroEdit"));
  EXPECT_EQ(control.pStrOrchm(), u"note");
}

}  // namespace
}  // namespace lumenote
