// The DLL: its file and its type library.
#pragma once
#include <string>

#include "ComPtr.h"
#include "Ole.h"

namespace lumenote {

/// The full path of the DLL's file.
std::wstring ModulePath();
/// The description of a type in the DLL's own type library. Null if it cannot be read.
ComPtr<ITypeInfo> DescriptionOf(const GUID& type);

}  // namespace lumenote
