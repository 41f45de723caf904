// The session's values by name.
#include <array>
#include <string>

#include "pilot/context/Objects.h"
#include "pilot/language/ScriptError.h"
#include "session/Session.h"

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
  bool (*value)(const Session& session);
};

constexpr std::array<SessionFlag, 7> kFlags{{
    {"FileMode", [](const Session& session) -> bool { return session.fileMode; }},
    {"ReadOnly", [](const Session& session) -> bool { return session.readOnly; }},
    {"Deleted", [](const Session& session) -> bool { return session.deleted; }},
    {"Closed", [](const Session& session) -> bool { return session.closed; }},
    {"Dirty", [](const Session& session) -> bool { return session.dirty; }},
    {"OnTop", [](const Session& session) -> bool { return session.onTop; }},
    {"MenuBarShown", [](const Session& session) -> bool { return session.menuBarShown; }},
}};

}  // namespace

Value ReadSession(const Session& session, std::string_view name) {
  for (const SessionText& text : kTexts)
    if (text.name == name) return session.*text.value;
  for (const SessionFlag& flag : kFlags)
    if (flag.name == name) return flag.value(session);
  throw ScriptError("unknown session value " + std::string(name));
}

}  // namespace lumenote
