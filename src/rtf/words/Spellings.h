// Characters that sources spell in several ways, although some readers show them in only one.
#pragma once
#include <string_view>

#include "document/formats/Formats.h"

namespace lumenote {

inline constexpr char16_t kSoftHyphen = u'\u00AD';

constexpr bool HasSpellings(char16_t unit) {
  switch (unit) {
    case u'\x81':
    case u'\x8D':
    case u'\x8F':
    case u'\x90':
    case u'\x9D':
    case u'\u00AD':
    case u'\u200B':
    case u'\u200C':
    case u'\u200D':
    case u'\u200E':
    case u'\u200F':
    case u'\u2011':
    case u'\u2060':
      return true;
    default:
      return false;
  }
}

/// The name of such a character, with its backslash; empty if it has none.
constexpr std::string_view NameOf(char16_t unit) {
  switch (unit) {
    case u'\u00AD':
      return "\\-";
    case u'\u200B':
      return "\\zwbo";
    case u'\u200C':
      return "\\zwnj";
    case u'\u200D':
      return "\\zwj";
    case u'\u200E':
      return "\\ltrmark";
    case u'\u200F':
      return "\\rtlmark";
    case u'\u2011':
      return "\\_";
    case u'\u2060':
      return "\\zwnbo";
    default:
      return {};
  }
}

/// How most sources spell such a character; `Usual` stands for a byte of page 1252. Joiners and
/// direction marks go by number under a font whose page may have them, a `foreign` one.
constexpr Spelling UsualSpelling(char16_t unit, bool foreign) {
  switch (unit) {
    case kSoftHyphen:
    case u'\u2011':
      return Spelling::Name;
    case u'\u200B':
    case u'\u2060':
      return Spelling::Code;
    default:
      if (foreign) return Spelling::Code;
      return unit < 0xA0 ? Spelling::Usual : Spelling::Name;
  }
}

}  // namespace lumenote
