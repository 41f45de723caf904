// EUC-JP, which holds the same characters as page 932 under other bytes.
#pragma once
#include <string>
#include <string_view>

namespace lumenote {

inline constexpr int kPageEucJp = 51932;

/// The bytes in page 932. Characters of the supplementary set (three bytes) and stray bytes become
/// a byte that page 932 does not have.
std::string Page932OfEucJp(std::string_view bytes);

}  // namespace lumenote
