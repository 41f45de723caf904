// Allocates before a change begins.
#pragma once
#include <algorithm>
#include <cstddef>
#include <vector>

namespace lumenote {

/// Reserves space for `more` elements, so that inserting them cannot fail; grows geometrically.
template <class Element>
void MakeRoom(std::vector<Element>& elements, std::size_t more) {
  const std::size_t size = elements.size() + more;
  if (size > elements.capacity()) elements.reserve(std::max(size, 2 * elements.capacity()));
}

}  // namespace lumenote
