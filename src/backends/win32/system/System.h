// The system's own header, without its macros that take our names. Nothing else includes it.
#pragma once

#ifndef NOMINMAX
#define NOMINMAX
#endif
#define WIN32_LEAN_AND_MEAN
#ifndef UNICODE
#define UNICODE
#endif

#include <windows.h>

#undef ChooseFont
#undef FindText
#undef MessageBox
#undef ReplaceFile
