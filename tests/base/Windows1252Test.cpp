#include <gtest/gtest.h>

#include "base/Windows1252.h"

namespace lumenote {
namespace {

std::string AllBytes() {
  std::string bytes;
  for (int byte = 0; byte < 256; ++byte) bytes.push_back(static_cast<char>(byte));
  return bytes;
}

TEST(Windows1252, TakesEachByteThereAndBack) {
  const std::u16string text = Decode1252(AllBytes());
  EXPECT_EQ(text.size(), 256u);
  EXPECT_EQ(Encode1252(text), AllBytes());
  EXPECT_TRUE(Fits1252(text));
  EXPECT_EQ(text[0x80], u'\u20AC');
  for (const int undefined : {0x81, 0x8D, 0x8F, 0x90, 0x9D}) EXPECT_EQ(text[undefined], undefined);
}

TEST(Windows1252, WritesAQuestionMarkForWhatItLacks) {
  EXPECT_EQ(Encode1252(u"a\u0416b\U0001F600c\xD83D"), "a?b?c?");
  EXPECT_EQ(Encode1252(u"\u0080"), "?");
  EXPECT_FALSE(Fits1252(u"a\u0416"));
}

}  // namespace
}  // namespace lumenote
