// Programs that work on one folder take turns.
#include <fcntl.h>
#include <sys/file.h>

#include "backends/native/files/OpenFile.h"
#include "hosts/Host.h"

namespace lumenote {
namespace {

class TurnsTest : public HostTest {};

TEST_F(TurnsTest, AConversionDeletesInItsTurn) {
  OpenFile(u"C:\\n\\a.txt", "avant");
  bool deleted = false;
  platform.files.before = [&](std::string_view operation, std::u16string_view path) {
    if (operation != "delete" || path != u"C:\\n\\a.txt") return;
    deleted = true;
    const lumenote::OpenFile other(open((folder.Path() + "/c/n").c_str(), O_RDONLY | O_DIRECTORY));
    ASSERT_TRUE(other.IsOpen());
    EXPECT_NE(flock(other.Number(), LOCK_EX | LOCK_NB), 0);
  };
  Choose(&ContextMenu::mnuPopTextRichText);
  EXPECT_TRUE(deleted);
}

}  // namespace
}  // namespace lumenote
