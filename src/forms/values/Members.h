// Members of windows and controls by name: how scripts read and write them.
#pragma once
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "base/Value.h"

namespace lumenote {

/// One member; without `set` it can only be read. Reading may need the text between parentheses
/// ("Panels(1)"), which is handed on as `index`, -1 when there is none.
struct Member {
  std::string_view name;
  std::function<Value(int index)> get;
  std::function<void(const Value& value, int index)> set;
};

/// Filled by each class from its base to itself; a later entry of the same name prevails.
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

/// A value as the type that a member wants; raise TypeMismatch (13) when it is none.
std::u16string_view TextOf(const Value& value);
double NumberOf(const Value& value);
/// True and false, or a number (0 is false).
bool BooleanOf(const Value& value);

}  // namespace lumenote
