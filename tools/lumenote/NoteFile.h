// Notes in native files and standard streams.
#pragma once
#include <optional>
#include <string>
#include <string_view>

#include "backends/headless/FixedBreaker.h"
#include "backends/headless/MemoryClipboard.h"
#include "backends/posix/saving/PosixFiles.h"
#include "base/TextForm.h"
#include "surface/DocumentSurface.h"

namespace lumenote::tool {

enum class Format { Rtf, Text };

/// What a file name's extension says, in any letter case; nothing for another one.
std::optional<Format> FormatOfName(std::string_view name);

/// A note without a window.
class Note {
 public:
  /// Raises `Failure` when `name` ends in .rtf and its content is not RTF. Without an extension
  /// that says so, content is RTF when it looks like it.
  Note(const std::string& name, std::string_view bytes);

  /// The format it was read in.
  Format Source() const { return source_; }
  std::u16string Text() const { return surface_.Text(); }
  RichTextSurface& Surface() { return surface_; }
  /// The note as a file: RTF, or text with CR LF in the form of UTF-8 that it was read in, else in
  /// code page 1252, as UTF-8 with a mark where that does not go.
  std::string Bytes(Format format) const;

 private:
  MemoryClipboard clipboard_;
  PosixFiles files_{DrivePaths{""}};
  FixedBreaker breaker_{0};
  DocumentSurface surface_{clipboard_, files_, breaker_};
  Format source_;
  TextForm form_ = TextForm::Windows1252;
};

/// Absolute, so that the folder above it can be looked at when it is missing.
std::string Absolute(const std::string& name);

/// `name` is a native path, or "-" for a standard stream. Raise `Failure`.
std::string ReadBytes(const std::string& name);
/// A file is replaced at once or not at all.
void WriteBytes(const std::string& name, std::string_view bytes);

}  // namespace lumenote::tool
