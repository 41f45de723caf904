// The lists that are open while items are written.
#pragma once
#include <cstdint>
#include <string>
#include <vector>

namespace lumenote {

/// What a paragraph of a list shows before its text.
struct ListMark {
  char style = '*';  // a bullet, or one of "1aAiI"
  int number = 0;
};

/// An item that is indented further than the one before begins a list inside it.
class HtmlLists {
 public:
  explicit HtmlLists(std::string& out) : out_(out) {}

  /// Opens and closes lists so that an item whose text begins at `left` twips can follow, and
  /// begins it.
  void BeginItem(ListMark mark, std::int32_t left);
  void Close();
  /// The style of the innermost open list; '1' outside.
  char Style() const { return open_.empty() ? '1' : open_.back().style; }

 private:
  struct Open {
    char style;
    std::int32_t left;
    int next;
  };

  void Begin(ListMark mark, std::int32_t left);
  void End();

  std::string& out_;
  std::vector<Open> open_;
};

}  // namespace lumenote
