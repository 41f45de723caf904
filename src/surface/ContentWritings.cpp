#include "surface/ContentWritings.h"

#include <algorithm>
#include <utility>

#include "base/TextForm.h"
#include "rtf/write/RtfWriting.h"

namespace lumenote {
namespace {

constexpr Position kUnits = 1 << 14;  // of text, a step

class RtfContent final : public ContentWriting {
 public:
  RtfContent(const Document& document, ByteSink sink)
      : document_(document),
        sink_(std::move(sink)),
        writing_(document_, {0, document_.Length()}, document_.Mark(), sink_) {}

  bool Step() override { return writing_.Step(kUnits); }

 private:
  Document document_;
  ByteSink sink_;
  RtfWriting writing_;
};

/// Goes through the text twice: first it looks which form will be read as what it is.
class TextContent final : public ContentWriting {
 public:
  TextContent(const Document& document, ByteSink sink)
      : document_(document), sink_(std::move(sink)) {}

  bool Step() override {
    const std::u16string text = Piece();
    if (looking_)
      pieces_.Add(text);
    else
      sink_(EncodeWithoutMark(text, form_));
    if (at_ < document_.Length()) return true;
    return std::exchange(looking_, false) && Begin();
  }

 private:
  /// Ends between characters.
  std::u16string Piece() {
    const Position from = at_;
    at_ = document_.After(from + std::min(kUnits, document_.Length() - from));
    return document_.Text(from, at_);
  }
  bool Begin() {
    at_ = 0;
    form_ = pieces_.Form();
    sink_(MarkOf(form_));
    return true;
  }

  Document document_;
  ByteSink sink_;
  Position at_ = 0;
  bool looking_ = true;
  FormForPieces pieces_;
  TextForm form_ = TextForm::Windows1252;
};

}  // namespace

std::unique_ptr<ContentWriting> MakeContentWriting(const Document& document, FileType type,
                                                   RichTextSurface::ContentSink sink) {
  if (type == FileType::Text) return std::make_unique<TextContent>(document, std::move(sink));
  return std::make_unique<RtfContent>(document, std::move(sink));
}

}  // namespace lumenote
