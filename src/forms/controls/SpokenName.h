// What assistive programs call a control.
#pragma once
#include <string>

#include "forms/Control.h"

namespace lumenote {

class Label;

/// The label that names a control that has no name of its own; null for none.
const Label* LabelOf(const Control& control);
/// Its own spoken name or caption; else the label that stands before it in its container, or the
/// title of the container, or of the window. A status bar is called what it says.
std::u16string SpokenNameOf(const Control& control);

}  // namespace lumenote
