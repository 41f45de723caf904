// Where programs are looked for, in folders and in the registry.
#include <gtest/gtest.h>

#include "base/ErrorOf.h"
#include "extapps/ProgramTable.h"
#include "pilot/posix/PosixSandbox.h"

namespace lumenote {
namespace {

constexpr std::u16string_view kLocalMachine = u"-2147483646";
const std::u16string kWordClass = u"software\\CLASSES\\Word.Application\\CLSID";
const std::u16string kWordServer = u"Software\\Classes\\CLSID\\{1}\\LocalServer32";

class ProgramTableTest : public testing::Test {
 protected:
  void Install(std::u16string_view path) {
    sandbox.MakeParents(path);
    sandbox.Programs().Put(path);
  }
  ProgramTable Find() {
    return ChercherApplis({sandbox.FileSystem(), sandbox.SpecialFolders(), u"C:\\Temp\\",
                           sandbox.InstalledPrograms(), sandbox.MachineRegistry()});
  }

  PosixSandbox sandbox;
};

TEST_F(ProgramTableTest, TheFirstCandidateGoesBeforeTheFallback) {
  sandbox.WriteRegistry(kWordClass, u"", u"{1}");
  sandbox.WriteRegistry(kWordServer, u"", u"\"C:\\\\Office\\WINWORD.EXE /automation\"");
  sandbox.WriteRegistry(u"Software\\I.R.I.S.\\Readiris\\10.0", u"path", u"C:\\Iris\\");
  sandbox.WriteRegistry(u"SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\App Paths\\FineReader.exe",
                        u"Path", u"C:\\Fine");
  EXPECT_EQ(Find().dossierDocuments, u"C:\\Documents");
  EXPECT_EQ(Find().tmpFileCD, u"C:\\Temp\\TmpFileCD.Txt");
  const struct {
    Program program;
    std::u16string fallback;
    std::u16string first;
  } cases[] = {
      {Program::Qjot, u"C:\\Lumenote\\qjot.exe", u"C:\\Program Files\\qjot\\qjot.exe"},
      {Program::Atlantis, u"C:\\Lumenote\\Atlantis.exe",
       u"C:\\Program Files\\Atlantis Nova\\Atlantis.exe"},
      {Program::WinWord, u"C:\\Office\\WINWORD.EXE",
       u"C:\\Program Files\\Microsoft\\Office11\\WinWord.exe"},
      {Program::ReadIris, u"C:\\Iris\\ReadIris.exe",
       u"C:\\Program Files\\Readiris Pro 10 Demo\\ReadIris.exe"},
      {Program::FineReader, u"C:\\Fine\\FineReader.exe",
       u"C:\\Program Files\\ABBYY FineReader 7.0 Professional Edition\\FineReader.exe"},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(Find().Path(c.program), u"");
    Install(c.fallback);
    EXPECT_EQ(Find().Path(c.program), c.fallback);
    Install(c.first);
    EXPECT_EQ(Find().Path(c.program), c.first);
  }
}

TEST_F(ProgramTableTest, AServerIsStrippedOfQuotesAndSwitches) {
  const auto path = [&] {
    return CheminParProgId(sandbox.MachineRegistry(), u"C:\\P", u"Word.Application");
  };
  EXPECT_EQ(path(), u"");
  sandbox.WriteRegistry(kWordClass, u"", u"{1}");
  EXPECT_EQ(path(), u"");
  const struct {
    std::u16string server;
    std::u16string path;
  } cases[] = {
      {u"C:\\w.exe", u"C:\\w.exe"},
      {u"\"C:\\w.exe /a\"", u"C:\\w.exe"},
      {u"\"C:\\w.exe\" /a", u"C:\\w.exe\""},
      {u"C:\\w.exe /a /b", u"C:\\w.exe"},
      {u"C:\\a/b.exe", u"C:\\a/b.exe"},
      {u"%ProgramFiles%\\w.exe /a", u"C:\\P & Right(sPath, Len(sPath) - 14)"},
      {u"\"", u""},
      {u"", u""},
  };
  for (const auto& c : cases) {
    sandbox.WriteRegistry(kWordServer, u"", c.server);
    EXPECT_EQ(path(), c.path);
  }
}

TEST_F(ProgramTableTest, ValuesStandUnderTheLocalMachineOnly) {
  const Registry& registry = sandbox.MachineRegistry();
  sandbox.WriteRegistry(u"Soft\\Ünit", u"v", u"x");
  sandbox.WriteRegistry(u"soft", u"v", u"");
  EXPECT_EQ(LireValeurReg(registry, kLocalMachine, u"SOFT\\ünit", u"v"), u"x");
  EXPECT_EQ(LireValeurReg(registry, kLocalMachine, u"Soft", u"v"), u"");
  EXPECT_EQ(LireValeurReg(registry, kLocalMachine, u"Soft\\Ünit", u"w"), u"");
  EXPECT_EQ(LireValeurReg(registry, u"-2147483647", u"Soft\\Ünit", u"v"), u"");
  EXPECT_EQ(ErrorOf([&] { LireValeurReg(registry, u"HKLM", u"Soft", u"v"); }), 13);
}

}  // namespace
}  // namespace lumenote
