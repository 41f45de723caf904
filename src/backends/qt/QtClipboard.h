// The desktop's clipboard.
#pragma once
#include "platform/Clipboard.h"

namespace lumenote {

class QtClipboard final : public Clipboard {
 public:
  ClipboardContent Get() const override;
  bool HasContent() const override;
  void Set(const ClipboardContent& content) override;
  void Clear() override;
};

}  // namespace lumenote
