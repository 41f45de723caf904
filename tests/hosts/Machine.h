// A host's machine without a desktop: its events come whenever the component waits or asks.
#pragma once
#include <deque>
#include <functional>
#include <stdexcept>
#include <string>
#include <vector>

#include "backends/headless/HeadlessBackend.h"
#include "control/CoBxRtf.h"
#include "control/Component.h"
#include "pilot/machine/PilotPlatform.h"
#include "pilot/machine/ReportedFonts.h"
#include "pilot/posix/PosixSandbox.h"

namespace lumenote {

/// Windows of the headless backend. While a box is up one event of the host comes, then the box is
/// answered with its default button; a wait lets them come until it ends.
class EventfulBackend final : public HeadlessBackend {
 public:
  std::deque<std::function<void()>> events;
  std::vector<std::u16string> boxes;  // their texts

  MessageBox::Answer Show(const MessageBox& box, Form*) override {
    boxes.push_back(box.text);
    RunEvent();
    return DefaultAnswer(box);
  }
  std::optional<FontChoice> ChooseFont(const FontChoice& shown, Form*) override {
    RunEvent();
    return shown;
  }
  void RunUntil(const std::function<bool()>& done) override {
    while (!done())
      if (!RunEvent()) throw std::logic_error("waits for ever");
  }

 private:
  bool RunEvent() {
    if (events.empty()) return false;
    const auto event = std::move(events.front());
    events.pop_front();
    event();
    return true;
  }
};

struct Machine {
  PosixSandbox sandbox;
  EventfulBackend backend;
  ReportedFonts fonts;
  PilotPlatform platform{sandbox, backend, fonts};
};

}  // namespace lumenote
