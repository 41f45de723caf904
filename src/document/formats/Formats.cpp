#include "document/formats/Formats.h"

namespace lumenote {
namespace {

std::uint64_t HashOf(const std::string& source) { return HashBytes(source.data(), source.size()); }

}  // namespace

std::uint64_t HashOf(const FontFace& face) {
  const std::uint8_t rest[] = {face.charset, face.family, face.pitch};
  return HashBytes(face.name.data(), face.name.size() * sizeof(char16_t)) ^
         HashBytes(rest, sizeof rest);
}

std::uint64_t HashOf(const TabStops& stops) {
  std::uint64_t hash = stops.size();
  for (const TabStop& stop : stops) {
    const std::int32_t members[] = {stop.position, static_cast<std::int32_t>(stop.kind),
                                    stop.leader};
    hash = hash * 31 + HashBytes(members, sizeof members);
  }
  return hash;
}

std::uint64_t HashOf(const Kept& kept) {
  const std::uint32_t rest[] = {kept.field, kept.paragraph, kept.serial};
  return HashOf(kept.before) * 31 + HashOf(kept.instead) + HashBytes(rest, sizeof rest);
}

std::uint64_t HashOf(const KeptField& field) {
  const std::uint32_t rest[] = {field.outer, field.serial};
  return HashOf(field.opening) ^ HashBytes(rest, sizeof rest);
}

std::uint64_t HashOf(const KeptWords& words) { return HashOf(words.source); }

std::uint64_t HashOf(const KeptHead& head) {
  return (HashOf(head.source) * 31 + HashOf(head.tail)) * 31 + HashOf(head.fontTable);
}

FormatTables::FormatTables() {
  fonts.Intern({});
  characters.Intern({});
  paragraphs.Intern({});
  tabs.Intern({});
  kept.Intern({});
  fields.Intern({});
  words.Intern({});
  heads.Intern({});
}

}  // namespace lumenote
