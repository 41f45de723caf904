// A private clipboard.
#pragma once
#include "platform/Clipboard.h"

namespace lumenote {

/// Initially empty; not visible to other programs.
class MemoryClipboard final : public Clipboard {
 public:
  ClipboardContent Get() const override { return content_; }
  bool HasContent() const override {
    return content_.text || content_.rtf || content_.html || !content_.images.empty();
  }
  void Set(const ClipboardContent& content) override { content_ = content; }
  void Clear() override { content_ = {}; }

 private:
  ClipboardContent content_;
};

}  // namespace lumenote
