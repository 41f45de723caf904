// The system's own headers, without its macros that take our names. Nothing else includes it.
#pragma once

#ifndef NOMINMAX
#define NOMINMAX
#endif
#define WIN32_LEAN_AND_MEAN
#ifndef UNICODE
#define UNICODE
#endif

// The others need the first.
// clang-format off
#include <windows.h>
#include <shlobj.h>
#include <tlhelp32.h>
#include <winspool.h>
// clang-format on

#undef ChooseFont
#undef FindText
#undef MessageBox
#undef ReplaceFile
