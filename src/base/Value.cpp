// Look-up and comparison of JSON values.
#include "base/Value.h"

#include <algorithm>

namespace lumenote {

const Value* Value::Find(std::string_view key) const {
  const Object* object = AsObject();
  if (!object) return nullptr;
  const auto found = std::find_if(object->begin(), object->end(),
                                  [&](const auto& member) { return member.first == key; });
  return found == object->end() ? nullptr : &found->second;
}

bool Value::operator==(const Value& other) const {
  const Object* object = AsObject();
  if (!object || !other.AsObject()) return data_ == other.data_;
  return object->size() == other.AsObject()->size() &&
         std::all_of(object->begin(), object->end(), [&](const auto& member) {
           const Value* match = other.Find(member.first);
           return match && member.second == *match;
         });
}

}  // namespace lumenote
