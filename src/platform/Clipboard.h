// The system clipboard, limited to plain text and RTF.
#pragma once
#include <optional>
#include <string>
#include <string_view>

namespace lumenote {

struct ClipboardContent {
  std::optional<std::u16string> text;
  std::optional<std::string> rtf;  // source bytes
};

class Clipboard {
 public:
  virtual ~Clipboard() = default;
  /// What can be pasted; both members are empty if the clipboard holds neither.
  virtual ClipboardContent Get() const = 0;
  /// Whether `Get` would return anything, without transferring it.
  virtual bool HasContent() const = 0;
  /// Replaces whatever the clipboard held.
  virtual void Set(const ClipboardContent& content) = 0;
  virtual void Clear() = 0;
};

}  // namespace lumenote
