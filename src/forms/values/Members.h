// Members of windows and controls by name, for scripts.
#pragma once
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "base/Value.h"

namespace lumenote {

/// One member; read-only without `set`. `index` is the text between parentheses ("Panels(1)") as a
/// number, or -1.
struct Member {
  std::string_view name;
  std::function<Value(int index)> get;
  std::function<void(const Value& value, int index)> set;
};

/// Each class adds its members after its base's; a later entry of the same name wins.
class MemberTable {
 public:
  using Reader = std::function<Value()>;
  using Writer = std::function<void(const Value&)>;

  void Add(std::string_view name, Reader get, Writer set = {});
  void AddIndexed(std::string_view name, std::function<Value(int)> get,
                  std::function<void(const Value&, int)> set = {});
  const Member* Find(std::string_view name) const;

 private:
  std::vector<Member> members_;
};

/// Converts a value to the member's type; raises TypeMismatch (13).
std::u16string_view TextOf(const Value& value);
double NumberOf(const Value& value);
/// Booleans, or numbers (0 is false).
bool BooleanOf(const Value& value);

}  // namespace lumenote
