// Pictures in kept source: their size and part shown, their data.
#include <cmath>
#include <gtest/gtest.h>

#include "base/Rows.h"
#include "document/pictures/ImageSize.h"
#include "document/pictures/Orientation.h"
#include "document/pictures/PictureFrame.h"

namespace lumenote {
namespace {

std::string Number(double value) { return std::to_string(std::lround(value)); }
std::string Shown(const PictureFrame& frame) {
  std::string shown = Number(frame.width) + " " + Number(frame.height);
  if (frame.right - frame.left == 1 && frame.bottom - frame.top == 1) return shown;
  for (const double edge : {frame.left, frame.top, frame.right, frame.bottom})
    shown += " " + Number(100 * edge);
  return shown;
}

std::string FromHex(std::string_view digits) {
  PictureSource source;
  source.data = digits;
  return BytesOf(source);
}

constexpr const char* kPng = "89504e470d0a1a0a0000000d49484452";  // up to the width

// Twips, then percent of the whole image: left, top, right, bottom.
TEST(Pictures, HaveTheSizeOfTheirSource) {
  for (const auto& [source, shown] : Rows<2>(R"(
\pngblip\picwgoal300\pichgoal200 00 => 300 200
\pngblip\picw9\pich9\picwgoal300\pichgoal200\picscalex50\picscaley200 00 => 150 400
\jpegblip\picw10\pich20 ff => 150 300
\wmetafile8\picw2540\pich254 0100 => 1440 144 ¦ \emfblip\picw2540\pich0 01 => 1440 1080
\picwgoal300\pichgoal200\piccropl75\piccropt100 0 => 225 100 25 50 100 100
\picwgoal300\pichgoal200\piccropr30\piccropb-50\picscalex200 0 => 540 200 0 0 90 100
\picwgoal300\pichgoal200\piccropl200\piccropr100 0 => 300 200
\picwgoal-5\picscalex0\picscaley-7 00 => 1200 900 ¦ "" => 1200 900
// what the source leaves out is in the data, or follows from the other side
\pngblip PNG0000006000000030 => 1440 720 ¦ \pngblip\picwgoal100 PNG0000006000000030 => 100 50
\pngblip\pichgoal100 PNG0000006000000030 => 200 100 ¦ \pngblip PNG0000 => 1200 900
\dibitmap0 280000001000000020000000010018000000000000000000 => 1200 900
{\*\picprop{\sp{\sn a}{\sv \picwgoal9}}}\picwgoal30{\*\blipuid 00ff}\pichgoal60 => 30 60
ures\picwgoal7 0 => 1200 900
)",
                                             " => "))
    EXPECT_EQ(Shown(FrameOf({.source = "{\\pict" + Replaced(source, "PNG", kPng) + "}"})), shown)
        << source;
  const KeptItem object{.source =
                            "{\\object\\objemb{\\*\\objdata 0105}{\\result{\\*\\shppict{\\pict"
                            "\\picwgoal30\\pichgoal20 00}}{\\nonshppict{\\pict}}}}"};
  EXPECT_EQ(Shown(FrameOf(object)), "30 20");
}

TEST(Pictures, TellTheirResolution) {
  for (const auto& [type, data, size] : Rows<3>(R"(
// at 300 dots per inch, at none that is known, at one that nobody believes
Png | PNG000000ff000000ff0802000000000000000000000970485973000 02e23 00002e23 01 00000000 | 1224 1224
Png | PNG00000060000000600802000000000000000000000970485973000 02e23 00002e23 00 00000000 | 1440 1440
Png | PNG00000060000000600802000000000000000000000970485973ffffffff00000001 01 00000000 | 1440 1440
Jpeg | ffd8ffe000104a46494600010101012c012c0000ffc0000b0800960 12c01011100 | 1440 720
Jpeg | ffd8ffe000104a464946000101020076 00760000ffc2000b0800960 12c01011100 | 1441 721
Jpeg | ffd8ffffe10008457869660000 ffc4 000600000000 ffc0000b0800960 12c01011100 | 4500 2250
Jpeg | ffd8ffe0ffff4a464946 | none ¦ Jpeg | ffd8ff00 | none ¦ Jpeg | ffd8ffda00000000000000 | none
Bitmap | 28000000100000002000000001001800 00000000 00000000 230b0000 c40e0000 0000000000000000 | 318 480
Bitmap | 280000001000000 0f0ffffff01001800 00000000 00000000 00000000 00000000 0000000000000000 | 240 240
Bitmap | 0c000000100020000100180000000000 | 240 480 ¦ Bitmap | 0b000000100020000100180000000000 | none
// upright
Jpeg | ffd8ffe100224578696600004d4d002a00000008000101120003000000010006000000000000
    ffc0000b080096012c01011100 | 2250 4500
Metafile | 0100 | none ¦ Png | "" | none
)")) {
    const std::string bytes = FromHex(Replaced(data, "PNG", kPng));
    const PictureType of = type == "Png"      ? PictureType::Png
                           : type == "Jpeg"   ? PictureType::Jpeg
                           : type == "Bitmap" ? PictureType::Bitmap
                                              : PictureType::Metafile;
    const auto found = SizeOfImage(of, bytes);
    EXPECT_EQ(found ? Number(found->width) + " " + Number(found->height) : "none", size) << data;
    for (std::size_t cut = 0; cut < bytes.size(); ++cut) SizeOfImage(of, bytes.substr(0, cut));
  }
}

// What is shown as the left and upper part lies elsewhere in the image before it is turned.
TEST(Pictures, StandUpright) {
  const PictureFrame shown{200, 100, 0.1, 0.2, 0.5, 0.9};
  for (const auto& [tiff, part] : Rows<2>(R"(
4d4d002a00000008 0001 0112 0003 00000001 0001 => 10 20 50 90
4d4d002a00000008 0001 0112 0003 00000001 0002 => 50 20 90 90
4d4d002a00000008 0001 0112 0003 00000001 0003 => 50 10 90 80
4d4d002a00000008 0001 0112 0003 00000001 0004 => 10 10 50 80
49492a0008000000 0100 1201 0300 01000000 0500 => 20 10 90 50
49492a0009000000 00 0200 00010300010000000600 0000 1201 0300 01000000 0600 => 20 50 90 90
49492a0008000000 0100 1201 0300 01000000 0700 => 10 50 80 90
4d4d002a00000008 0001 0112 0003 00000001 0008 => 10 10 80 50
// damaged: no such number, type or place
4d4d002a00000008 0001 0112 0003 00000001 0009 => 10 20 50 90
4d4d002a00000008 0001 0112 0004 00000001 0006 => 10 20 50 90
4d4d002affffffff 0001 0112 0003 00000001 0006 => 10 20 50 90
4d4d002a00000008 ffff 0111 0003 00000001 0006 => 10 20 50 90 ¦ "" => 10 20 50 90
)",
                                          " => ")) {
    const std::string file = FromHex("ffd8ffe100404578696600 00" + tiff + std::string(80, '0'));
    const PictureFrame before = BeforeTurning(shown, OrientationOf(file));
    std::string found;
    for (const double edge : {before.left, before.top, before.right, before.bottom})
      found += (found.empty() ? "" : " ") + Number(100 * edge);
    EXPECT_EQ(found, part) << tiff;
    for (std::size_t cut = 0; cut < file.size(); ++cut) OrientationOf(file.substr(0, cut));
  }
}

