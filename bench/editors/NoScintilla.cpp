// Where the package of Scintilla is not installed.
#include "Editor.h"

namespace lumenote {

std::unique_ptr<Editor> MakeScintilla() { return nullptr; }

}  // namespace lumenote
