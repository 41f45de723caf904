// What reader and writer agree on about tables.
#pragma once

namespace lumenote {

inline constexpr int kDeepestTable = 30;  // tables within tables

}  // namespace lumenote
