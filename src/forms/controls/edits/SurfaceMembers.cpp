#include "forms/controls/edits/SurfaceMembers.h"

#include <optional>
#include <type_traits>

#include "base/Numbers.h"
#include "base/RuntimeError.h"
#include "surface/editing/ParagraphSpacing.h"

namespace lumenote {

namespace {

template <class T>
Value ToValue(const T& value) {
  return Value(value);
}
template <class T>
Value ToValue(const std::optional<T>& value) {
  return value ? Value(*value) : Value();
}

/// Converts a JSON value to the type of a surface member.
template <class T>
T FromValue(const Value& value) {
  if constexpr (std::is_same_v<T, bool>)
    return BooleanOf(value);
  else if constexpr (std::is_same_v<T, std::u16string_view>)
    return TextOf(value);
  else if constexpr (std::is_same_v<T, float>)
    return static_cast<float>(NumberOf(value));
  else
    return ToInt32(NumberOf(value));
}

class Describer {
 public:
  Describer(RichTextSurface& surface, MemberTable& members)
      : surface_(surface), members_(members) {}

  template <class Result, class Argument>
  void Add(std::string_view name, Result (RichTextSurface::*get)() const,
           void (RichTextSurface::*set)(Argument)) {
    members_.Add(
        name, [&surface = surface_, get] { return ToValue((surface.*get)()); },
        [&surface = surface_, set](const Value& value) {
          (surface.*set)(FromValue<Argument>(value));
        });
  }

  template <class Read>
  void Add(std::string_view name, Read read) {
    members_.Add(name, [&surface = surface_, read] { return Value(read(surface)); });
  }

 private:
  RichTextSurface& surface_;
  MemberTable& members_;
};

void DescribeContent(Describer& d) {
  using S = RichTextSurface;
  d.Add<std::u16string, std::u16string_view>("Text", &S::Text, &S::Text);
  d.Add<std::u16string, std::u16string_view>("TextRTF", &S::TextRTF, &S::TextRTF);
  d.Add<Position, Position>("SelStart", &S::SelStart, &S::SelStart);
  d.Add<Position, Position>("SelLength", &S::SelLength, &S::SelLength);
  d.Add<std::u16string, std::u16string_view>("SelText", &S::SelText, &S::SelText);
  d.Add<std::u16string, std::u16string_view>("SelRTF", &S::SelRTF, &S::SelRTF);
}

void DescribeFormats(Describer& d) {
  using S = RichTextSurface;
  using Flag = std::optional<bool>;
  using Whole = std::optional<int>;
  d.Add<Flag, bool>("SelBold", &S::SelBold, &S::SelBold);
  d.Add<Flag, bool>("SelItalic", &S::SelItalic, &S::SelItalic);
  d.Add<Flag, bool>("SelUnderline", &S::SelUnderline, &S::SelUnderline);
  d.Add<Flag, bool>("SelStrikeThru", &S::SelStrikeThru, &S::SelStrikeThru);
  d.Add<Whole, int>("SelCharOffset", &S::SelCharOffset, &S::SelCharOffset);
  d.Add<std::optional<std::u16string>, std::u16string_view>("SelFontName", &S::SelFontName,
                                                            &S::SelFontName);
  d.Add<std::optional<float>, float>("SelFontSize", &S::SelFontSize, &S::SelFontSize);
  d.Add<std::optional<std::int32_t>, std::int32_t>("SelColor", &S::SelColor, &S::SelColor);
  d.Add<Flag, bool>("SelBullet", &S::SelBullet, &S::SelBullet);
  d.Add<Whole, int>("SelAlignment", &S::SelAlignment, &S::SelAlignment);
  d.Add<Whole, int>("SelIndent", &S::SelIndent, &S::SelIndent);
  d.Add<Whole, int>("SelRightIndent", &S::SelRightIndent, &S::SelRightIndent);
  d.Add<Whole, int>("SelHangingIndent", &S::SelHangingIndent, &S::SelHangingIndent);
  d.Add<float, float>("RightMargin", &S::RightMargin, &S::RightMargin);
}

void DescribeQueries(Describer& d) {
  using S = const RichTextSurface&;
  d.Add("LineSpacing", [](S s) { return LineSpacing(s); });
  d.Add("SpaceBefore", [](S s) { return SpaceBefore(s); });
  d.Add("SpaceAfter", [](S s) { return SpaceAfter(s); });
  d.Add("UndoType", [](S s) { return static_cast<int>(s.UndoType()); });
  d.Add("RedoType", [](S s) { return static_cast<int>(s.RedoType()); });
  d.Add("CanUndo", [](S s) { return s.CanUndo(); });
  d.Add("CanRedo", [](S s) { return s.CanRedo(); });
  d.Add("CanPaste", [](S s) { return s.CanPaste(); });
}

}  // namespace

void DescribeSurface(RichTextSurface& surface, MemberTable& members) {
  Describer describer(surface, members);
  DescribeContent(describer);
  DescribeFormats(describer);
  DescribeQueries(describer);
}

}  // namespace lumenote
