// The machine-wide registry, for looking up where programs are installed.
#pragma once
#include <optional>
#include <string>
#include <string_view>

namespace lumenote {

class Registry {
 public:
  virtual ~Registry() = default;
  /// A string value of a key below the local machine's root. The letter case of `key` is ignored;
  /// an empty `name` is the key's default value. Empty when there is no such key or value.
  virtual std::optional<std::u16string> Read(std::u16string_view key,
                                             std::u16string_view name) const = 0;
};

}  // namespace lumenote
