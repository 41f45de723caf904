#include "surface/SnapshotWriters.h"

#include <algorithm>
#include <utility>

#include "base/TextEncoding.h"
#include "rtf/write/RtfWriter.h"

namespace lumenote {
namespace {

constexpr Position kStepUnits = 1 << 14;  // of text per step

class RtfSnapshotWriter final : public SnapshotWriter {
 public:
  RtfSnapshotWriter(const Document& document, ByteSink sink)
      : document_(document),
        sink_(std::move(sink)),
        writer_(document_, {0, document_.Length()}, document_.Mark(), sink_) {}

  bool Step() override { return writer_.Step(kStepUnits); }

 private:
  Document document_;
  ByteSink sink_;
  RtfWriter writer_;
};

/// Makes two passes: the first chooses an encoding that will be detected again, the second writes.
class TextSnapshotWriter final : public SnapshotWriter {
 public:
  TextSnapshotWriter(const Document& document, ByteSink sink)
      : document_(document), sink_(std::move(sink)) {}

  bool Step() override {
    const std::u16string text = Piece();
    if (choosing_)
      chooser_.Add(text);
    else
      sink_(EncodeWithoutBom(text, encoding_));
    if (at_ < document_.Length()) return true;
    return std::exchange(choosing_, false) && Begin();
  }

 private:
  /// The next chunk, cut between characters.
  std::u16string Piece() {
    const Position from = at_;
    at_ = document_.SnapForward(from + std::min(kStepUnits, document_.Length() - from));
    return document_.Text(from, at_);
  }
  bool Begin() {
    at_ = 0;
    encoding_ = chooser_.Encoding();
    sink_(ByteOrderMark(encoding_));
    return true;
  }

  Document document_;
  ByteSink sink_;
  Position at_ = 0;
  bool choosing_ = true;
  EncodingChooser chooser_;
  TextEncoding encoding_ = TextEncoding::Windows1252;
};

}  // namespace

std::unique_ptr<SnapshotWriter> MakeSnapshotWriter(const Document& document, FileType type,
                                                   RichTextSurface::ContentSink sink) {
  if (type == FileType::Text)
    return std::make_unique<TextSnapshotWriter>(document, std::move(sink));
  return std::make_unique<RtfSnapshotWriter>(document, std::move(sink));
}

}  // namespace lumenote
