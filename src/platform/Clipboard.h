// The system clipboard, limited to plain text, RTF, HTML and images.
#pragma once
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace lumenote {

struct ClipboardContent {
  std::optional<std::u16string> text{};
  std::optional<std::string> rtf{};   // source bytes
  std::optional<std::string> html{};  // a page or a part of one, in UTF-8, without an envelope
  std::vector<std::string> images{};  // files in PNG or JPEG; not read where the rest is richer
  bool imagesTooLarge = false;        // files that are images, left out for their size
  std::u16string imageNames{};        // of images that are files: their text if only text is wanted
};

/// Of the images of one act, in bytes.
inline constexpr std::uint64_t kMostImageBytes = 64 << 20;

class Clipboard {
 public:
  virtual ~Clipboard() = default;
  /// What can be pasted; all members are empty if the clipboard holds none of them.
  virtual ClipboardContent Get() const = 0;
  /// Whether `Get` would return anything, without transferring it.
  virtual bool HasContent() const = 0;
  /// Replaces whatever the clipboard held.
  virtual void Set(const ClipboardContent& content) = 0;
  virtual void Clear() = 0;
};

}  // namespace lumenote
