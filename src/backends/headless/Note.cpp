#include "lumenote/Note.h"

#include "backends/headless/FixedLayouter.h"
#include "backends/headless/MemoryClipboard.h"
#include "backends/headless/NoFiles.h"
#include "base/TextEncoding.h"
#include "html/write/Writer.h"
#include "ocr/Cleanup.h"
#include "rtf/read/Reader.h"
#include "rtf/write/Writer.h"
#include "surface/DocumentSurface.h"

namespace lumenote {

struct Note::Parts {
  MemoryClipboard clipboard;
  NoFiles files;
  FixedBreaker breaker{0};
  DocumentSurface surface{clipboard, files, breaker};
  Format source = Format::Rtf;
  TextEncoding form = TextEncoding::Windows1252;
};

bool Note::IsRtf(std::string_view bytes) { return LooksLikeRtf(bytes); }

Note::Note(std::string_view bytes, Format format) : parts_(std::make_unique<Parts>()) {
  parts_->source = format;
  if (format == Format::Rtf) {
    if (!IsRtf(bytes)) throw RuntimeError(ErrorNumber::InvalidPropertyValue);
    parts_->surface.LoadSource(bytes);
  } else if (format == Format::Html) {
    parts_->surface.LoadHtml(bytes);
  } else {
    parts_->form = DetectEncoding(bytes);
    parts_->surface.Text(DecodeText(bytes, parts_->form));
  }
}

Note::~Note() = default;
Note::Note(Note&&) noexcept = default;
Note& Note::operator=(Note&&) noexcept = default;

Note::Format Note::Source() const { return parts_->source; }

std::u16string Note::Text() const { return parts_->surface.Text(); }

std::string Note::Bytes(Format format) const {
  const Document& content = parts_->surface.Content();
  if (format == Format::Text) return EncodeTextFile(Text(), parts_->form);
  return format == Format::Rtf ? WriteRtf(content) : WriteHtml(content);
}

std::vector<std::int16_t> Note::Clean(std::string_view correctionList) {
  RichTextSurface& surface = parts_->surface;
  std::vector<std::int16_t> counts = AppliquerPaires(surface, correctionList);
  NormaliserEspaces(surface);
  MettreAuPropre(surface);
  return counts;
}

}  // namespace lumenote
