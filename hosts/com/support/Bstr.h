// The system's strings: owned ones, and those of parameters.
#pragma once
#include <new>
#include <string>
#include <string_view>

#include "Ole.h"

namespace lumenote {

/// Empty for a null string.
inline std::u16string FromBstr(BSTR text) { return {text, text + SysStringLen(text)}; }

/// A string for a caller, who frees it. Raises std::bad_alloc.
inline BSTR ToBstr(std::u16string_view text) {
  const std::wstring wide(text.begin(), text.end());
  BSTR made = SysAllocStringLen(wide.data(), static_cast<UINT>(wide.size()));
  if (!made) throw std::bad_alloc();
  return made;
}

/// Frees its string.
class Bstr {
 public:
  explicit Bstr(std::u16string_view text) : text_(ToBstr(text)) {}
  ~Bstr() { SysFreeString(text_); }
  Bstr(const Bstr&) = delete;
  Bstr& operator=(const Bstr&) = delete;

  BSTR Get() const { return text_; }

 private:
  BSTR text_;
};

}  // namespace lumenote
