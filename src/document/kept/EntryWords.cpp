#include "document/kept/EntryWords.h"

#include <algorithm>
#include <iterator>

namespace lumenote {
namespace {

struct EntryWord {
  std::string_view word;
  HeadTable table;
};

using enum HeadTable;

constexpr EntryWord kWords[] = {{"f", Fonts},
                                {"af", Fonts},
                                {"pnf", Fonts},
                                {"adeff", Fonts},
                                {"stshfdbch", Fonts},
                                {"stshfloch", Fonts},
                                {"stshfhich", Fonts},
                                {"stshfbi", Fonts},
                                {"cf", Colours},
                                {"cb", Colours},
                                {"highlight", Colours},
                                {"chcbpat", Colours},
                                {"chcfpat", Colours},
                                {"cbpat", Colours},
                                {"cfpat", Colours},
                                {"clcbpat", Colours},
                                {"clcfpat", Colours},
                                {"trcbpat", Colours},
                                {"trcfpat", Colours},
                                {"brdrcf", Colours},
                                {"ulc", Colours},
                                {"pncf", Colours},
                                {"clcbpatraw", Colours},
                                {"clcfpatraw", Colours},
                                {"tscellcbpat", Colours},
                                {"tscellcfpat", Colours},
                                {"s", Styles},
                                {"cs", Styles},
                                {"ds", Styles},
                                {"ts", Styles},
                                {"sbasedon", Styles},
                                {"snext", Styles},
                                {"slink", Styles},
                                {"ls", Overrides},
                                {"listid", Lists}};

}  // namespace

std::optional<HeadTable> TableNamedBy(std::string_view word) {
  const auto found = std::ranges::find(kWords, word, &EntryWord::word);
  return found == std::end(kWords) ? std::nullopt : std::optional(found->table);
}

}  // namespace lumenote
