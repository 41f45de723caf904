// Values that cross the edge to the toolkit: lengths, typed text, clipboard content.
#include <QGuiApplication>
#include <QImage>
#include <QLineEdit>
#include <QMenu>
#include <QTemporaryDir>
#include <QUrl>
#include <gtest/gtest.h>

#include "backends/qt/toolkit/FrenchTexts.h"
#include "backends/qt/toolkit/Keys.h"
#include "backends/qt/toolkit/LineEdits.h"
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

TEST(LineEditsTest, MenusSpeakFrench) {
  QLineEdit line(QStringLiteral("texte"));
  GiveFrenchMenu(line);
  emit line.customContextMenuRequested({});
  const auto* const menu = line.findChild<QMenu*>();
  ASSERT_TRUE(menu);
  QStringList labels;
  for (const QAction* entry : menu->actions())
    labels += entry->text().section(u'\t', 0, 0).remove(u'&');
  EXPECT_EQ(labels.join(u'|').toStdString(),
            "Annuler|Rétablir||Couper|Copier|Coller|Supprimer||Tout sélectionner");
  EXPECT_TRUE(menu->actions().front()->text().contains(u'\t')) << "the shortcut stays";
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
}

// A JPEG stays as it is; what no note holds becomes PNG; damaged images and other files are none.
TEST(MimeTest, ReadsImagesAndFilesOfImages) {
  const QTemporaryDir folder;
  QImage red(4, 2, QImage::Format_RGB32);
  red.fill(Qt::red);
  const auto file = [&](const char* name) { return folder.filePath(QLatin1String(name)); };
  for (const char* name : {"a.jpg", "b.png", "c.bmp"}) ASSERT_TRUE(red.save(file(name)));
  QFile text(file("d.txt"));
  ASSERT_TRUE(text.open(QIODevice::WriteOnly) && text.write("texte"));
  QFile jpeg(file("a.jpg"));
  ASSERT_TRUE(jpeg.open(QIODevice::ReadOnly));
  const QByteArray bytes = jpeg.readAll();

  QMimeData files;
  files.setUrls({QUrl::fromLocalFile(file("a.jpg")), QUrl::fromLocalFile(file("c.bmp"))});
  const ClipboardContent read = ReadMime(files);
  EXPECT_FALSE(read.text);
  EXPECT_TRUE(read.imageNames.find(u"c.bmp") != std::u16string::npos);
  ASSERT_EQ(read.images.size(), 2u);
  EXPECT_EQ(read.images[0], bytes.toStdString());
  EXPECT_TRUE(read.images[1].starts_with("\x89PNG"));
  files.setUrls({QUrl::fromLocalFile(file("b.png")), QUrl::fromLocalFile(file("d.txt"))});
  EXPECT_TRUE(ReadMime(files).images.empty());
  EXPECT_TRUE(ReadMime(files).text);
  ASSERT_TRUE(QFile::resize(file("b.png"), 64 << 20));  // no room beside another
  files.setUrls({QUrl::fromLocalFile(file("a.jpg")), QUrl::fromLocalFile(file("b.png"))});
  EXPECT_TRUE(ReadMime(files).images.empty());
  EXPECT_TRUE(ReadMime(files).imagesTooLarge);

  QMimeData data;
  data.setData(QStringLiteral("image/jpeg"), bytes);
  data.setData(QStringLiteral("image/png"), "x");
  EXPECT_TRUE(HasMimeContent(data));
  EXPECT_EQ(ReadMime(data).images, std::vector{bytes.toStdString()});
  data.clear();
  data.setImageData(red);
  EXPECT_TRUE(ReadMime(data).images.at(0).starts_with("\x89PNG"));
  data.setText(QStringLiteral("riche"));
  EXPECT_TRUE(ReadMime(data).images.empty());

  const auto offered = WriteMime({.text = u"\uFFFC", .images = {bytes.toStdString()}});
  EXPECT_EQ(offered->data(QStringLiteral("image/jpeg")), bytes);
  EXPECT_EQ(QImage::fromData(offered->data(QStringLiteral("image/png"))).size(), red.size());
}

TEST(InFrench, KeepsTheNamesInSentences) {
  EXPECT_EQ(
      InFrench(QStringLiteral("/tmp/a & b.pdf already exists.\nDo you want to overwrite it?")),
      QStringLiteral("/tmp/a & b.pdf existe déjà.\nFaut-il le remplacer ?"));
  EXPECT_EQ(
      InFrench(QStringLiteral("File %2 is not writable.\nPlease choose a different file name.")),
      QStringLiteral("Le fichier %2 est protégé.\nChoisissez un autre nom de fichier."));
  EXPECT_EQ(InFrench(QStringLiteral("&Cancel")), QStringLiteral("Annuler"));
  EXPECT_EQ(InFrench(QStringLiteral("a & b")), QStringLiteral("a & b"));
}

}  // namespace
}  // namespace lumenote
