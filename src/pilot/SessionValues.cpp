// The session's values by name.
#include <array>
#include <string>

#include "control/Session.h"
#include "pilot/Objects.h"
#include "pilot/ScriptError.h"

namespace lumenote {
namespace {

struct SessionText {
  std::string_view name;
  std::u16string Session::*value;
};

constexpr std::array<SessionText, 11> kTexts{{
    {"ApplicationName", &Session::applicationName},
    {"ListCorrPath", &Session::listCorrPath},
    {"Note", &Session::note},
    {"WindowTitle", &Session::windowTitle},
    {"FrameTitle", &Session::frameTitle},
    {"ColourText", &Session::colourText},
    {"SettingsKey", &Session::settingsKey},
    {"Access", &Session::access},
    {"Template", &Session::templatePath},
    {"DocumentPath", &Session::documentPath},
    {"Format", &Session::format},
}};

struct SessionFlag {
  std::string_view name;
  bool Session::*value;
};

constexpr std::array<SessionFlag, 7> kFlags{{
    {"FileMode", &Session::fileMode},
    {"ReadOnly", &Session::readOnly},
    {"Deleted", &Session::deleted},
    {"Closed", &Session::closed},
    {"Dirty", &Session::dirty},
    {"OnTop", &Session::onTop},
    {"MenuBarShown", &Session::menuBarShown},
}};

}  // namespace

Value ReadSession(const Session& session, std::string_view name) {
  for (const SessionText& text : kTexts)
    if (text.name == name) return session.*text.value;
  for (const SessionFlag& flag : kFlags)
    if (flag.name == name) return session.*flag.value;
  throw ScriptError("unknown session value " + std::string(name));
}

}  // namespace lumenote
