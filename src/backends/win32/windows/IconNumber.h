// The number of the component's icon among a program's resources, for the resource compiler too.
#pragma once

#define LUMENOTE_ICON 100
