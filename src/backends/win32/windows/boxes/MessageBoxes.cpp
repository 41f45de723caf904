#include "backends/win32/windows/boxes/MessageBoxes.h"

#include <optional>
#include <string>
#include <vector>

#include "backends/win32/system/NativeText.h"
#include "backends/win32/toolkit/VisualStyles.h"
#include "backends/win32/windows/ModalLock.h"
#include "base/RuntimeError.h"

namespace lumenote {
namespace {

using Answer = MessageBox::Answer;

UINT IconOf(MessageBox::Icon icon) {
  switch (icon) {
    case MessageBox::Icon::None:
      return 0;
    case MessageBox::Icon::Critical:
      return MB_ICONERROR;
    case MessageBox::Icon::Question:
      return MB_ICONQUESTION;
    case MessageBox::Icon::Exclamation:
      return MB_ICONWARNING;
    case MessageBox::Icon::Information:
      return MB_ICONINFORMATION;
  }
  return 0;
}

/// The version resource of the host's program; empty if it has none.
std::vector<char> ProgramVersion() {
  wchar_t path[MAX_PATH];
  DWORD ignored = 0;
  const DWORD length = GetModuleFileNameW(nullptr, path, MAX_PATH);
  if (length == 0 || length == MAX_PATH) return {};
  std::vector<char> block(GetFileVersionInfoSizeW(path, &ignored));
  const auto size = static_cast<DWORD>(block.size());
  if (size == 0 || !GetFileVersionInfoW(path, 0, size, block.data())) return {};
  return block;
}

/// The name by which the host's program describes itself, in its first language.
std::u16string ProgramName() {
  const std::vector<char> version = ProgramVersion();
  const WORD* language = nullptr;
  const wchar_t* name = nullptr;
  UINT size = 0;
  if (version.empty() ||
      !VerQueryValueW(version.data(), L"\\VarFileInfo\\Translation",
                      reinterpret_cast<void**>(const_cast<WORD**>(&language)), &size) ||
      size < 2 * sizeof(WORD))
    return {};
  wchar_t key[64];
  swprintf(key, std::size(key), L"\\StringFileInfo\\%04x%04x\\FileDescription", language[0],
           language[1]);
  if (!VerQueryValueW(version.data(), key, reinterpret_cast<void**>(const_cast<wchar_t**>(&name)),
                      &size))
    return {};
  return std::u16string(Utf16(name));
}

std::u16string TitleOf(const MessageBox& box) {
  if (!box.title.empty()) return box.title;
  const std::u16string program = ProgramName();
  return program.empty() ? u"Lumenote" : program;
}

bool IsAnswer(int answer, MessageBox::Buttons buttons) {
  if (buttons == MessageBox::Buttons::Ok) return answer == IDOK || answer == IDCANCEL;
  return answer == IDYES || answer == IDNO;
}

/// Takes a request to quit off the queue, if there is one.
bool TakeQuit(std::optional<WPARAM>& quit) {
  MSG message;
  if (!PeekMessageW(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE)) return false;
  quit = message.wParam;
  return true;
}

/// The system takes a box down when its program is asked to quit; the user has still to answer.
int AnswerTo(const MessageBox& box, HWND over, UINT kind) {
  const std::u16string title = TitleOf(box);
  std::optional<WPARAM> quit;
  int answer = 0;
  do {
    answer = MessageBoxW(over, Wide(box.text), Wide(title), kind);
  } while (!IsAnswer(answer, box.buttons) && TakeQuit(quit));
  if (quit) PostQuitMessage(static_cast<int>(*quit));
  return answer;
}

}  // namespace

// The system locks the window below only. A question that could not be asked, or went with its
// window, has no answer.
Answer ShowMessageBox(const MessageBox& box, HWND over) {
  const bool question = box.buttons == MessageBox::Buttons::YesNo;
  const UINT kind = IconOf(box.icon) | (question ? MB_YESNO : MB_OK);
  const ModalLock others(over);
  const VisualStyles styles;
  const int answer = AnswerTo(box, over, kind);
  if (!question) return Answer::Ok;
  if (!IsAnswer(answer, box.buttons)) throw RuntimeError(ErrorNumber::OutOfMemory);
  return answer == IDYES ? Answer::Yes : Answer::No;
}

}  // namespace lumenote
