// Makes views accessible to assistive programs.
#pragma once

namespace lumenote {

/// Registers the text interfaces of views with Qt; idempotent.
void UseViewAccessibility();

}  // namespace lumenote
