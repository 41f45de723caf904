// What storage procedures need of the editor window beyond `EditorWindow`.
#pragma once
#include <string_view>

#include "editor/storage/FileState.h"
#include "session/EditorWindow.h"

namespace lumenote {

class TempFolder;

class NoteWindow : public EditorWindow {
 public:
  /// The control's own temporary folder.
  virtual const TempFolder& Temp() = 0;
  /// The file at the document path as this editor last read or wrote it.
  virtual FileState& OnDisk() = 0;
  /// Sets the text of a status panel, counted from 1.
  virtual void ShowStatus(int panel, std::u16string_view text) = 0;
  /// Sets the text of the label `Lb_Format`.
  virtual void ShowFormat(std::u16string_view text) = 0;
};

}  // namespace lumenote
