// Types into the editor of another program and closes it.   usage: typist TITLE TEXT
#include "../EditorUser.h"

int wmain(int argc, wchar_t** argv) {
  constexpr int kSteps = 3000, kPause = 20;  // a minute for a slow machine
  if (argc != 3) return 2;
  lumenote::EditorUser user(argv[1], argv[2]);
  for (int i = 0; i < kSteps; ++i) {
    if (user.Step()) return 0;
    Sleep(kPause);
  }
  return 1;
}
