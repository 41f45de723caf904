// The editor window's geometry, stored in the settings between openings.
#pragma once
#include <string_view>

#include "forms/values/Geometry.h"

namespace lumenote {

class Form;
class Settings;

/// Gives the window the stored bounds, with defaults for missing or unreadable values (5650 by 4350
/// twips at 5000, 3250). Values are not limited; a negative size is ignored.
void RetablirGeometrie(Form& window, const Settings& settings, std::u16string_view section);
/// Stores height, width, top and left; ignores a failure value by value.
void EcrireGeometrie(Settings& settings, std::u16string_view section, const Rect& bounds);

}  // namespace lumenote
