// The values shared by a control and its windows.
#pragma once
#include <cstdint>
#include <string>

#include "session/DirtyFlag.h"

namespace lumenote {

/// How to interpret the host's note: by its look, always as text, or always as a path.
enum class NoteKind { AsItLooks, Text, Path };

/// One set per control and opening. The host's values are kept as written; the derived ones
/// describe the open editor.
struct Session {
  // Written by the host.
  std::u16string applicationName;
  std::u16string listCorrPath;
  std::u16string note;  // the note itself or its path; what the host reads back
  NoteKind noteKind = NoteKind::AsItLooks;
  std::u16string windowTitle;
  std::u16string frameTitle;
  std::u16string colourText;
  std::u16string settingsKey;
  std::u16string access;
  std::u16string templatePath;

  // Derived.
  std::int32_t colour = 0;  // 0xBBGGRR
  bool fileMode = false;
  std::u16string
      documentPath;  // string mode: the temporary file, empty before the first activation
  bool readOnly = false;
  bool deleted = false;
  bool closed = false;
  /// The editor's content must no longer go to `note`: the host wrote another note while the editor
  /// was open, kept for the next opening, or the control is being destroyed.
  bool noteReplaced = false;

  // Of the open editor, or of the last one.
  bool loaded = false;    // without it nothing is saved or returned to the host
  std::u16string format;  // lower-cased last three characters of the document path
  DirtyFlag dirty;
  bool onTop = false;
  bool menuBarShown = false;
  std::uint64_t changes = 0;  // of the content since it was loaded

  /// A string note was edited but cannot be returned to the host. It may be clean nevertheless,
  /// since a conversion or a reload clears the dirty flag.
  bool CannotReturn() const { return !fileMode && noteReplaced && changes > 0; }
};

}  // namespace lumenote
