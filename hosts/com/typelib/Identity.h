// What the library and its class are called in registry and type library; it never changes.
#pragma once
#include <windows.h>

namespace lumenote {

inline constexpr GUID kLibraryId = {
    0xbb92cc6a, 0x95f6, 0x43c8, {0xba, 0x6c, 0x71, 0x92, 0x43, 0x34, 0x41, 0xa7}};
inline constexpr GUID kInterfaceId = {
    0x4e41e669, 0x0f70, 0x42b2, {0x99, 0x21, 0xf7, 0xa2, 0xca, 0xe6, 0xee, 0xc6}};
inline constexpr GUID kClassId = {
    0x74f0c059, 0x87f8, 0x4559, {0x8a, 0xf9, 0x41, 0x6f, 0xb2, 0x28, 0x05, 0xcd}};

inline constexpr const wchar_t* kLibraryName = L"Lumenote";
inline constexpr const wchar_t* kInterfaceName = L"ICoBxRtf";
inline constexpr const wchar_t* kClassName = L"CoBxRtf";
inline constexpr const wchar_t* kProgId = L"Lumenote.CoBxRtf";
inline constexpr const wchar_t* kVersionedProgId = L"Lumenote.CoBxRtf.1";
inline constexpr const wchar_t* kDescription = L"Lumenote, éditeur de notes";

inline constexpr unsigned short kMajorVersion = 1;
inline constexpr unsigned short kMinorVersion = 0;

}  // namespace lumenote
