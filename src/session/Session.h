// The values that one control and its windows share.
#pragma once
#include <cstdint>
#include <string>

#include "session/DirtyFlag.h"

namespace lumenote {

/// How the host meant its note: as it looks, as a text whatever it looks like, or as a path.
enum class NoteKind { AsItLooks, Text, Path };

/// One set per control and opening. The host's values stay as written; the derived ones say how the
/// open editor works.
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
  /// What the editor holds no longer goes to `note`: the host wrote another one while the editor
  /// was open, which waits for the next opening, or the control goes.
  bool noteReplaced = false;

  // Of the open editor, or of the last one.
  bool loaded = false;    // the document came in; nothing is given back or saved before
  std::u16string format;  // lower-cased last three characters of the document path
  DirtyFlag dirty;
  bool onTop = false;
  bool menuBarShown = false;
  std::uint64_t changes = 0;  // of the content since it came in

  /// A string note was edited and cannot be given back; it may be clean, since a conversion or a
  /// reload clears the dirty flag.
  bool CannotReturn() const { return !fileMode && noteReplaced && changes > 0; }
};

}  // namespace lumenote
