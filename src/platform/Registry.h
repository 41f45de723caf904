// The machine-wide registry, used to find installed programs.
#pragma once
#include <optional>
#include <string>
#include <string_view>

namespace lumenote {

class Registry {
 public:
  virtual ~Registry() = default;
  /// A string value of a key under the local-machine root. The letter case of `key` is ignored; an
  /// empty `name` is the key's default value. Empty if there is no such key or value.
  virtual std::optional<std::u16string> Read(std::u16string_view key,
                                             std::u16string_view name) const = 0;
};

}  // namespace lumenote
