// A command over many notes.
#pragma once
#include <functional>
#include <string>
#include <vector>

#include "NoteNames.h"

namespace lumenote::tool {

/// What is left to do with a note that has been worked on.
using Finish = std::function<void()>;

/// Calls `work` with the notes, as many at a time as there are processors, on threads of their own,
/// and what it returns on the caller's, in the notes' order. Says on standard error, if that is a
/// terminal, which is next. A `Failure` of one is printed there and does not stop the others.
/// Returns the exit status.
int ForEachNote(const std::vector<NoteName>& notes,
                const std::function<Finish(const NoteName& note)>& work);

/// What is printed of one note among several: its name, and `lines` below.
std::string Titled(const std::string& name, const std::string& lines);

}  // namespace lumenote::tool
