// The interface for C over the control.
#include <algorithm>
#include <array>
#include <exception>
#include <functional>
#include <mutex>
#include <new>
#include <set>
#include <string>
#include <string_view>
#include <utility>

#include "Machine.h"
#include "base/Strings.h"
#include "lumenote/CoBxRtf.h"
#include "lumenote/NativePaths.h"
#include "lumenote/Note.h"
#include "lumenote/Utf8.h"
#include "lumenote/lumenote.h"

using namespace lumenote;

struct LumenoteControl {
  LumenoteControl();
  ~LumenoteControl();

  CoBxRtf members{TheMachine()};
};

namespace {

/// The controls that live, whatever thread asks. What a host that ends has not destroyed keeps its
/// recovery copy.
class Living {
 public:
  ~Living() {
    for (LumenoteControl* control : controls_) control->members.KeepUnsaved();
  }
  void Add(LumenoteControl* control) {
    const std::lock_guard lock(mutex_);
    controls_.insert(control);
  }
  void Remove(LumenoteControl* control) {
    const std::lock_guard lock(mutex_);
    controls_.erase(control);
  }
  bool Has(LumenoteControl* control) {
    const std::lock_guard lock(mutex_);
    return controls_.contains(control);
  }

 private:
  std::mutex mutex_;
  std::set<LumenoteControl*> controls_;
};

Living& TheLiving() {
  static Living living;
  return living;
}

struct Failure {
  std::string member;
  std::string text;
  LumenoteError error{0, "", ""};

  void Set(int number, std::string itsMember, std::string itsText) {
    member = std::move(itsMember);
    text = std::move(itsText);
    error = {number, member.c_str(), text.c_str()};
  }
};

thread_local Failure theLast;
thread_local std::string theText;  // that the host was last given

constexpr int Number(ErrorNumber number) { return static_cast<int>(number); }

/// Runs the body of one function; what it throws is described. Returns the error's number.
template <class Body>
int Guarded(Body body) noexcept {
  try {
    body();
    theLast.error = {0, "", ""};
  } catch (const RuntimeError& error) {
    theLast.Set(error.Number(), ToUtf8(error.Member()), error.what());
  } catch (const std::bad_alloc&) {
    theLast.error = {Number(ErrorNumber::OutOfMemory), "", "Mémoire insuffisante"};
  } catch (const std::exception& error) {
    theLast.Set(Number(ErrorNumber::Internal), "", error.what());
  }
  return theLast.error.number;
}

[[noreturn]] void Refuse(const char16_t* why, std::u16string_view member = u"") {
  RuntimeError error(ErrorNumber::InvalidArgument, why);
  error.Member(member);
  throw error;
}

/// Runs a body that gives a text to the host. Returns null if it fails.
template <class Body>
const char* TextOf(Body body) noexcept {
  const bool given = Guarded([&] { theText = body(); }) == 0;
  return given ? theText.c_str() : nullptr;
}

CoBxRtf& MembersOf(LumenoteControl* control) {
  if (!control) Refuse(u"Le contrôle manque");
  if (!TheLiving().Has(control)) Refuse(u"Le contrôle n'existe plus");
  return control->members;
}

std::string_view Given(const char* text) {
  if (!text) Refuse(u"Le texte manque");
  return text;
}

/// What replaced a byte that is no UTF-8 would be stored in the host's record.
std::u16string TextFor(std::string_view member, const char* value) {
  const std::string_view bytes = Given(value);
  if (!IsUtf8(bytes)) Refuse(u"Le texte n'est pas en UTF-8", FromUtf8(member));
  return FromUtf8(bytes);
}

struct Property {
  std::string_view name;
  void (CoBxRtf::*write)(std::u16string_view);
};

constexpr std::array kProperties = {Property{"pStrOrchm", &CoBxRtf::pStrOrchm},
                                    Property{"NoteText", &CoBxRtf::NoteText},
                                    Property{"NotePath", &CoBxRtf::NotePath},
                                    Property{"pNomAppli", &CoBxRtf::pNomAppli},
                                    Property{"pChmAppli", &CoBxRtf::pChmAppli},
                                    Property{"pTitreFenêtre", &CoBxRtf::pTitreFenêtre},
                                    Property{"pTitreCadre", &CoBxRtf::pTitreCadre},
                                    Property{"pCouleurFen", &CoBxRtf::pCouleurFen},
                                    Property{"pSScléReg", &CoBxRtf::pSScléReg},
                                    Property{"pAttribut", &CoBxRtf::pAttribut},
                                    Property{"pModelWord", &CoBxRtf::pModelWord}};

const Property& Named(std::string_view name) {
  const auto found = std::ranges::find(kProperties, name, &Property::name);
  if (found == kProperties.end()) Refuse(u"Propriété inconnue", FromUtf8(name));
  return *found;
}

Note::Format FormatNamed(std::string_view name) {
  if (name == "rtf") return Note::Format::Rtf;
  if (name == "text") return Note::Format::Text;
  if (name == "html") return Note::Format::Html;
  Refuse(u"Format inconnu");
}

}  // namespace

