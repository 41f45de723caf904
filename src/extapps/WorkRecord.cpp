// A record is an array of texts: the program, the work file and its time, the folder, then the path
// and time of each trace.
#include "extapps/WorkRecord.h"

#include <charconv>
#include <memory>
#include <string>

#include "base/Numbers.h"
#include "base/RuntimeError.h"
#include "base/Strings.h"
#include "base/Value.h"
#include "platform/StateFolder.h"

namespace lumenote {
namespace {

constexpr std::u16string_view kOrigin = u"*";  // never the name of a note
constexpr std::size_t kFixed = 4;              // texts before the traces

std::string Written(const SentWorkFile& sent) {
  Value::Array texts{sent.program, sent.path, NumberText(sent.time), sent.folder};
  for (const FileTrace& trace : sent.old) {
    texts.emplace_back(trace.path);
    texts.emplace_back(NumberText(trace.time));
  }
  return WriteJson(texts);
}

std::optional<std::vector<std::u16string>> TextsIn(std::string_view record) {
  try {
    const Value value = ReadJson(record);
    std::vector<std::u16string> texts;
    if (!value.AsArray()) return std::nullopt;
    for (const Value& text : *value.AsArray()) {
      if (!text.AsString()) return std::nullopt;
      texts.push_back(*text.AsString());
    }
    return texts;
  } catch (const JsonError&) {
    return std::nullopt;
  }
}

std::int64_t TimeOf(std::u16string_view text) {
  const std::string digits = ToUtf8(text);
  std::int64_t time = 0;
  std::from_chars(digits.data(), digits.data() + digits.size(), time);
  return time;
}

}  // namespace

void Record(StateFolder& state, SentWorkFile& sent) {
  IgnoringErrors([&] {
    if (!sent.record) sent.record = state.MakeCopy();
    sent.record->Begin(kOrigin);
    sent.record->Append(Written(sent));
    sent.record->Commit();
  });
}

bool IsRecord(const OrphanedCopy& copy) { return copy.origin == kOrigin; }

std::optional<SentWorkFile> SentOf(const OrphanedCopy& copy) {
  const auto texts = IsRecord(copy) ? TextsIn(copy.bytes) : std::nullopt;
  if (!texts || texts->size() < kFixed || texts->size() % 2 != 0) return std::nullopt;
  SentWorkFile sent{.program = texts->at(0),
                    .path = texts->at(1),
                    .time = TimeOf(texts->at(2)),
                    .folder = texts->at(3)};
  for (std::size_t i = kFixed; i < texts->size(); i += 2)
    sent.old.push_back({texts->at(i), TimeOf(texts->at(i + 1))});
  return sent;
}

}  // namespace lumenote
