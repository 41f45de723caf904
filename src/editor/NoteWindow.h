// What the procedures of storage need of the editor window beyond what dialogs do.
#pragma once
#include <string_view>

#include "editor/FileState.h"
#include "session/EditorWindow.h"

namespace lumenote {

class TempFolder;

class NoteWindow : public EditorWindow {
 public:
  /// The control's own temporary folder.
  virtual const TempFolder& Temp() = 0;
  /// The file at the document path as this editor has last read or written it.
  virtual FileState& OnDisk() = 0;
  /// Text of a status panel, counted from 1.
  virtual void ShowStatus(int panel, std::u16string_view text) = 0;
  /// Text of the label `Lb_Format`.
  virtual void ShowFormat(std::u16string_view text) = 0;
};

}  // namespace lumenote
