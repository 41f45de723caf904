// A clipboard of one's own.
#pragma once
#include "platform/Clipboard.h"

namespace lumenote {

/// Empty at first; no other program sees it.
class MemoryClipboard final : public Clipboard {
 public:
  ClipboardContent Get() const override { return content_; }
  bool HasContent() const override { return content_.text || content_.rtf; }
  void Set(const ClipboardContent& content) override { content_ = content; }
  void Clear() override { content_ = {}; }

 private:
  ClipboardContent content_;
};

}  // namespace lumenote
