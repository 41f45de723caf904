#include "backends/qt/view/TextAttributes.h"

#include "backends/qt/toolkit/Colours.h"
#include "backends/qt/toolkit/QtText.h"

namespace lumenote {

namespace {

const char* NameOf(Alignment alignment) {
  constexpr const char* kNames[] = {"left", "right", "center", "justify"};
  return kNames[static_cast<std::size_t>(alignment)];
}

const char* KindOf(Underline underline) {
  if (underline == Underline::None) return "none";
  return underline == Underline::Double || underline == Underline::DoubleWave ? "double" : "single";
}

const char* StrikeOf(const CharFormat& format) {
  if (format.effects & kDoubleStrike) return "double";
  return format.effects & kStrike ? "single" : "none";
}

const char* ScriptOf(const CharFormat& format) {
  if (format.effects & kSuperscript || format.offset > 0) return "super";
  return format.effects & kSubscript || format.offset < 0 ? "sub" : "baseline";
}

class AttributeList {
 public:
  void Add(const char* name, const QString& value) {
    text_ += QStringLiteral("%1:%2;").arg(QLatin1String(name), value);
  }
  void Add(const char* name, const char* value) { Add(name, QString(QLatin1String(value))); }
  /// Nothing where the colour is the desktop's own.
  void AddColour(const char* name, Colour colour) {
    if (colour == kAutoColour) return;
    const QColor shown = FromBgr(colour);
    Add(name,
        QStringLiteral("rgb(%1,%2,%3)").arg(shown.red()).arg(shown.green()).arg(shown.blue()));
  }
  const QString& Text() const { return text_; }

 private:
  QString text_;
};

}  // namespace

QString TextAttributes(const AccessibleText::Run& run, const FormatTables& formats, bool misspelt) {
  const CharFormat& format = run.format;
  AttributeList list;
  list.Add("font-family", ToQString(formats.fonts[format.font].name));
  list.Add("font-size", QStringLiteral("%1pt").arg(format.size / 2.0));
  list.Add("font-weight", format.effects & kBold ? "bold" : "normal");
  list.Add("font-style", format.effects & kItalic ? "italic" : "normal");
  list.Add("text-underline-style", format.underline == Underline::None ? "none" : "solid");
  list.Add("text-underline-type", KindOf(format.underline));
  list.Add("text-line-through-type", StrikeOf(format));
  list.Add("text-position", ScriptOf(format));
  list.Add("text-align", NameOf(run.alignment));
  list.AddColour("color", format.colour);
  list.AddColour("background-color", format.highlight);
  if (misspelt) list.Add("invalid", "spelling");
  return list.Text();
}

}  // namespace lumenote
