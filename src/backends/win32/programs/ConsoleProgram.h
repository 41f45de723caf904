// What a program with a console has to ask of the system.
#pragma once
#include <string>
#include <vector>

namespace lumenote {

/// Arguments in UTF-8.
std::vector<std::string> Utf8Arguments(int count, wchar_t** arguments);
/// The standard streams carry bytes as they are; a console shows them as UTF-8.
void UseUtf8Streams();

}  // namespace lumenote
