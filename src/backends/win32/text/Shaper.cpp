#include "backends/win32/text/Shaper.h"

#include <algorithm>
#include <utility>

#include "base/Strings.h"

namespace lumenote {

namespace {

// Uniscribe counts the glyphs of a run in 16 bits.
constexpr int kLongestRun = 8'000;

bool IsBlankUnit(char16_t c) { return c == u'\t' || c == kShownLineBreak || c == kShownHidden; }

bool IsDash(char16_t c) { return c == u'-' || c == u'\u2010' || c == u'\u2013' || c == u'\u2014'; }

bool IsDigit(char16_t c) { return c >= u'0' && c <= u'9'; }

/// Ideographs, kana and the like, which are written without spaces.
bool IsIdeographic(char16_t c) {
  return (c >= u'\u3040' && c <= u'\u30FF') || (c >= u'\u3400' && c <= u'\u9FFF') ||
         (c >= u'\uF900' && c <= u'\uFAFF');
}

}  // namespace

// In runs from right to left the glyphs stand in visual order, so those of
// later units come first.
GlyphRun::Range GlyphRun::GlyphsOf(int from, int to) const {
  const auto cluster = [&](int unit) {
    return static_cast<std::size_t>(clusters[static_cast<std::size_t>(unit - start)]);
  };
  if (from >= to) return {0, 0};
  if (analysis.fRTL) return {to == end ? 0 : cluster(to) + 1, cluster(from) + 1};
  return {cluster(from), to == end ? glyphs.size() : cluster(to)};
}

ShapedText Shaper::Shape(bool rightToLeft, const std::vector<int>& ends) {
  shaped_.units.resize(text_.text.size());
  int start = 0;
  for (const int end : ends) {
    if (end == start) continue;
    const std::vector<SCRIPT_ITEM> items = Itemise(start, end, rightToLeft);
    FindBreaks(items);
    for (std::size_t i = 0; i + 1 < items.size(); ++i)
      ShapeItem(items[i].iCharPos, items[i + 1].iCharPos, items[i].a);
    start = end;
  }
  return std::move(shaped_);
}

// The last item only marks the end.
std::vector<SCRIPT_ITEM> Shaper::Itemise(int start, int end, bool rightToLeft) const {
  SCRIPT_CONTROL control = {};
  SCRIPT_STATE state = {};
  state.uBidiLevel = rightToLeft ? 1 : 0;
  std::vector<SCRIPT_ITEM> items(16);
  int count = 0;
  while (ScriptItemize(At(start), end - start, static_cast<int>(items.size()) - 1, &control, &state,
                       items.data(), &count) == E_OUTOFMEMORY)
    items.resize(2 * items.size());
  items.resize(static_cast<std::size_t>(count) + 1);
  for (SCRIPT_ITEM& item : items) item.iCharPos += start;
  return items;
}

void Shaper::FindBreaks(const std::vector<SCRIPT_ITEM>& items) {
  std::vector<SCRIPT_LOGATTR> attributes;
  for (std::size_t i = 0; i + 1 < items.size(); ++i) {
    const int start = items[i].iCharPos;
    const int length = items[i + 1].iCharPos - start;
    attributes.assign(static_cast<std::size_t>(length), {});
    ScriptBreak(At(start), length, &items[i].a, attributes.data());
    for (int at = 0; at < length; ++at) {
      const SCRIPT_LOGATTR& found = attributes[static_cast<std::size_t>(at)];
      const bool blank = IsBlankUnit(UnitAt(start + at));
      ShapedUnit& unit = Unit(start + at);
      const bool inPair =
          start + at > 0 && IsPairAt(text_.text, static_cast<std::size_t>(start + at) - 1);
      unit.stop = !inPair && (found.fCharStop || blank || at == 0);
      unit.breakBefore = unit.stop && MayBreakBefore(start + at, found.fSoftBreak);
    }
  }
}

// Uniscribe looks at each item alone, and in some scripts only at blanks.
bool Shaper::MayBreakBefore(int index, bool soft) const {
  const char16_t here = UnitAt(index);
  if (index == 0 || here == u' ') return false;
  const char16_t before = UnitAt(index - 1);
  if (before == u' ' || before == u'\t') return true;
  if (IsDash(before)) return index > 1 && UnitAt(index - 2) != u' ' && !IsDigit(here);
  return soft || (IsIdeographic(before) && IsIdeographic(here));
}

// An item holds characters of several formats, and a format of several items.
void Shaper::ShapeItem(int start, int end, const SCRIPT_ANALYSIS& analysis) {
  auto part = std::ranges::upper_bound(text_.parts, start, {}, &ShownPart::end);
  for (; part != text_.parts.end() && part->start < end; ++part)
    ShapeStretch({std::max(start, part->start), std::min(end, part->end), part->format,
                  part->reduced, analysis});
}

// Blanks stand alone; what is too long for one run is parted.
void Shaper::ShapeStretch(const Stretch& stretch) {
  for (Stretch rest = stretch; rest.start < stretch.end; rest.start = rest.end) {
    const bool blank = IsBlankUnit(UnitAt(rest.start));
    rest.end = rest.start + 1;
    while (rest.end < stretch.end && IsBlankUnit(UnitAt(rest.end)) == blank) ++rest.end;
    if (blank)
      AddBlanks(rest);
    else
      ShapePart(rest);
  }
}

void Shaper::ShapePart(const Stretch& stretch) {
  for (Stretch rest = stretch; rest.start < stretch.end; rest.start = rest.end) {
    rest.end = stretch.end;
    if (rest.end - rest.start > kLongestRun)
      rest.end = StopAtOrBefore(rest.start + kLongestRun, rest.start);
    ShapeWith(rest, WantedFont(rest), 0);
  }
}

int Shaper::StopAtOrBefore(int index, int start) const {
  int stop = index;
  while (stop > start && !shaped_.units[static_cast<std::size_t>(stop)].stop) --stop;
  return stop > start ? stop : index;
}

void Shaper::AddBlanks(const Stretch& stretch) {
  GlyphRun run{.start = stretch.start, .end = stretch.end, .format = stretch.format};
  run.analysis = stretch.analysis;
  shaped_.runs.push_back(std::move(run));
}

// `next` is the number of the linked font to try next. What no font has is
// shown by the wanted one.
void Shaper::ShapeWith(const Stretch& stretch, std::shared_ptr<const GdiFont> font,
                       std::size_t next) {
  GlyphRun run = Glyphs(stretch, font);
  const std::vector<bool> missing = MissingUnits(run);
  if (std::ranges::find(missing, true) == missing.end()) return Add(std::move(run));
  if (const auto linked = styles_.Fonts().Linked(*WantedFont(stretch), next))
    ShapeApart(stretch, missing, font, linked, next + 1);
  else
    Add(Glyphs(stretch, WantedFont(stretch)));
}

// A piece that has come down to what the font has may still lack something when
// shaped alone: it stays.
void Shaper::ShapeApart(const Stretch& stretch, const std::vector<bool>& missing,
                        const std::shared_ptr<const GdiFont>& font,
                        const std::shared_ptr<const GdiFont>& linked, std::size_t next) {
  Stretch part = stretch;
  for (; part.start < stretch.end; part.start = part.end) {
    const auto at = missing.begin() + (part.start - stretch.start);
    part.end =
        stretch.start + static_cast<int>(std::find(at, missing.end(), !*at) - missing.begin());
    if (*at)
      ShapeWith(part, linked, next);
    else
      Add(Glyphs(part, font));
  }
}

// A script that the font does not know is shown by the glyphs of its
// characters, without shaping.
GlyphRun Shaper::Glyphs(const Stretch& stretch, std::shared_ptr<const GdiFont> font) const {
  const HDC dc = styles_.Fonts().Measuring();
  const SelectScope selected(dc, font->Get());
  const int length = stretch.end - stretch.start;
  GlyphRun run{.start = stretch.start, .end = stretch.end, .format = stretch.format};
  run.analysis = stretch.analysis;
  run.font = std::move(font);
  run.clusters.resize(static_cast<std::size_t>(length));
  run.glyphs.resize(static_cast<std::size_t>(length) * 3 / 2 + 16);
  std::vector<SCRIPT_VISATTR> attributes(run.glyphs.size());
  int count = 0;
  const auto shape = [&] {
    attributes.resize(run.glyphs.size());
    return ScriptShape(dc, run.font->Cache(), At(run.start), length,
                       static_cast<int>(run.glyphs.size()), &run.analysis, run.glyphs.data(),
                       run.clusters.data(), attributes.data(), &count);
  };
  HRESULT result = shape();
  for (; result == E_OUTOFMEMORY; result = shape()) run.glyphs.resize(2 * run.glyphs.size());
  if (FAILED(result)) {
    run.analysis.eScript = SCRIPT_UNDEFINED;
    shape();
  }
  run.glyphs.resize(static_cast<std::size_t>(count));
  run.advances.resize(run.glyphs.size());
  run.offsets.resize(run.glyphs.size());
  ScriptPlace(dc, run.font->Cache(), run.glyphs.data(), count, attributes.data(), &run.analysis,
              run.advances.data(), run.offsets.data(), nullptr);
  return run;
}

// A cluster lacks a glyph as a whole.
std::vector<bool> Shaper::MissingUnits(const GlyphRun& run) const {
  std::vector<bool> missing(run.clusters.size());
  for (int from = run.start, to = from; from < run.end; from = to) {
    for (++to; to < run.end && !shaped_.units[static_cast<std::size_t>(to)].stop;) ++to;
    const auto [first, end] = run.GlyphsOf(from, to);
    const bool lacks =
        std::find(run.glyphs.begin() + static_cast<std::ptrdiff_t>(first),
                  run.glyphs.begin() + static_cast<std::ptrdiff_t>(end),
                  run.font->Missing()) != run.glyphs.begin() + static_cast<std::ptrdiff_t>(end);
    if (lacks)
      std::fill(missing.begin() + (from - run.start), missing.begin() + (to - run.start), true);
  }
  return missing;
}

// Units that share glyphs share their width.
void Shaper::Add(GlyphRun run) {
  Space(run, styles_.Of(document_, run.format).spacing);
  for (int from = run.start, to = from; from < run.end; from = to) {
    const WORD cluster = run.clusters[static_cast<std::size_t>(from - run.start)];
    int stops = 0;
    const auto belongs = [&](int unit) {
      return !Unit(unit).stop ||
             run.clusters[static_cast<std::size_t>(unit - run.start)] == cluster;
    };
    for (; to < run.end && belongs(to); ++to) stops += Unit(to).stop ? 1 : 0;
    int width = 0;
    const auto [first, end] = run.GlyphsOf(from, to);
    for (std::size_t i = first; i < end; ++i) width += run.advances[i];
    for (int i = from; i < to; ++i) {
      if (!Unit(i).stop) continue;
      Unit(i).width = width / stops;
      width -= Unit(i).width;
      --stops;
    }
  }
  shaped_.runs.push_back(std::move(run));
}

void Shaper::Space(GlyphRun& run, int spacing) const {
  if (spacing == 0) return;
  for (int i = run.start; i < run.end; ++i) {
    if (!shaped_.units[static_cast<std::size_t>(i)].stop) continue;
    run.advances[run.clusters[static_cast<std::size_t>(i - run.start)]] += spacing;
  }
}

}  // namespace lumenote
