// What another program offers, on the clipboard or in a drag.
#pragma once
#include <memory>
#include <type_traits>
#include <vector>

#include "backends/win32/system/System.h"
#include "platform/Clipboard.h"

namespace lumenote {

/// Memory in one format, which stays the other program's; null if it cannot be had.
using OfferedMemory = std::shared_ptr<std::remove_pointer_t<HGLOBAL>>;

class OfferedData {
 public:
  virtual ~OfferedData() = default;
  /// The first is the program's own, or the richest.
  virtual std::vector<UINT> Formats() const = 0;
  /// Valid as long as this object, at most.
  virtual OfferedMemory In(UINT format) const = 0;
};

/// Line ends of the text become CR LF. Files that are images come as images, and so does an image
/// that nothing richer accompanies; of other files the paths are the text.
ClipboardContent ReadOffered(const OfferedData& data);
/// The formats that `ReadOffered` reads.
std::vector<UINT> ReadableFormats();

UINT RtfFormat();

}  // namespace lumenote
