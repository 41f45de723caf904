#include "forms/values/Members.h"

#include "base/RuntimeError.h"

namespace lumenote {

void MemberTable::Add(std::string_view name, Reader get, Writer set) {
  std::function<void(const Value&, int)> writer;
  if (set) writer = [set = std::move(set)](const Value& value, int) { set(value); };
  AddIndexed(
      name, [get = std::move(get)](int) { return get(); }, std::move(writer));
}

void MemberTable::AddIndexed(std::string_view name, std::function<Value(int)> get,
                             std::function<void(const Value&, int)> set) {
  members_.push_back({name, std::move(get), std::move(set)});
}

const Member* MemberTable::Find(std::string_view name) const {
  for (auto member = members_.rbegin(); member != members_.rend(); ++member)
    if (member->name == name) return &*member;
  return nullptr;
}

std::u16string_view TextOf(const Value& value) {
  if (const auto* text = value.AsString()) return *text;
  throw RuntimeError(ErrorNumber::TypeMismatch);
}

double NumberOf(const Value& value) {
  if (const double* number = value.AsNumber()) return *number;
  throw RuntimeError(ErrorNumber::TypeMismatch);
}

bool BooleanOf(const Value& value) {
  if (const bool* flag = value.AsBool()) return *flag;
  return NumberOf(value) != 0;
}

}  // namespace lumenote
