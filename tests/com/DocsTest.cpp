// The documentation's example in C++ does what it says.
#include "ComHost.h"

namespace lumenote {
namespace {

using DocsTest = ComTest;

TEST_F(DocsTest, TheExampleEditsAFile) {
  EditorUser user(L"Orchis purpurea Huds.", L"Forêt");
  const Meanwhile meanwhile([&] { return user.Step(); });
#include "docs_example.inc"
  EXPECT_FALSE(error);
  EXPECT_EQ(FromBstr(path), u"C:\\Notes\\orchis.rtf");
  SysFreeString(path);
}

}  // namespace
}  // namespace lumenote
