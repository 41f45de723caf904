// Keys that edit the document or act on the clipboard and the history.
#pragma once
#include <optional>

#include "surface/editing/CharacterFormats.h"
#include "surface/editing/ParagraphFormats.h"
#include "surface/editing/TextEditing.h"
#include "surface/editing/Transfer.h"
#include "surface/keys/CaretMotion.h"
#include "surface/keys/KeyStroke.h"

namespace lumenote {

/// Whether the key is in a surface's table of commands.
bool IsCommandKey(const KeyStroke& key);

/// A surface's keyboard: caret keys, and a table of all others.
class UserKeys {
 public:
  UserKeys(EditingCore& core, CaretMotion& motion, TextEditing& text, CharacterFormats& characters,
           ParagraphFormats& paragraphs, Transfer& transfer);

  /// Handles a key; false if it means nothing here. A key with nothing to do counts as handled.
  bool Press(const KeyStroke& key);
  /// Whether what is looked at stays in view, wherever the caret goes.
  static bool KeepsView(const KeyStroke& key);

 private:
  using Action = void (UserKeys::*)();
  struct Command {
    KeyStroke key;
    Action action = nullptr;
  };
  static const Command kCommands[];
  friend bool IsCommandKey(const KeyStroke& key);

  void BackSpace();
  void BackSpaceWord();
  void DeleteNext();
  void DeleteNextWord();
  void Erase(Position to);
  void Break();
  void BreakLine();
  void Tab();
  bool GoTo(std::optional<Position> target);
  void Blank();
  void SelectAll();
  void Copy() { transfer_.Copy(); }
  void Cut() { transfer_.Cut(); }
  void Paste() { transfer_.Paste(); }
  void PasteText() { transfer_.PasteText(); }
  void Undo() { core_.Undo(); }
  void Redo() { core_.Redo(); }
  void ToggleBold();
  void ToggleItalic();
  void ToggleUnderline();
  void AlignLeft() { Align(Alignment::Left); }
  void AlignRight() { Align(Alignment::Right); }
  void Centre() { Align(Alignment::Centre); }
  void Justify() { Align(Alignment::Justify); }
  void Align(Alignment alignment) { paragraphs_.Align(alignment); }
  void SpaceSingly() { SpaceLines(20); }
  void SpaceOneAndHalf() { SpaceLines(30); }
  void SpaceDoubly() { SpaceLines(40); }
  void SpaceLines(int twentieths);

  EditingCore& core_;
  CaretMotion& motion_;
  TextEditing& text_;
  CharacterFormats& characters_;
  ParagraphFormats& paragraphs_;
  Transfer& transfer_;
};

}  // namespace lumenote
