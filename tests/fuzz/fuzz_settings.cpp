// Any bytes as a settings file, and as names and a value: the value is found again, nothing is
// lost.
#include "Target.h"
#include "backends/native/settings/IniText.h"
#include "base/TextEncoding.h"

void Try(std::string_view bytes) {
  const std::u16string name =
      lumenote::DecodeText(bytes.substr(0, 64), lumenote::TextEncoding::Utf16Le);
  lumenote::IniText text{std::string(bytes)};
  text.Find(name, name, name);
  text.Set(name, name, name, name);
  const lumenote::IniText again(text.Bytes());
  Check(again.Find(name, name, name) == name);
  Check(again.Bytes() == text.Bytes());
}
