// Values that cross the edge to the toolkit: lengths, typed text, clipboard content.
#include <QGuiApplication>
#include <gtest/gtest.h>

#include "backends/qt/toolkit/Keys.h"
#include "backends/qt/toolkit/MimeContent.h"
#include "backends/qt/toolkit/QtText.h"
#include "backends/qt/toolkit/Units.h"

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

TEST(MimeTest, NormalisesTextAndReadsRtfUnderItsNamesAndHtml) {
  QMimeData data;
  data.setText(QString::fromUtf16(u"a\nb\r\nc\rd\0e\0\0", 12));
  EXPECT_EQ(ReadMime(data).text, std::u16string(u"a\r\nb\r\nc\r\nd\0e", 12));
  EXPECT_EQ(WriteMime({u"a\r\nb", {}})->text(), QStringLiteral("a\nb"));
  QMimeData html;
  html.setHtml(QStringLiteral("<p>un <b>deux</b></p>"));
  EXPECT_EQ(ReadMime(html).text, u"un deux");
  EXPECT_EQ(ReadMime(html).html, "<p>un <b>deux</b></p>");
  EXPECT_EQ(WriteMime(ReadMime(html))->html(), html.html());
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
