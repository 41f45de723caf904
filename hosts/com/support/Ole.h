// The system's headers for COM objects and controls.
#pragma once
#include <ocidl.h>
#include <ole2.h>
#include <oleauto.h>
#include <olectl.h>

#include "backends/win32/system/System.h"
