// Numbers of the DLL's resources, for the resource compiler too.
#pragma once
#include "backends/win32/windows/IconNumber.h"

#define LUMENOTE_TYPE_LIBRARY 1  // the system looks for the first one
#define LUMENOTE_TOOLBOX_BITMAP 101
