// Fonts of the machine, with what Uniscribe remembers of them.
#pragma once
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "backends/win32/system/System.h"
#include "backends/win32/toolkit/drawing/Gdi.h"
#include "backends/win32/toolkit/drawing/MemoryDc.h"

// After the system's own header.
#include <usp10.h>

namespace lumenote {

/// One font at one size; extents in pixels.
class GdiFont {
 public:
  GdiFont(HDC measuring, const LOGFONTW& wanted);
  ~GdiFont() { ScriptFreeCache(&cache_); }
  GdiFont(const GdiFont&) = delete;
  GdiFont& operator=(const GdiFont&) = delete;

  HFONT Get() const { return font_.Get(); }
  SCRIPT_CACHE* Cache() const { return &cache_; }
  const LOGFONTW& Wanted() const { return wanted_; }
  int Ascent() const { return ascent_; }
  int Descent() const { return descent_; }
  /// The glyph of characters that the font does not have.
  WORD Missing() const { return missing_; }

 private:
  LOGFONTW wanted_;
  GdiObject<HFONT> font_;
  mutable SCRIPT_CACHE cache_ = nullptr;
  int ascent_ = 0;
  int descent_ = 0;
  WORD missing_ = 0;
};

/// A font as a note asks for it.
struct FontWish {
  std::u16string family;
  BYTE charset = DEFAULT_CHARSET;
  BYTE pitchAndFamily = 0;
  int height = 0;  // pixels of the em square
  bool bold = false;
  bool italic = false;
  int scale = 100;  // per cent of the width
};

/// The fonts in use, created on demand. Those that pieces hold outlive `Forget`.
class GdiFonts {
 public:
  std::shared_ptr<const GdiFont> Of(const FontWish& wish);
  /// The font that stands in for characters which `font` lacks: the `number`th of its linked
  /// families, from 0; null behind the last.
  std::shared_ptr<const GdiFont> Linked(const GdiFont& font, std::size_t number);
  HDC Measuring() const { return dc_.Get(); }
  void Forget() { fonts_.clear(); }

 private:
  std::shared_ptr<const GdiFont> Make(const LOGFONTW& wanted);

  MemoryDc dc_;
  std::map<std::string, std::shared_ptr<const GdiFont>> fonts_;  // by the bytes of what is wanted
};

}  // namespace lumenote
