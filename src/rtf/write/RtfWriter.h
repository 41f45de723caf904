// Writes RTF in steps.
#pragma once
#include <optional>

#include "document/Document.h"
#include "rtf/write/Output.h"
#include "rtf/write/Writer.h"
#include "rtf/write/WrittenBody.h"
#include "rtf/write/WrittenFormats.h"
#include "rtf/write/WrittenParagraphs.h"

namespace lumenote {

/// Makes two passes over the text: the first collects the tables and paragraphs, the second writes.
/// The output does not depend on the steps. The document (which may be a snapshot) and the sink
/// must outlive this object and not change.
class RtfWriter {
 public:
  /// With `mark` writes the whole document, else the text of the range.
  RtfWriter(const Document& document, Selection range, std::optional<FinalMark> mark,
            const ByteSink& sink);
  RtfWriter(const RtfWriter&) = delete;
  RtfWriter& operator=(const RtfWriter&) = delete;

  /// Processes about that many units of text, at least 1, or emits part of a long piece of source;
  /// false when all is done.
  bool Step(Position units);

 private:
  enum class Stage { Scan, Rows, Write, Done };

  /// The next chunk of the text.
  Selection Piece(Position units);
  void Scan(Selection piece);
  void Begin();
  void Write(Selection piece);
  void Finish();

  const Document& document_;
  Selection range_;
  std::optional<FinalMark> mark_;
  Stage stage_ = Stage::Scan;
  Position at_;
  ParagraphScan scan_;
  WrittenFormats formats_;
  std::optional<CopiedTables> part_;  // of a selection
  bool bullets_ = false;
  Output out_;
  std::optional<WrittenBody> body_;
};

}  // namespace lumenote
