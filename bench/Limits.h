// The barest way to do the same work, measured in the same run: what ours is compared with.
#pragma once
#include <cstddef>
#include <functional>
#include <string_view>

namespace benchmark {
class State;
}

namespace lumenote {

/// Looks at every byte once: the number of backslashes.
std::size_t CountBackslashes(std::string_view bytes);
/// Writes every unit once, into memory that is new.
void CopyToFreshMemory(std::u16string_view text);
/// Looks at every unit once and writes what becomes of it; returns the number of matches.
std::size_t ReplaceByCopy(std::u16string_view text, std::u16string_view needle,
                          std::u16string_view replacement);

/// Adds the counter `of_limit`: the median processor time of `limit` as a share of ours (a plain
/// number, though it is shown as a rate).
void CompareWith(benchmark::State& state, const std::function<void()>& limit);

}  // namespace lumenote
