// Keys in a one-line edit box.
#include <gtest/gtest.h>

#include "backends/headless/MemoryClipboard.h"
#include "base/Strings.h"
#include "forms/controls/edits/LineText.h"

namespace lumenote {
namespace {

TEST(LineTextTest, KeysMoveSelectEditAndUseTheClipboard) {
  const std::pair<std::u16string_view, std::u16string_view> rows[] = {
      {u"BackSpace", u"un deu[]"},
      {u"Home Left BackSpace Delete", u"[]n deux"},
      {u"Left Left Shift+Left", u"un d[e]ux"},
      {u"Home Shift+Right Shift+Right Right", u"un[] deux"},
      {u"Left Shift+Left Shift+Left Left", u"un d[]eux"},
      {u"Home Shift+End", u"[un deux]"},
      {u"Shift+Home Shift+Right", u"u[n deux]"},
      {u"Shift+Left Ctrl+X Home Ctrl+V", u"x[]un deu"},
      {u"Shift+Left Ctrl+C Home Ctrl+V", u"x[]un deux"},
      {u"Ctrl+C Ctrl+X Ctrl+V", u"un deuxav[]"},
      {u"Ctrl+A Ctrl+V", u"av[]"}};
  for (const auto& [keys, shown] : rows) {
    MemoryClipboard clipboard;
    clipboard.Set({.text = u"a\nv", .rtf = {}});
    LineText line;
    line.Text(u"un deux");
    for (std::size_t from = 0, end = 0; end < keys.size(); from = end + 1) {
      end = std::min(keys.find(u' ', from), keys.size());
      EXPECT_TRUE(line.Key(ParseKey(keys.substr(from, end - from)).value(), clipboard));
    }
    std::u16string text = line.Text();
    text.insert(static_cast<std::size_t>(line.Selected().end), u"]");
    EXPECT_EQ(text.insert(static_cast<std::size_t>(line.Selected().start), u"["), shown)
        << ToUtf8(keys);
  }
}

}  // namespace
}  // namespace lumenote
