// A message box and its answer.
#pragma once
#include <string>

namespace lumenote {

/// An empty title means the application's.
struct MessageBox {
  enum class Buttons { Ok, YesNo };
  enum class Icon { None, Critical, Question, Exclamation, Information };
  enum class Answer { Ok, Yes, No };

  std::u16string text{};
  std::u16string title{};
  Buttons buttons = Buttons::Ok;
  Icon icon = Icon::None;
};

/// The answer of pressing Return.
inline MessageBox::Answer DefaultAnswer(const MessageBox& box) {
  return box.buttons == MessageBox::Buttons::Ok ? MessageBox::Answer::Ok : MessageBox::Answer::Yes;
}

}  // namespace lumenote
