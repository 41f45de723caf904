#include "backends/win32/clipboard/SystemClipboard.h"

#include "backends/win32/clipboard/HtmlFormat.h"
#include "backends/win32/clipboard/SharedText.h"
#include "backends/win32/files/WideNames.h"

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

/// What the open clipboard holds in a format.
template <class Text>
std::optional<Text> Taken(UINT format) {
  return TextIn<Text>(GetClipboardData(format));
}

/// Gives the open clipboard a copy.
template <class Text>
void Put(UINT format, const Text& text) {
  const HGLOBAL data = SharedCopy(text);
  if (data && !SetClipboardData(format, data)) GlobalFree(data);
}

}  // namespace

SystemClipboard::SystemClipboard()
    : rtf_(RegisterClipboardFormatW(L"Rich Text Format")),
      owner_(CreateWindowExW(0, L"STATIC", L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, nullptr,
                             nullptr)) {}

SystemClipboard::~SystemClipboard() { DestroyWindow(owner_); }

ClipboardContent SystemClipboard::Get() const {
  ClipboardContent content;
  const OpenedClipboard clipboard(owner_);
  if (!clipboard) return content;
  if (const auto text = Taken<std::wstring>(CF_UNICODETEXT)) content.text = FromWide(*text);
  content.rtf = Taken<std::string>(rtf_);
  if (content.rtf && content.rtf->empty()) content.rtf.reset();
  if (const auto html = Taken<std::string>(HtmlFormat())) content.html = WithoutHtmlHeader(*html);
  return content;
}

bool SystemClipboard::HasContent() const {
  return IsClipboardFormatAvailable(CF_UNICODETEXT) || IsClipboardFormatAvailable(rtf_) ||
         IsClipboardFormatAvailable(HtmlFormat());
}

void SystemClipboard::Set(const ClipboardContent& content) {
  const OpenedClipboard clipboard(owner_);
  if (!clipboard || !EmptyClipboard()) return;
  if (content.rtf) Put(rtf_, *content.rtf);
  if (content.html) Put(HtmlFormat(), WithHtmlHeader(*content.html));
  if (content.text) Put(CF_UNICODETEXT, ToWide(*content.text));
}

void SystemClipboard::Clear() { Set({}); }

}  // namespace lumenote
