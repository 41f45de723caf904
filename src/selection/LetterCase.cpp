#include "selection/LetterCase.h"

#include "base/Characters.h"

namespace lumenote {

namespace {

constexpr std::u16string_view kSeparators(u"\0\t\n\v\f\r ", 7);

}  // namespace

std::u16string ProperCase(std::u16string_view text) {
  std::u16string result = Lower(text);
  bool first = true;
  for (char16_t& c : result) {
    if (first) c = ToUpper(c);
    first = kSeparators.find(c) != kSeparators.npos;
  }
  return result;
}

void MettreEnMajuscules(RichTextSurface& surface) { surface.SelText(Upper(surface.SelText())); }

void MettreEnMinuscules(RichTextSurface& surface) { surface.SelText(Lower(surface.SelText())); }

void MettreEnTitre(RichTextSurface& surface, Clipboard& clipboard) {
  clipboard.Set({.text = surface.SelText(), .rtf = {}});
  surface.SelText(ProperCase(clipboard.Get().text.value_or(u"")));
  clipboard.Clear();
}

}  // namespace lumenote
