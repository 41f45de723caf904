// Writes text, paragraphs and tables as HTML.
#pragma once
#include <optional>
#include <string>
#include <unordered_map>
#include <unordered_set>
#include <vector>

#include "document/Document.h"
#include "html/words/LinkRepeats.h"
#include "html/write/HtmlFormats.h"
#include "html/write/HtmlLists.h"
#include "html/write/HtmlParagraphs.h"

namespace lumenote {

class HtmlBody {
 public:
  /// Both outlive this object.
  HtmlBody(const Document& document, std::string& out)
      : document_(document), tables_(document.Formats()), out_(out), lists_(out) {}

  void Write(Selection range);

 private:
  using Paragraphs = std::vector<HtmlParagraph>;

  // Tables.
  void BeginRow(const HtmlParagraph& end, std::size_t cells);
  void BeginCell();
  void EndTable();

  // Paragraphs.
  void Paragraph(const HtmlParagraph& paragraph);
  CharFormat CommonFormat(Position start, const HtmlParagraph& paragraph) const;
  std::optional<ListMark> MarkOf(const HtmlParagraph& paragraph, Position& textStart) const;
  bool IsRule(const ParaFormat& format) const;

  // Text.
  void Text(Position from, Position to, const CharFormat& around);
  void Run(std::u16string_view text, std::size_t from, std::size_t to, CharId format);
  void Wear(CharId format);
  void WearNothing();
  void Picture(const CharFormat& format);
  FieldId FieldOf(CharId format) const;
  FieldId LinkIn(FieldId field);
  bool MayOpen(FieldId link);
  const std::optional<std::u16string>& AddressOf(FieldId field);

  const Document& document_;
  const FormatTables& tables_;
  std::string& out_;
  HtmlLists lists_;
  bool inTable_ = false;
  std::vector<std::int32_t> edges_;  // of the row's cells, if stated
  std::size_t cell_ = 0;             // in that row

  CharFormat around_;
  std::unordered_map<CharId, HtmlTags> known_;                            // of formats in `around_`
  HtmlTags worn_;                                                         // open tags of the text
  std::unordered_map<FieldId, std::optional<std::u16string>> addresses_;  // of fields so far
  FieldId link_ = 0;                                                      // open
  std::unordered_set<FieldId> linked_;                                    // so far
  LinkRepeats repeats_;
};

}  // namespace lumenote