TEST(Pictures, AreNotTurnedInAFrameOfTheirOwnShape) {
  const std::string file = FromHex(
      "ffd8ffe100224578696600004d4d002a00000008000101120003000000010006000000000000"
      "ffc0000b080096012c01011100");
  EXPECT_TRUE(OrientationIn({150, 300}, file).exchanged);
  EXPECT_TRUE(OrientationIn({150, 30, 0, 0, 1, 0.1}, file).exchanged);
  EXPECT_FALSE(OrientationIn({300, 150}, file).exchanged);
}

TEST(Pictures, AreDecodedIfTheirHeadTellsThatTheyAreNotHuge) {
  for (const auto& [data, decoded] : Rows<2>(R"(
PNG0000200000002000 => yes ¦ PNG0000200000002001 => no ¦ PNG0000 => no ¦ 47494638396101000100 => no
ffd8ffc2000b0820002000 01011100 => yes ¦ ffd8ffc2000b084e204e20 03011100 => no ¦ ffd8ff => no
ffd8ff010004ffc0000b0800100010 01011100 => no ¦ "" => no ¦ 424d => no
424d000000000000000000000000 0c000000002000200100180000000000 => yes
424d000000000000000000000000 0c000000002001200100180000000000 => no
)",
                                             " => "))
    EXPECT_EQ(IsDecodable(FromHex(Replaced(data, "PNG", kPng))) ? "yes" : "no", decoded) << data;
}

// Of digits, whatever stands among them; bitmaps as files; nothing of what is damaged.
TEST(Pictures, GiveTheirData) {
  const std::string dib =
      "280000000100000001000000010018000000000000000000000000000000000000000000"
      "00000000";
  for (const auto& [source, data] : Rows<2>(R"(
\pngblip 89{\*\x 11{22}}50\par 4\'474e => 895044 ¦ \jpegblip FFd8 => ffd8 ¦ \pngblip 8 => ""
\pngblip{\*\blipuid 77}\bin3 {}}89 => 89 ¦ \wmetafile8 0100 => "" ¦ \pngblip => ""
\dibitmap0 DIB00ff0000 => 424d3a000000000000003600 0000DIB00ff0000 ¦ \dibitmap0 2800 => ""
\dibitmap0 0c0000000100010001000100 ffffff000000 80 => 424d21000000000000002000 00000c000000010001000100010 0ffffff00000080
\dibitmap0 ffffffff0100010001000100 => "" ¦ \dibitmap0 DIB => ""
\wbitmap0\picw2\pich1\wbmbitspixel24\wbmwidthbytes6 010203040506 => 424d3e0000000000000036000000 28000000 02000000ffffffff01001800 0000000000000000000000000000000000000000000000000102030405060000
\wbitmap0\picw2\pich1\wbmbitspixel24\wbmwidthbytes5 0102030405 => "" ¦ \wbitmap0\picw0\pich1\wbmwidthbytes2 00 => ""
\wbitmap0\picw32767\pich32767\wbmbitspixel1\wbmwidthbytes4096 00 => "" ¦ \wbitmap0\picw-1\pich1 00 => ""
\wbitmap0\picw1\pich1\wbmbitspixel8\wbmwidthbytes2 0000 => ""
)",
                                            " => ")) {
    const std::string group = "{\\pict" + Replaced(source, "DIB", dib) + "}";
    EXPECT_EQ(ImageFileOf({.source = group}), FromHex(Replaced(data, "DIB", dib))) << source;
    for (std::size_t cut = 0; cut < group.size(); ++cut)
      ImageFileOf({.source = group.substr(0, cut)});
  }
}

}  // namespace
}  // namespace lumenote
