// What a link may open.
#include <gtest/gtest.h>
#include <string>

#include "base/Strings.h"
#include "document/Links.h"

namespace lumenote {
namespace {

TEST(Links, OpenNoProgramAndNoOtherMachinesFile) {
  for (const char16_t* address :
       {u"http://a.fr/b.exe", u"HTTPS://a.fr", u"ftp://a.fr", u"mailto:a@b.fr", u"file:///n.txt",
        u"FILE:///C:/a%20b/n.RTF", u"file:C:\\a\\n.doc", u"file:/a/n.txt", u"file:\\a\\n.txt",
        u"file://localhost/n.txt", u"file:///a.d/n.html#x", u"file:///n.html?x=1#y",
        u"file:///exe.txt", u"file:///a%zz%4.txt", u"file:///caf%C3%A9.pdf",
        u"file:///a.exe/n.txt"})
    EXPECT_TRUE(MayOpen(address)) << ToUtf8(address);
  for (const char16_t* address :
       {u"", u"a.txt", u"C:\\a.txt", u"\\\\s\\a.txt", u"javascript:a", u"http://a\nb", u"-a", u":",
        u"file:", u"file://", u"file:///", u"file:a.txt", u"file:-a.txt", u"file:///home",
        // Other machines.
        u"file://s/a.txt", u"file:////s/a.txt", u"file://///s/b/a.txt", u"file:\\\\s\\a.txt",
        u"file:///\\\\s\\a.txt", u"file:/\\s/a.txt", u"file://localhost//s/a.txt",
        u"file:%5C%5Cs/a.txt", u"file:///%5Cs/a.txt", u"file:///%2Fs/a.txt", u"file://localhost",
        u"file:///?\?/UNC/s/a.txt", u"file://127.0.0.1/a.txt", u"file://s%2Fa.txt",
        u"file://localhost@s/a.txt",
        // Programs, however they are written.
        u"file:///a.exe", u"file:///A.EXE", u"file:///C:/a.%65xe", u"file:C:\\a.bat",
        u"file:/a%2Esh", u"file:///a.cmd.", u"file:///a.cmd%20", u"file:///a.exe. .",
        u"file:///a.exe::$DATA", u"file:///a.exe%20::$DATA", u"file:///a.exe#b.txt",
        u"file:///a.exe?b.txt", u"file:///a.exe%23b.txt", u"file:///b.txt#a.exe",
        u"file:///b?c#d?.desktop#e.txt", u"file:///a.exe%00.txt", u"file:///a.lnk",
        u"file:///a.url", u"file:///a.AppImage", u"file:///.desktop",
        u"file:///a.settingcontent-ms", u"file:///a/"})
    EXPECT_FALSE(MayOpen(address)) << ToUtf8(address);
}

}  // namespace
}  // namespace lumenote
