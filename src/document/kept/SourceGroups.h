// The groups that a piece of kept source consists of.
#pragma once
#include <string_view>
#include <vector>

namespace lumenote {

struct SourceGroup {
  std::string_view word{};    // its first one
  std::string_view source{};  // braces included
};
/// The outermost groups, without what stands among them. They are views of the source.
std::vector<SourceGroup> GroupsOf(std::string_view source);
/// What stands between the braces of a group.
std::string_view InsideOf(std::string_view group);

}  // namespace lumenote