LumenoteControl::LumenoteControl() { TheLiving().Add(this); }

LumenoteControl::~LumenoteControl() { TheLiving().Remove(this); }

const LumenoteError* lumenote_last_error() { return &theLast.error; }

const char* lumenote_version() { return LUMENOTE_VERSION; }

LumenoteControl* lumenote_create() {
  LumenoteControl* made = nullptr;
  Guarded([&] { made = new LumenoteControl; });
  return made;
}

void lumenote_destroy(LumenoteControl* control) {
  Guarded([&] {
    if (!control) return;
    MembersOf(control).Closed(nullptr);  // raises on another thread, where nothing may be destroyed
    delete control;
  });
}

int lumenote_set(LumenoteControl* control, const char* property, const char* value) {
  return Guarded([&] {
    const Property& named = Named(Given(property));
    (MembersOf(control).*named.write)(TextFor(named.name, value));
  });
}

const char* lumenote_get(LumenoteControl* control, const char* property) {
  return TextOf([&] {
    const std::string_view name = Given(property);
    if (name != "pStrOrchm") Refuse(u"Propriété que l'on ne peut lire", FromUtf8(name));
    return ToUtf8(MembersOf(control).pStrOrchm());
  });
}

int lumenote_show(LumenoteControl* control, int wait) {
  return Guarded([&] { MembersOf(control).ShowMicroEdit(wait ? 1 : 0); });
}

int lumenote_closed(LumenoteControl* control, void (*handler)(LumenoteControl*, void*),
                    void* data) {
  return Guarded([&] {
    std::function<void()> call;
    if (handler) call = [=] { handler(control, data); };
    MembersOf(control).Closed(std::move(call));
  });
}

int lumenote_host_window(LumenoteControl* control, uintptr_t window) {
  return Guarded([&] { MembersOf(control).HostWindow(window); });
}

int lumenote_keep_unsaved(LumenoteControl* control) {
  return Guarded([&] { MembersOf(control).KeepUnsaved(); });
}

int lumenote_pump(int milliseconds) {
  return Guarded([&] { Pump(milliseconds); });
}

const char* lumenote_drive_path(const char* native) {
  return TextOf([&] { return ToUtf8(ToDrivePath(Given(native))); });
}

const char* lumenote_native_path(const char* drive) {
  return TextOf([&] { return ToNativePath(FromUtf8(Given(drive))); });
}

const char* lumenote_convert(const char* bytes, size_t size, const char* from, const char* to,
                             size_t* length) {
  return TextOf([&] {
    if (!bytes && size > 0) Refuse(u"Le texte manque");
    const std::string_view source(bytes, size);
    const Note note = from ? Note(source, FormatNamed(from)) : Note(source);
    std::string converted = note.Bytes(FormatNamed(Given(to)));
    if (length) *length = converted.size();
    return converted;
  });
}
