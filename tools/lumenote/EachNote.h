// A command over many notes.
#pragma once
#include <functional>
#include <string>
#include <vector>

#include "NoteNames.h"

namespace lumenote::tool {

/// Calls `act` with each note and says on standard error, if that is a terminal, which is next. A
/// `Failure` of one is printed there and does not stop the others. Returns the exit status.
int ForEachNote(const std::vector<NoteName>& notes,
                const std::function<void(const NoteName& note)>& act);

/// What is printed of one note among several: its name, and `lines` below.
std::string Titled(const std::string& name, const std::string& lines);

}  // namespace lumenote::tool
