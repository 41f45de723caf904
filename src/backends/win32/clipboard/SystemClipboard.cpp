#include "backends/win32/clipboard/SystemClipboard.h"

#include <algorithm>

#include "backends/win32/clipboard/HtmlFormat.h"
#include "backends/win32/clipboard/OfferedData.h"
#include "backends/win32/clipboard/SharedImages.h"
#include "backends/win32/system/SharedMemory.h"

namespace lumenote {
namespace {

/// Open as long as this lives.
class OpenedClipboard {
 public:
  explicit OpenedClipboard(HWND owner) {
    for (int i = 0; i < 20 && !open_; ++i) {
      if (i > 0) Sleep(10);
      open_ = OpenClipboard(owner);
    }
  }
  OpenedClipboard(const OpenedClipboard&) = delete;
  OpenedClipboard& operator=(const OpenedClipboard&) = delete;
  ~OpenedClipboard() {
    if (open_) CloseClipboard();
  }
  explicit operator bool() const { return open_; }

 private:
  bool open_ = false;
};

class Offered final : public OfferedData {
 public:
  std::vector<UINT> Formats() const override {
    std::vector<UINT> formats;
    for (UINT format = EnumClipboardFormats(0); format != 0; format = EnumClipboardFormats(format))
      formats.push_back(format);
    return formats;
  }
  OfferedMemory In(UINT format) const override {
    return {GetClipboardData(format), [](HGLOBAL) {}};
  }
};

/// Gives the open clipboard what was made for it.
void Put(UINT format, HGLOBAL data) {
  if (data && !SetClipboardData(format, data)) GlobalFree(data);
}

}  // namespace

SystemClipboard::SystemClipboard()
    : owner_(CreateWindowExW(0, L"STATIC", L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, nullptr,
                             nullptr)) {}

SystemClipboard::~SystemClipboard() { DestroyWindow(owner_); }

ClipboardContent SystemClipboard::Get() const {
  const OpenedClipboard clipboard(owner_);
  return clipboard ? ReadOffered(Offered()) : ClipboardContent();
}

bool SystemClipboard::HasContent() const {
  return std::ranges::any_of(ReadableFormats(), IsClipboardFormatAvailable);
}

void SystemClipboard::Set(const ClipboardContent& content) {
  const OpenedClipboard clipboard(owner_);
  if (!clipboard || !EmptyClipboard()) return;
  if (content.rtf) Put(RtfFormat(), SharedCopy(*content.rtf));
  if (content.html) Put(HtmlFormat(), SharedCopy(WithHtmlHeader(*content.html)));
  if (!content.images.empty())
    for (const ImageForm& form : FormsOf(content.images.front()))
      Put(form.format, SharedBytes(form.bytes));
  if (content.text) Put(CF_UNICODETEXT, SharedCopy(*content.text));
}

void SystemClipboard::Clear() { Set({}); }

}  // namespace lumenote
