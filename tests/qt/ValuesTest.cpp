// Values that cross the edge to the toolkit: lengths, keys, clipboard content.
#include <QGuiApplication>
#include <gtest/gtest.h>

#include "backends/qt/toolkit/Keys.h"
#include "backends/qt/toolkit/MimeContent.h"
#include "backends/qt/toolkit/QtText.h"
#include "backends/qt/toolkit/Units.h"
#include "backends/qt/windows/WindowGeometry.h"

namespace lumenote {
namespace {

TEST(UnitsTest, NeighboursNeitherGapNorOverlap) {
  for (int left = 0; left < 60; ++left) {
    const Rect one{static_cast<float>(left), 7, 100, 50};
    const Rect other{one.left + one.width, 7, 83, 50};
    EXPECT_EQ(ToPixels(one).right() + 1, ToPixels(other).left());
  }
  EXPECT_EQ(ToPixels({-10, 0, 25, 1e30F}), QRect(-1, 0, 2, 32000));
}

constexpr Rect kPlace{5000, 3250, 5650, 4350};

TEST(WindowGeometryTest, NeverWritesRoundedPixelsBack) {
  WindowGeometry geometry;
  geometry.Asked(kPlace);
  EXPECT_EQ(WindowGeometry::ClientSize(kPlace), QSize(369, 263));
  EXPECT_EQ(geometry.Resized({369, 263}, kPlace), std::nullopt);
  EXPECT_EQ(geometry.Resized({368, 264}, kPlace), std::nullopt) << "a fractional scale";
  EXPECT_EQ(geometry.Moved({340, 250}, kPlace), std::nullopt) << "the window manager";
}

TEST(KeysTest, NamesBothWays) {
  const struct {
    int key;
    Qt::KeyboardModifiers modifiers;
    const char16_t* name;
  } cases[] = {{Qt::Key_Left, Qt::ControlModifier | Qt::ShiftModifier, u"Ctrl+Shift+Left"},
               {Qt::Key_Return, {}, u"Return"},
               {Qt::Key_Backspace, {}, u"BackSpace"},
               {Qt::Key_Backtab, Qt::ShiftModifier, u"Shift+Tab"},
               {Qt::Key_Z, Qt::ControlModifier, u"Ctrl+Z"},
               {Qt::Key_F10, Qt::ShiftModifier, u"Shift+F10"}};
  for (const auto& c : cases) {
    const QKeyEvent pressed(QEvent::KeyPress, c.key, c.modifiers);
    const auto stroke = ParseKey(c.name);
    ASSERT_TRUE(stroke) << ToUtf8(c.name);
    EXPECT_EQ(StrokeOf(pressed), stroke) << ToUtf8(c.name);
    const QKeyEvent made = EventOf(*stroke, QEvent::KeyPress);
    EXPECT_EQ(made.key(), c.key) << ToUtf8(c.name);
    EXPECT_EQ(made.modifiers(), c.modifiers) << ToUtf8(c.name);
  }
  EXPECT_EQ(StrokeOf(QKeyEvent(QEvent::KeyPress, Qt::Key_Shift, {})), std::nullopt);
}

TEST(KeysTest, OnlyTextIsTyped) {
  const auto typed = [](Qt::KeyboardModifiers modifiers, const char* text) {
    return TypedText(QKeyEvent(QEvent::KeyPress, 0, modifiers, QString::fromUtf8(text)));
  };
  EXPECT_EQ(typed({}, "é"), QStringLiteral("é"));
  EXPECT_EQ(typed(Qt::ShiftModifier, "A"), QStringLiteral("A"));
  EXPECT_EQ(typed(Qt::GroupSwitchModifier, "€"), QStringLiteral("€"));
  EXPECT_EQ(typed({}, "\r"), QString());
  EXPECT_EQ(typed(Qt::AltModifier, "f"), QString());
  EXPECT_EQ(typed(Qt::ControlModifier, "\x03"), QString());
}

TEST(MimeTest, NormalisesTextAndReadsRtfUnderItsNamesAndHtmlAsText) {
  QMimeData data;
  data.setText(QString::fromUtf16(u"a\nb\r\nc\rd\0e\0\0", 12));
  EXPECT_EQ(ReadMime(data).text, std::u16string(u"a\r\nb\r\nc\r\nd\0e", 12));
  EXPECT_EQ(WriteMime({u"a\r\nb", {}})->text(), QStringLiteral("a\nb"));
  QMimeData html;
  html.setHtml(QStringLiteral("<p>un <b>deux</b></p>"));
  EXPECT_EQ(ReadMime(html).text, u"un deux");
  for (const char* name : {"text/rtf", "application/rtf", "Rich Text Format"}) {
    QMimeData rtf;
    rtf.setData(QLatin1String(name), "{\\rtf1 x}");
    EXPECT_TRUE(HasMimeContent(rtf));
    EXPECT_EQ(ReadMime(rtf).rtf, "{\\rtf1 x}");
  }
  QMimeData other;
  other.setData(QStringLiteral("image/png"), "x");
  EXPECT_FALSE(HasMimeContent(other));
}

}  // namespace
}  // namespace lumenote
