// The end of the program's application object.
#pragma once
#include <functional>

namespace lumenote {

/// Calls `end` when the QApplication begins to go, while windows can still be used. Made while
/// there is one; a later one is not waited for.
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
