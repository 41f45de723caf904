// A naive document to compare with: one format a unit, one paragraph format a break.
#pragma once
#include <gtest/gtest.h>
#include <random>
#include <string>
#include <vector>

#include "document/Document.h"

namespace lumenote {

struct Model {
  std::u16string text;
  std::vector<CharId> characters;
  std::vector<ParaId> paragraphs;  // one a unit; that of a CR counts, the others are 0
  FinalMark mark;

  bool operator==(const Model&) const = default;

  Position Length() const { return static_cast<Position>(text.size()); }
  void Add(std::u16string_view piece, CharId character, ParaId paragraph) {
    text += piece;
    characters.insert(characters.end(), piece.size(), character);
    for (char16_t c : piece) paragraphs.push_back(c == u'\r' ? paragraph : 0);
  }
  void Add(const Model& other, Position from, Position to) {
    text.append(other.text, from, to - from);
    const auto add = [&](auto& numbers, const auto& others) {
      numbers.insert(numbers.end(), others.begin() + from, others.begin() + to);
    };
    add(characters, other.characters);
    add(paragraphs, other.paragraphs);
  }
  Model Replaced(Position from, Position to, const Model& piece) const {
    Model result;
    result.Add(*this, 0, from);
    result.Add(piece, 0, piece.Length());
    result.Add(*this, to, Length());
    result.mark = mark;
    return result;
  }
};

/// Reads a list of leaves into a model, and checks what every leaf promises on the way.
inline Model ModelOf(const LeafList& leaves, FinalMark mark) {
  Model model;
  for (LeafCursor leaf = leaves.CursorAt(0); !leaf.AtEnd(); leaf.Next()) {
    const std::u16string text = leaf->text.View().String();
    EXPECT_EQ(leaf.Start(), model.Length());
    EXPECT_TRUE(!text.empty() && text.front() != u'\n' && text.back() != u'\r');
    EXPECT_EQ(leaf->marks.size(), static_cast<std::size_t>(CountBreaks(text)));
    std::size_t at = 0;
    for (Run run : leaf->runs) {
      model.Add(text.substr(at, run.length), run.format, 0);
      at += run.length;
    }
    EXPECT_EQ(at, text.size());
    std::size_t breaks = 0;
    for (at = 0; at < text.size(); ++at) {
      if (text[at] == u'\r') model.paragraphs.at(leaf.Start() + at) = leaf->marks.at(breaks++);
    }
  }
  EXPECT_EQ(leaves.Length(), model.Length());
  model.mark = mark;
  return model;
}

/// The same random numbers on every machine.
class Dice {
 public:
  explicit Dice(unsigned seed) : engine_(seed) {}
  Position Below(Position count) { return static_cast<Position>(engine_() % count); }
  Position UpTo(Position most) { return Below(most + 1); }

 private:
  std::mt19937 engine_;
};

/// About `length` units in several formats, with accents and breaks and, every other time,
/// surrogate pairs among them.
inline Fragment RandomFragment(Dice& dice, Position length, Model& model) {
  FragmentBuilder builder;
  model = {};
  const bool pairs = dice.Below(2) == 0;
  while (builder.Length() < length) {
    const CharId character = dice.Below(5);
    const ParaId paragraph = dice.Below(4);
    const Position count = dice.Below(40);
    std::u16string text;
    for (Position i = 0; i < count; ++i) text += u"aeéœn tIÉ"[dice.Below(9)];
    if (pairs && dice.Below(4) == 0) text += u"\U0001F33C";
    builder.Append(text, character);
    model.Add(text, character, 0);
    if (dice.Below(3) > 0) continue;
    builder.AppendBreak(character, paragraph);
    model.Add(u"\r\n", character, paragraph);
  }
  return builder.Finish();
}

}  // namespace lumenote
