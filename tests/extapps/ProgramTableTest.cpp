// Where programs are looked for, in folders and in the registry.
#include <gtest/gtest.h>

#include "base/ErrorOf.h"
#include "base/Rows.h"
#include "extapps/ProgramTable.h"
#include "pilot/sandbox/FolderSandbox.h"

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

  FolderSandbox sandbox;
};

TEST_F(ProgramTableTest, TheFirstCandidateGoesBeforeTheFallback) {
  sandbox.WriteRegistry(kWordClass, u"", u"{1}");
  sandbox.WriteRegistry(kWordServer, u"", u"\"C:\\\\Office\\WINWORD.EXE /automation\"");
  sandbox.WriteRegistry(u"Software\\I.R.I.S.\\Readiris\\10.0", u"path", u"C:\\Iris\\");
  sandbox.WriteRegistry(u"SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\App Paths\\FineReader.exe",
                        u"Path", u"C:\\Fine");
  EXPECT_EQ(Find().dossierDocuments, u"C:\\Documents");
  EXPECT_EQ(Find().tmpFileCD, u"C:\\Temp\\TmpFileCD.Txt");
  constexpr Program kPrograms[] = {Program::Qjot, Program::Atlantis, Program::WinWord,
                                   Program::ReadIris, Program::FineReader};
  const Program* program = kPrograms;
  for (const auto& [fallback, first] : Rows16<2>(R"(
C:\Lumenote\qjot.exe | C:\Program Files\qjot\qjot.exe
C:\Lumenote\Atlantis.exe | C:\Program Files\Atlantis Nova\Atlantis.exe
C:\Office\WINWORD.EXE | C:\Program Files\Microsoft\Office11\WinWord.exe
C:\Iris\ReadIris.exe | C:\Program Files\Readiris Pro 10 Demo\ReadIris.exe
C:\Fine\FineReader.exe
     | C:\Program Files\ABBYY FineReader 7.0 Professional Edition\FineReader.exe
)")) {
    EXPECT_EQ(Find().Path(*program), u"");
    Install(fallback);
    EXPECT_EQ(Find().Path(*program), fallback);
    Install(first);
    EXPECT_EQ(Find().Path(*program++), first);
  }
}

TEST_F(ProgramTableTest, AServerIsStrippedOfQuotesAndSwitches) {
  const auto path = [&] {
    return CheminParProgId(sandbox.MachineRegistry(), u"C:\\P", u"Word.Application");
  };
  EXPECT_EQ(path(), u"");
  sandbox.WriteRegistry(kWordClass, u"", u"{1}");
  EXPECT_EQ(path(), u"");
  for (const auto& [server, expected] : Rows16<2>(R"(
C:\w.exe | C:\w.exe ¦ "C:\w.exe /a" | C:\w.exe ¦ "C:\w.exe" /a | C:\w.exe" ¦ " | "" ¦ "" | ""
C:\w.exe /a /b | C:\w.exe ¦ C:\a/b.exe | C:\a/b.exe
%ProgramFiles%\w.exe /a | C:\P & Right(sPath, Len(sPath) - 14)
)")) {
    sandbox.WriteRegistry(kWordServer, u"", server);
    EXPECT_EQ(path(), expected);
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
