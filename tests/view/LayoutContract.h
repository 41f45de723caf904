// What every layouter owes the view; each backend's test program gives its own.
#pragma once
#include <memory>

#include "view/layout/TextLayouter.h"

namespace lumenote {

std::unique_ptr<TextLayouter> MakeLayouter();
/// Whether it sets lines at other edges than the left one.
bool LayouterAligns();

}  // namespace lumenote
