#include "document/formats/Formats.h"

namespace lumenote {
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

}  // namespace lumenote
