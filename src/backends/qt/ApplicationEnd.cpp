// The toolkit tells a plain function, which tells the objects.
#include "backends/qt/ApplicationEnd.h"

#include <QCoreApplication>
#include <QEvent>
#include <utility>
#include <vector>

namespace lumenote {

namespace {

// Never destroyed: a platform may be a global object that goes later than this file's own.
std::vector<ApplicationEnd*>& Waiting() {
  static auto& waiting = *new std::vector<ApplicationEnd*>;
  return waiting;
}

}  // namespace

ApplicationEnd::ApplicationEnd(std::function<void()> end) : end_(std::move(end)) {
  if (Waiting().empty()) qAddPostRoutine(&ApplicationEnd::Reached);
  Waiting().push_back(this);
}

ApplicationEnd::~ApplicationEnd() {
  std::erase(Waiting(), this);
  if (Waiting().empty()) qRemovePostRoutine(&ApplicationEnd::Reached);
}

// What goes later has to go now: no event loop comes any more.
void ApplicationEnd::Reached() {
  while (!Waiting().empty()) {
    ApplicationEnd* const next = Waiting().back();
    Waiting().pop_back();
    next->end_();
  }
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

}  // namespace lumenote
