// Entering the control in the registry and removing it without a trace.
#pragma once
#include "../support/Ole.h"

namespace lumenote {

/// Registers for all users, in place of a registration of the current one; where that is not
/// allowed, for the current one.
HRESULT Register();
HRESULT RegisterForUser();
/// Removes both registrations. What hosts of the other width use stays while they are registered.
HRESULT Unregister();
HRESULT UnregisterForUser();

}  // namespace lumenote
