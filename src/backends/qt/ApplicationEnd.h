// The destruction of the program's application object.
#pragma once
#include <functional>

namespace lumenote {

/// Calls `end` when the QApplication begins its destruction, while windows can still be used. Must
/// be created while there is one; later ones are not watched.
class ApplicationEnd {
 public:
  explicit ApplicationEnd(std::function<void()> end);
  ~ApplicationEnd();
  ApplicationEnd(const ApplicationEnd&) = delete;
  ApplicationEnd& operator=(const ApplicationEnd&) = delete;

 private:
  static void Reached();

  std::function<void()> end_;
};

}  // namespace lumenote
