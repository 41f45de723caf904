// Command lines of programs.
#include "base/Rows.h"
#include "platform/Paths.h"
#include "platform/ProgramCommand.h"

namespace lumenote {
namespace {

TEST(ProgramCommandTest, SplitsByTheRulesOfDriveLetterPrograms) {
  for (const auto& [line, words] : Rows<2>(R"(
␣ => "" ¦ ␣␣a b⇥ c␣ => <a><b><c> ¦ "C:\a b\" x => <C:\a b\><x> ¦ p "open => <p><open>
p "C:\a b" /l"" "" => <p><C:\a b></l><> ¦ p a\\"b c" \"d\\e => <p><a\b c><"d\\e> ¦ "open => <open>
"C:\a"" b\""" x => <C:\a" b\"><x>
)",
                                           " => ")) {
    std::string split;
    for (const std::u16string& word : SplitCommandLine(FromUtf8(Replaced(line, "⇥", "\t"))))
      split += "<" + ToUtf8(word) + ">";
    EXPECT_EQ(split, words) << line;
  }
  const std::u16string paths[] = {u"C:\\a b.rtf", u"C:\\a\"b", u"C:\\\"\"", u"a\\\" \\b\"\\", u""};
  for (const auto& program : paths)
    for (const auto& file : paths)
      EXPECT_EQ(
          SplitCommandLine(QuotedProgram(program) + u" " + Quoted(file) + u" /l" + Quoted(file)),
          (std::vector{program, file, u"/l" + file}));
  EXPECT_EQ(QuotedProgram(u"C:\\\\a b\\"), u"\"C:\\a b\\\"");
  EXPECT_EQ(Quoted(u"C:\\\\a b\\"), u"\"C:\\a b\\\"");
  EXPECT_EQ(ChmExts(u"C:\\a.rtf", u"txt"), u"C:\\a.txt");
  EXPECT_EQ(ChmExts(u"ab", u"txt"), u"");
}

}  // namespace
}  // namespace lumenote
