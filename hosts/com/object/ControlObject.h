// The object that hosts create.
#pragma once
#include "../support/Unknown.h"
#include "ClassDescription.h"
#include "ContainedControl.h"
#include "DesignView.h"
#include "HostMembers.h"
#include "SavesNothing.h"

namespace lumenote {

/// Making one raises what `CoBxRtf` raises.
class ControlObject final
    : public Unknown<HostMembers, ClassDescription, ContainedControl, SavesNothing, DesignView> {};

}  // namespace lumenote
