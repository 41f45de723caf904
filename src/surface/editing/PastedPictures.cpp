#include "surface/editing/PastedPictures.h"

#include <algorithm>
#include <cmath>
#include <optional>

#include "base/Strings.h"
#include "document/pictures/ImageSize.h"
#include "document/pictures/PictureSource.h"
#include "html/source/HtmlTokenizer.h"

namespace lumenote {

namespace {

bool IsBlank(std::u16string_view text) {
  return text.find_first_not_of(u" \t\r\n\u00A0") == text.npos;
}

/// As browsers describe an image that was copied from a page.
bool ShowsOnlyImages(std::string_view html) {
  const std::u16string source = FromUtf8(html);
  HtmlTokenizer tokens(source);
  bool images = false;
  for (const HtmlToken* token = &tokens.Next(); token->kind != HtmlToken::Kind::Finish;
       token = &tokens.Next()) {
    if (token->kind == HtmlToken::Kind::Text && !IsBlank(token->text)) return false;
    images |= token->kind == HtmlToken::Kind::Start && token->name == "img";
  }
  return images;
}

std::optional<PictureData> Picture(const std::string& file, double room) {
  if (!IsPicture(file)) return std::nullopt;
  const PictureType type = *TypeOfImage(file);
  const ImageSize size = SizeOfImage(type, file).value_or(ImageSize{});
  const double scale = room > 0 && size.width > room ? room / size.width : 1;
  const auto twips = [&](double side) { return static_cast<int>(std::lround(side * scale)); };
  return PictureData{type, file, twips(size.width), twips(size.height)};
}

}  // namespace

bool IsPicture(std::string_view file) {
  const auto type = TypeOfImage(file);
  return type && IsKeptFile(*type);
}

bool WantsImages(const ClipboardContent& content) {
  if (content.rtf) return false;
  return content.html ? ShowsOnlyImages(*content.html) : !content.text;
}

Fragment PictureFragment(const std::vector<std::string>& files, const CharFormat& format,
                         double room, FormatTables& formats) {
  FragmentBuilder pictures;
  for (const std::string& file : files) {
    const std::optional<PictureData> picture = Picture(file, room);
    if (!picture) continue;
    const ItemId self =
        formats.items.Chain({{.kind = KeptItem::Kind::Picture, .source = PictureGroup(*picture)}});
    const FieldId field = formats.kept[format.kept].field;
    CharFormat character = format;
    character.kept =
        formats.kept.Intern({.self = self, .field = field, .kind = Kept::Kind::Embedded});
    pictures.Append(std::u16string_view(&kObjectCharacter, 1),
                    formats.characters.Intern(character));
  }
  return pictures.Finish();
}

std::vector<std::string> LonePicture(const Document& document, Selection range) {
  if (range.Length() != 1 || document.At(range.start) != kObjectCharacter) return {};
  const FormatTables& tables = document.Formats();
  const ItemId item = EmbeddedItem(tables, tables.characters[document.CharFormatAt(range.start)]);
  const std::optional<PictureData> picture = PictureOf(tables.items[item].source);
  return picture ? std::vector{picture->bytes} : std::vector<std::string>();
}

}  // namespace lumenote
