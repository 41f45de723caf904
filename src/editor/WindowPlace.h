// Where the editor window stood last: kept in the settings from one opening to the next.
#pragma once
#include <string_view>

#include "forms/values/Geometry.h"

namespace lumenote {

class Settings;

/// The stored place in twips, missing or unreadable values by their defaults (5650 by 4350 at 5000,
/// 3250). No bounds are checked.
Rect LireGeometrie(const Settings& settings, std::u16string_view section);
/// Stores height, width, top and left; a store that refuses is ignored value by value.
void EcrireGeometrie(Settings& settings, std::u16string_view section, const Rect& place);

}  // namespace lumenote
