// What a host hands over, and what reaches it when that goes wrong: run-time errors only, each with
// the member it is about.
#include <stdexcept>
#include <thread>

#include "Host.h"

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
using ErrorsTest = HostTest;

TEST_F(ErrorsTest, AColourTextThatIsNoNumberNamesItsProperty) {
  const struct {
    std::u16string_view text;
    int number;
  } cases[] = {{u"", 13},          {u"rouge", 13},      {u"1 2", 13},       {u" ", 13},
               {u"2147483648", 6}, {u"-2147483649", 6}, {u"4294967295", 6}, {u"1e400", 6},
               {u" 12632256 ", 0}, {u"2147483647", 0},  {u"-1", 0},         {u"\t255", 0}};
  for (const auto& c : cases) {
    control->pCouleurFen(c.text);
    EXPECT_EQ(Raised([&] { control->ShowMicroEdit(); }),
              c.number ? Error(c.number, u"pCouleurFen") : Error());
    EXPECT_EQ(IsOpen(), c.number == 0);
    control->pStrOrchm();
  }
}

TEST_F(ErrorsTest, OnlyAPathWithADriveNamesAFile) {
  const std::pair<std::u16string_view, bool> notes[] = {
      {u"C:\\a.rtf", true},          {u"C:\\a.rt", false},
      {u"?:\\abcde", true},          {u"?:\\abcd", false},
      {u"\\\\server\\x.rtf", false}, {u"notes\\x.rtf", false},
      {u"C:/notes/x.rtf", false},    {u"", false}};
  for (const auto& [note, isFile] : notes) {
    control->pStrOrchm(note);
    EXPECT_EQ(control->Parts().session->fileMode, isFile) << testing::PrintToString(note);
    EXPECT_EQ(control->Parts().session->documentPath, isFile ? note : u"");
  }
}

TEST_F(ErrorsTest, AnotherThreadIsRefusedAtOnceByEveryMember) {
  Open(u"note");
  const std::pair<std::u16string, void (CoBxRtf::*)(std::u16string_view)> properties[] = {
      {u"pNomAppli", &CoBxRtf::pNomAppli},     {u"pChmAppli", &CoBxRtf::pChmAppli},
      {u"pTitreCadre", &CoBxRtf::pTitreCadre}, {u"pTitreFenêtre", &CoBxRtf::pTitreFenêtre},
      {u"pCouleurFen", &CoBxRtf::pCouleurFen}, {u"pSScléReg", &CoBxRtf::pSScléReg},
      {u"pAttribut", &CoBxRtf::pAttribut},     {u"pModelWord", &CoBxRtf::pModelWord},
      {u"pStrOrchm", &CoBxRtf::pStrOrchm}};
  std::thread([&] {
    for (const auto& property : properties)
      EXPECT_EQ(Raised([&] { ((*control).*property.second)(u"C:\\x\\y.exe"); }),
                Error(5, property.first));
    EXPECT_EQ(Raised([&] { control->pStrOrchm(); }), Error(5, u"pStrOrchm"));
    EXPECT_EQ(Raised([&] { control->ShowMicroEdit(1); }), Error(5, u"ShowMicroEdit"));
  }).join();
  EXPECT_TRUE(IsOpen());
  EXPECT_EQ(control->pStrOrchm(), u"note");
}

/// A machine whose parts are broken in a way that is no run-time error.
struct BrokenPlatform final : PilotPlatform {
  using PilotPlatform::PilotPlatform;
  [[noreturn]] static void Break() { throw std::length_error("broken"); }
  Backend& Windows() override { Break(); }
  Files& FileSystem() override { Break(); }
};

TEST_F(ErrorsTest, OnlyRunTimeErrorsCrossTheControl) {
  BrokenPlatform broken(sandbox, backend, fonts);
  CoBxRtf lost(broken);
  lost.pCouleurFen(u"0");
  EXPECT_EQ(Raised([&] { lost.ShowMicroEdit(); }), Error(51, u"ShowMicroEdit"));
  EXPECT_EQ(Raised([&] { lost.pChmAppli(u"C:\\x\\y.exe"); }), Error(51, u"pChmAppli"));
  EXPECT_EQ(lost.Parts().session->listCorrPath, u"C:\\x\\ListCorr.txt");
}

TEST_F(ErrorsTest, WithoutAWindowSystemNothingCanBeWaitedFor) {
  HeadlessBackend nobody;
  PilotPlatform machine(sandbox, nobody, fonts);
  CoBxRtf lonely(machine);
  lonely.pCouleurFen(u"0");
  EXPECT_EQ(Raised([&] { Open(lonely, u"note"), lonely.ShowMicroEdit(1); }),
            Error(5, u"ShowMicroEdit"));
  EXPECT_EQ(lonely.pStrOrchm(), u"note");
}

}  // namespace
}  // namespace lumenote
