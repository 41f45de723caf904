// What every implementation of RichTextSurface is tested through.
#pragma once
#include <functional>
#include <gtest/gtest.h>
#include <memory>
#include <ostream>
#include <string>

#include "platform/RichTextSurface.h"
#include "surface/Fakes.h"

namespace lumenote {

/// Error number that `act` raises; 0 when it goes through.
template <class Act>
int ErrorOf(Act act) {
  try {
    act();
    return 0;
  } catch (const RuntimeError& error) {
    return error.Number();
  }
}

/// Makes a surface over the given clipboard and files; the owner keeps what it needs alive.
struct SurfaceMaker {
  std::string name;
  std::function<std::shared_ptr<RichTextSurface>(Clipboard&, Files&)> make;
};
inline void PrintTo(const SurfaceMaker& maker, std::ostream* out) { *out << maker.name; }

/// Text in tables: "|" is the caret, "^" the other end of a selection, "¶" a paragraph break, "↓" a
/// line break.
std::u16string Unmarked(std::u16string_view marked);
void Put(RichTextSurface& surface, std::u16string_view marked);
/// Selects as marked, with the text left alone.
void SelectAs(RichTextSurface& surface, std::u16string_view marked);
std::u16string Marked(std::u16string text, Position anchor, Position caret);
/// With the selection's start as the anchor.
std::u16string Marked(const RichTextSurface& surface);
/// Where the marks stand in the text without them: {anchor, caret}.
std::pair<Position, Position> MarksOf(std::u16string_view marked);

class SurfaceContract : public ::testing::TestWithParam<SurfaceMaker> {
 protected:
  /// Counts the notifications since the last call.
  int Changes() { return std::exchange(changes_, 0); }

  MemoryClipboard clipboard;
  MemoryFiles files;
  std::shared_ptr<RichTextSurface> surface = Make();
  RichTextSurface& s = *surface;

 private:
  std::shared_ptr<RichTextSurface> Make();
  int changes_ = 0;
};

}  // namespace lumenote
