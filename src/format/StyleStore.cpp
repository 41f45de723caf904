#include "format/StyleStore.h"

#include "base/Numbers.h"
#include "base/RuntimeError.h"
#include "platform/Paths.h"
#include "surface/editing/ParagraphSpacing.h"

namespace lumenote {

StyleRecord CurrentStyle;
std::int32_t StyleRightMargin = 0;

namespace {

struct NumberKey {
  std::u16string_view key;
  std::int32_t StyleRecord::*field;
  std::u16string_view standard;
};

constexpr NumberKey kWritten[] = {{u"Alignment", &StyleRecord::Alignment, {}},
                                  {u"HangingIndent", &StyleRecord::HangingIndent, {}},
                                  {u"SpaceAfter", &StyleRecord::SpaceAfter, {}},
                                  {u"SpaceBefore", &StyleRecord::SpaceBefore, {}},
                                  {u"LeftFront", &StyleRecord::LeftFront, {}},
                                  {u"RightIndent", &StyleRecord::RightIndent, {}},
                                  {u"LeftIndent", &StyleRecord::LeftIndent, {}},
                                  {u"LineSpacing", &StyleRecord::LineSpacing, {}}};

constexpr NumberKey kRead[] = {{u"Alignment", &StyleRecord::Alignment, u"0"},
                               {u"HangingIndent", &StyleRecord::HangingIndent, u"-135"},
                               {u"SpaceAfter", &StyleRecord::SpaceAfter, u"0"},
                               {u"SpaceBefore", &StyleRecord::SpaceBefore, u"30"},
                               {u"RightIndent", &StyleRecord::RightIndent, u"0"},
                               {u"LeftIndent", &StyleRecord::LeftIndent, u"165"},
                               {u"LineSpacing", &StyleRecord::LineSpacing, u"20"}};

/// Whether the host's name is its program's path.
bool IsPath(std::u16string_view application) {
  return application.size() >= 3 && application.substr(1, 2) == u":\\";
}

void ReadFields(const Settings& settings, std::u16string_view application,
                std::u16string_view section, StyleRecord& style) {
  const auto stored = [&](std::u16string_view key, std::u16string_view standard) {
    return settings.Read(application, section, key).value_or(std::u16string(standard));
  };
  for (const NumberKey& number : kRead)
    style.*number.field = ParseInt32(stored(number.key, number.standard));
  StyleRightMargin = ParseInt32(stored(u"RightMargin", u"0"));
  style.FontName = stored(u"FontName", u"MS Sans Serif");
  style.FontSize = stored(u"FontSize", u"11");
}

}  // namespace

void SaveStyle(Settings& settings, std::u16string_view application, std::u16string_view digit,
               const StyleRecord& style) {
  const std::u16string section = u"MicroEdtSty" + std::u16string(digit);
  const auto write = [&](std::u16string_view key, std::u16string_view value) {
    settings.Write(application, section, key, value);
  };
  for (const NumberKey& number : kWritten)
    write(number.key, NumberText(std::int64_t{style.*number.field}));
  write(u"RightMargin", NumberText(std::int64_t{StyleRightMargin}));
  write(u"FontName", style.FontName);
  write(u"FontSize", style.FontSize);
}

void LoadStyle(const Settings& settings, std::u16string_view application,
               std::u16string_view section, StyleRecord& style) {
  const std::u16string name =
      IsPath(application) ? BaseName(application) : std::u16string(application);
  IgnoringErrors([&] { ReadFields(settings, name, section, style); });
}

void ApplyStyleRecord(RichTextSurface& surface, StyleRecord& style) {
  AsOneStep(surface, [&] {
    SetLineSpacing(surface, style.LineSpacing);
    IgnoringErrors([&] { surface.SelAlignment(style.Alignment); });
    surface.SelIndent(style.LeftIndent);
    surface.SelRightIndent(style.RightIndent);
    surface.SelHangingIndent(style.HangingIndent);
    IgnoringErrors([&] { style.LeftFront = Sum32(style.LeftIndent, style.HangingIndent); });
    SetSpaceBefore(surface, style.SpaceBefore);
    SetSpaceAfter(surface, style.SpaceAfter);
    IgnoringErrors([&] { surface.RightMargin(static_cast<float>(StyleRightMargin)); });
    surface.SelFontName(style.FontName);
    IgnoringErrors([&] { surface.SelFontSize(ParseSingle(style.FontSize)); });
  });
}

}  // namespace lumenote
