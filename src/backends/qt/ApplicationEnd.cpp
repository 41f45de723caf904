// Qt calls a plain function, which notifies the objects.
#include "backends/qt/ApplicationEnd.h"

#include <QCoreApplication>
#include <QEvent>
#include <utility>
#include <vector>

namespace lumenote {

namespace {

// Never destroyed, because a platform may be a global object that outlives this file's statics.
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

// Deferred deletions happen now: no event loop will run again.
void ApplicationEnd::Reached() {
  while (!Waiting().empty()) {
    ApplicationEnd* const next = Waiting().back();
    Waiting().pop_back();
    next->end_();
  }
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

}  // namespace lumenote
