// Writes the body: paragraphs, runs, characters, and the kept items among them.
#pragma once
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "document/Document.h"
#include "document/paste/CopiedTables.h"
#include "rtf/write/Output.h"
#include "rtf/write/WrittenFormats.h"
#include "rtf/write/WrittenParagraphs.h"

namespace lumenote {

class WrittenBody {
 public:
  /// `part` knows the lists of a selection; null for a document, which has all of the source's.
  WrittenBody(const FormatTables& tables, const WrittenFormats& formats,
              WrittenParagraphs paragraphs, const CopiedTables* part, Output& out)
      : tables_(tables),
        formats_(formats),
        paragraphs_(std::move(paragraphs)),
        part_(part),
        out_(out),
        knownWords_(tables.paragraphs.Size()),
        lastKept_(paragraphs_.outside) {}

  /// Writes a run.
  void Text(TextView text, CharId format);
  /// Ends a document with its final mark, or a selection without one.
  void Finish(const FinalMark* mark);

 private:
  /// What a reader knows about the current paragraph.
  struct Known {
    const std::string* words = nullptr;  // in `knownWords_`; null: nothing yet
    int nesting = 0;
    bool bullet = false;
    bool operator==(const Known& other) const {
      const bool sameWords =
          words == other.words || (words && other.words && *words == *other.words);
      return sameWords && nesting == other.nesting && bullet == other.bullet;
    }
  };
  /// An open field, and the state to restore after it.
  struct Open {
    FieldId id = 0;
    Known known;
    WrittenFormat format;
  };

  void BeginParagraph();
  /// Writes the paragraph format `id` unless the reader knows it already.
  void Paragraph(ParaId id, bool atStart);
  /// Writes the format that the paragraph or cell ends with.
  void EndFormat(ParaId id);
  ParaId Opening(ParaId id) const;
  void Bullet(ParaId id, bool changed, bool atStart);
  /// What the reader knows behind the format `id`.
  Known KnownOf(ParaId id);
  ParaFormat WrittenOf(ParaId paragraph) const;
  const std::string& Words(ParaId paragraph);
  /// The current cell; null if the rest of the paragraph has none.
  const WrittenParagraphs::Cell* Cell() const;
  /// Whether the current cell is part of a complete row.
  bool InRow() const { return Cell() && Cell()->whole; }
  /// Nesting of the complete row being written.
  int RowDepth() const;
  int Nesting() const;
  /// Whether there is a current paragraph; there is none after the last break.
  bool HasFormat() const { return index_ < paragraphs_.formats.size(); }
  ParaId Governing() const;
  bool IsList() const;

  bool IsNumber(FieldId number, char16_t unit) const;
  bool IsListNumber(FieldId field) const;
  ItemId EnterFields(FieldId wanted, char16_t unit, ItemId before, bool resets);
  void OpenField(FieldId id);
  void CloseField();

  bool Resets(const WrittenFormat& wanted) const;
  void Format(CharId format);
  void KeptText(TextView text, CharId format, const Kept& kept, bool again);
  void Items(ItemId first);
  void Before(const Kept& kept, CharId format, char16_t unit, bool again);
  bool IsValid(const Kept& kept, char16_t unit) const;
  bool IsEmptyBreak(const Kept& kept, char16_t unit) const;
  std::size_t KeptCharacter(const Kept& kept, char16_t unit);
  bool IsDrawing(const Kept& kept) const;
  bool ContinuesDrawings(KeptId id, CharId format) const;
  void WriteDrawings();
  void EndCell(const Kept& kept);
  void EndRow(ItemId definition);
  void EndNestedRow(ItemId definition);
  std::size_t Step(TextView text);
  std::size_t Special(char16_t unit);
  void EndParagraph();

  const FormatTables& tables_;
  const WrittenFormats& formats_;
  WrittenParagraphs paragraphs_;
  const CopiedTables* part_;
  Output& out_;

  std::size_t index_ = 0;    // of the current paragraph
  std::size_t cell_ = 0;     // the next one to end
  std::size_t leading_ = 0;  // the next one to write
  bool begun_ = false;       // part of the paragraph or of its cell has been written
  bool filled_ = false;      // the paragraph has text
  Known known_;
  std::vector<std::optional<std::string>> knownWords_;  // by ParaId
  WrittenFormat format_;
  bool edited_ = false;  // an edit made that format
  std::vector<Open> fields_;
  std::vector<FieldId> chain_;
  KeptId lastKept_;
  std::vector<ItemId> drawings_;  // that follow each other, still to be written
};

}  // namespace lumenote
