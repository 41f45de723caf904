// Taking memory before a change begins.
#pragma once
#include <algorithm>
#include <cstddef>
#include <vector>

namespace lumenote {

/// Room for `more` elements behind those there are, so that putting them in cannot fail; grows in
/// few steps.
template <class Element>
void MakeRoom(std::vector<Element>& elements, std::size_t more) {
  const std::size_t size = elements.size() + more;
  if (size > elements.capacity()) elements.reserve(std::max(size, 2 * elements.capacity()));
}

}  // namespace lumenote
