// The editor window's geometry, stored in the settings between openings.
#pragma once
#include <string_view>

#include "forms/values/Geometry.h"

namespace lumenote {

class Settings;

/// The stored bounds in twips, with defaults for missing or unreadable values (5650 by 4350 at
/// 5000, 3250). Values are not limited.
Rect LireGeometrie(const Settings& settings, std::u16string_view section);
/// Stores height, width, top and left; ignores a failure value by value.
void EcrireGeometrie(Settings& settings, std::u16string_view section, const Rect& bounds);

}  // namespace lumenote
