// Interprets HTML elements to build a note.
#pragma once
#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "html/read/Elements.h"
#include "html/read/Look.h"
#include "html/read/NoteText.h"
#include "html/read/Reader.h"
#include "html/read/TableGrid.h"
#include "html/source/HtmlTokenizer.h"

namespace lumenote {

/// Reads one source. Open elements are a stack of at most `kDeepest`; deeper ones are only counted,
/// so that memory is bounded: they change nothing.
class HtmlInterpreter {
 public:
  HtmlInterpreter(std::u16string_view source, FormatTables& formats, const CharFormat& base);
  Fragment Read(HtmlTarget target);

 private:
  using Kind = HtmlElement::Kind;
  static constexpr std::size_t kDeepest = 256;
  static constexpr std::size_t kNone = static_cast<std::size_t>(-1);

  struct Open {
    const HtmlElement* element = nullptr;
    LookChange change;
    Look around{};   // before the change
    int margin = 0;  // twips above and below, unless stated
    int begun = 0;   // paragraphs begun before
    // Of a list.
    char style = '*';  // one of "1aAiI", or a bullet
    int start = 1;
    int next = 1;
  };
  /// A table whose end has not come yet.
  struct Table {
    TableGrid grid{};
    bool borders = false;
    bool inRow = false;
    bool inCell = false;
  };

  void Take(const HtmlToken& token);
  void Text(std::u16string_view text);
  void Start(const HtmlToken& tag);
  void End(std::string_view name);
  void BeforeContent();
  bool IsHidden() const { return look_.text == Look::Text::Hidden; }

  // The stack.
  void Imply(const char* name);
  void Push(Open open);
  bool HasRoom() const { return uncounted_ == 0 && open_.size() < kDeepest; }
  void Leave(const Open& open);
  std::size_t Find(const HtmlElement& element) const;
  using Test = std::function<bool(const HtmlElement&)>;
  std::size_t FindWithin(const Test& test, bool throughCells) const;
  void Close(std::size_t index);
  void Remove(std::size_t index);
  void CloseKind(Kind kind);
  void CloseImplied(const HtmlElement& element);

  // What single elements do.
  int MarginOf(const HtmlElement& element) const;
  LookChange ChangeOf(const HtmlElement& element, const HtmlToken& tag);
  void ReadAttributes(const HtmlElement& element, const HtmlToken& tag, LookChange& change);
  void Enter(const HtmlToken& tag, Open& open);
  void VoidElement(const HtmlToken& tag);
  void Image(const HtmlToken& tag);
  void Rule();
  void BeginList(const HtmlToken& tag, Open& list);
  void BeginItem(const HtmlToken& tag, Open& item);
  void EndSpelledMarker();
  void HoldBack(const HtmlToken& tag);
  void ReleaseHeld();
  ItemMarker Numbered(std::u16string number, char style, int start);
  void Columns(const HtmlToken& tag);
  void BeginCell(const HtmlToken& tag, const LookChange& change);
  void EmptyCell(const Look& look);
  void EndRow();

  HtmlTokenizer tokens_;
  FormatTables& formats_;
  NoteText text_;
  std::vector<Open> open_;
  std::size_t uncounted_ = 0;  // open elements beyond `kDeepest`
  Look look_;
  std::vector<Table> tables_;
  std::u16string marker_;  // of a list item, spelled out by a word processor
  bool held_ = false;      // it may be text
  bool gap_ = false;       // the tag at hand begins the gap behind it
  bool skipping_ = false;  // within an element whose content is not shown
  bool afterPre_ = false;  // a line end that follows directly is dropped
};

}  // namespace lumenote
