// The system's clipboard.
#pragma once
#include "backends/win32/system/System.h"
#include "platform/Clipboard.h"

namespace lumenote {

/// Offers and takes Unicode text, RTF, HTML and images, and takes files. A clipboard that another
/// program holds open for longer than a moment reads as empty and takes nothing.
class SystemClipboard final : public Clipboard {
 public:
  SystemClipboard();
  SystemClipboard(const SystemClipboard&) = delete;
  SystemClipboard& operator=(const SystemClipboard&) = delete;
  ~SystemClipboard() override;

  ClipboardContent Get() const override;
  bool HasContent() const override;
  void Set(const ClipboardContent& content) override;
  void Clear() override;

 private:
  HWND owner_;  // what is put on the clipboard must belong to a window
};

}  // namespace lumenote
