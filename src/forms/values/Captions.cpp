#include "forms/values/Captions.h"

namespace lumenote {

std::u16string WithoutMnemonic(std::u16string_view caption) {
  std::u16string text;
  for (std::size_t i = 0; i < caption.size(); ++i) {
    if (caption[i] == u'&' && i + 1 < caption.size()) ++i;
    text += caption[i];
  }
  return text;
}

}  // namespace lumenote
