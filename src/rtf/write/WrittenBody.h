// The body of the source: paragraphs, runs, characters, and what is kept among them.
#pragma once
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "document/Document.h"
#include "rtf/write/Output.h"
#include "rtf/write/WrittenFormats.h"
#include "rtf/write/WrittenParagraphs.h"

namespace lumenote {

class WrittenBody {
 public:
  /// `whole` tells of a document, whose lists are those of the source's head.
  WrittenBody(const FormatTables& tables, const WrittenFormats& formats,
              WrittenParagraphs paragraphs, bool whole, Output& out)
      : tables_(tables),
        formats_(formats),
        paragraphs_(std::move(paragraphs)),
        whole_(whole),
        out_(out),
        knownWords_(tables.paragraphs.Size()),
        lastKept_(paragraphs_.outside) {}

  /// A piece of one format.
  void Text(TextView text, CharId format);
  /// Ends a document by its final mark, a selection without one.
  void Finish(const FinalMark* mark);

 private:
  /// What a reader knows of the paragraph at hand.
  struct Known {
    const std::string* words = nullptr;  // in `knownWords_`; null: nothing yet
    int nesting = 0;
    bool bullet = false;
  };
  /// An open field, and what holds again behind it.
  struct Open {
    FieldId id = 0;
    Known known;
    WrittenFormat format;
  };

  void BeginParagraph();
  /// Tells the paragraph format `id` where it is not told already.
  void Paragraph(ParaId id, bool atStart);
  void Bullet(ParaId id, bool changed, bool atStart);
  ParaFormat WrittenOf(ParaId paragraph) const;
  const std::string& Words(ParaId paragraph);
  /// The cell at hand; null where the rest of the paragraph holds none.
  const WrittenParagraphs::Cell* Cell() const;
  /// Whether the cell at hand is part of a whole row.
  bool InRow() const { return Cell() && Cell()->whole; }
  /// Nesting of the whole row that is being written.
  int RowDepth() const;
  int Nesting(ParaId paragraph) const;
  /// Whether there is a paragraph at hand: behind the last break there is none.
  bool HasFormat() const { return index_ < paragraphs_.formats.size(); }
  ParaId Governing() const;
  bool IsList() const;

  bool IsNumber(FieldId number, char16_t unit) const;
  bool IsListNumber(FieldId field) const;
  ItemId EnterFields(FieldId wanted, char16_t unit, ItemId before);
  void OpenField(FieldId id);
  void CloseField();

  void Format(CharId format);
  void KeptText(TextView text, CharId format, const Kept& kept, bool again);
  void Items(ItemId first);
  void Before(const Kept& kept, CharId format, char16_t unit, bool again);
  bool IsValid(const Kept& kept, char16_t unit) const;
  bool IsEmptyBreak(const Kept& kept, char16_t unit) const;
  std::size_t KeptCharacter(const Kept& kept, char16_t unit);
  void EndCell(const Kept& kept);
  void EndRow(ItemId definition);
  void EndNestedRow(ItemId definition);
  std::size_t Step(TextView text);
  std::size_t Special(char16_t unit);
  void EndParagraph();

  const FormatTables& tables_;
  const WrittenFormats& formats_;
  WrittenParagraphs paragraphs_;
  bool whole_;
  Output& out_;

  std::size_t index_ = 0;  // of the paragraph at hand
  std::size_t cell_ = 0;   // the next one that ends
  std::size_t lead_ = 0;   // the next one to be written
  bool begun_ = false;     // whether anything of the paragraph, or of its cell, is written
  bool filled_ = false;    // whether the paragraph has text
  Known known_;
  std::vector<std::optional<std::string>> knownWords_;  // by ParaId
  WrittenFormat format_;
  std::vector<Open> fields_;
  std::vector<FieldId> chain_;
  KeptId lastKept_;
};

}  // namespace lumenote
