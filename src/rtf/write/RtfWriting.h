// Writing RTF bit by bit.
#pragma once
#include <optional>

#include "document/Document.h"
#include "rtf/write/Output.h"
#include "rtf/write/Writer.h"
#include "rtf/write/WrittenBody.h"
#include "rtf/write/WrittenFormats.h"
#include "rtf/write/WrittenParagraphs.h"

namespace lumenote {

/// Goes through a text twice: once for the tables at its head and for its paragraphs, once to write
/// it. What comes out does not depend on the steps. The document, which may be a copy of one that
/// is edited meanwhile, and the sink outlive this object and stay as they are.
class RtfWriting {
 public:
  /// With `mark` of the whole document, else of the text between two positions.
  RtfWriting(const Document& document, Selection range, std::optional<FinalMark> mark,
             const ByteSink& sink);
  RtfWriting(const RtfWriting&) = delete;
  RtfWriting& operator=(const RtfWriting&) = delete;

  /// Goes on through about so many units of text, 1 at least, or hands on a part of a long source;
  /// false when that was the end.
  bool Step(Position units);

 private:
  enum class Stage { Look, Rows, Write, Done };

  /// The next piece of the text.
  Selection Piece(Position units);
  void Look(Selection piece);
  void Begin();
  void Write(Selection piece);
  void Finish();

  const Document& document_;
  Selection range_;
  std::optional<FinalMark> mark_;
  Stage stage_ = Stage::Look;
  Position at_;
  ParagraphScan scan_;
  WrittenFormats formats_;
  bool bullets_ = false;
  Output out_;
  std::optional<WrittenBody> body_;
};

}  // namespace lumenote
