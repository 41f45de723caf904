// Any bytes: what reads as JSON writes a text that reads as the same value. As the record of a work
// file they are read or refused.
#include "Target.h"
#include "base/Value.h"
#include "extapps/WorkRecord.h"
#include "platform/StateFolder.h"

void Try(std::string_view text) {
  lumenote::SentOf({u"*", std::string(text)});
  try {
    const lumenote::Value value = lumenote::ReadJson(text);
    const std::string written = lumenote::WriteJson(value);
    std::string_view again = written;
    Check(lumenote::ReadJson(again) == value && again.empty());
  } catch (const lumenote::JsonError&) {
  }
}
