// The values that one control and its windows share.
#pragma once
#include <cstdint>
#include <string>

namespace lumenote {

/// One set per control. The host's values stay as written; the derived ones say how the open editor
/// works and belong to it until it has closed.
struct Session {
  // Written by the host.
  std::u16string applicationName;
  std::u16string listCorrPath;
  std::u16string note;  // the note itself or its path; what the host reads back
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
  /// The host wrote another note while the editor was open: it waits for the next opening, and
  /// what the editor holds no longer goes to `note`.
  bool noteReplaced = false;

  // Of the open editor, or of the last one.
  bool loaded = false;    // the document came in; nothing is given back or saved before
  std::u16string format;  // lower-cased last three characters of the document path
  bool dirty = false;
  bool onTop = false;
  bool menuBarShown = false;
};

}  // namespace lumenote
