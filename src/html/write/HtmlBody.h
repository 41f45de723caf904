// Writes text, paragraphs and tables as HTML.
#pragma once
#include <optional>
#include <span>
#include <string>
#include <unordered_map>
#include <unordered_set>
#include <vector>

#include "document/Document.h"
#include "document/Footnotes.h"
#include "document/pictures/PictureSource.h"
#include "document/tables/CellParagraphs.h"
#include "html/words/LinkRepeats.h"
#include "html/write/HtmlFormats.h"
#include "html/write/HtmlLists.h"
#include "html/write/HtmlTable.h"

namespace lumenote {

class HtmlBody {
 public:
  /// Both outlive this object.
  HtmlBody(const Document& document, std::string& out)
      : document_(document), tables_(document.Formats()), out_(out), lists_(out) {}

  void Write(Selection range);

 private:
  using Paragraphs = std::span<const CellParagraph>;

  void Block(Paragraphs part, int level);
  void Table(Paragraphs part, int level);
  void Cell(const HtmlCell& cell, int level);

  // Paragraphs.
  void Paragraph(const CellParagraph& paragraph);
  CharFormat CommonFormat(Position start, const CellParagraph& paragraph) const;
  std::optional<ListMark> MarkOf(const CellParagraph& paragraph, Position& textStart) const;
  bool IsRule(const ParaFormat& format) const;

  // Text.
  bool Text(Position from, Position to, const CharFormat& around);
  bool LooksAs(CharId one, CharId other);
  bool Run(std::u16string_view text, std::size_t from, std::size_t to, CharId format);
  const HtmlTags& TagsOf(CharId format);
  void Wear(CharId format);
  void WearNothing();
  void Object(const CharFormat& format);
  void Footnote(const FootnoteText& note, const CharFormat& format);
  void Picture(const PictureData& picture);
  FieldId FieldOf(CharId format) const;
  FieldId LinkIn(FieldId field);
  bool MayOpen(FieldId link);
  const std::optional<std::u16string>& AddressOf(FieldId field);

  const Document& document_;
  const FormatTables& tables_;
  std::string& out_;
  HtmlLists lists_;
  int footnotes_ = 0;  // numbered ones so far
  std::string notes_;  // their text

  CharFormat around_;
  std::unordered_map<CharId, HtmlTags> known_;                            // of formats in `around_`
  HtmlTags worn_;                                                         // open tags of the text
  std::unordered_map<FieldId, std::optional<std::u16string>> addresses_;  // of fields so far
  FieldId link_ = 0;                                                      // open
  std::unordered_set<FieldId> linked_;                                    // so far
  LinkRepeats repeats_;
};

}  // namespace lumenote
