// The host program's part: writing the control's properties and opening the editor.
#include <array>
#include <limits>

#include "pilot/context/ScriptContext.h"
#include "pilot/language/Arguments.h"
#include "pilot/language/ScriptError.h"
#include "pilot/verbs/Verbs.h"

namespace lumenote::verbs {
namespace {

struct HostProperty {
  std::string_view name;
  void (CoBxRtf::*write)(std::u16string_view);
};

constexpr std::array<HostProperty, 9> kProperties{{
    {"pNomAppli", &CoBxRtf::pNomAppli},
    {"pChmAppli", &CoBxRtf::pChmAppli},
    {"pTitreFenêtre", &CoBxRtf::pTitreFenêtre},
    {"pTitreCadre", &CoBxRtf::pTitreCadre},
    {"pCouleurFen", &CoBxRtf::pCouleurFen},
    {"pSScléReg", &CoBxRtf::pSScléReg},
    {"pAttribut", &CoBxRtf::pAttribut},
    {"pModelWord", &CoBxRtf::pModelWord},
    {"pStrOrchm", &CoBxRtf::pStrOrchm},
}};

const HostProperty& FindProperty(std::string_view name) {
  for (const HostProperty& property : kProperties)
    if (property.name == name) return property;
  throw ScriptError("unknown property " + std::string(name));
}

}  // namespace

Answer Host(ScriptContext& context, Arguments& arguments) {
  const std::string name = arguments.Name();
  const HostProperty& property = FindProperty(name);
  if (arguments.AtEnd() && name == "pStrOrchm") return Value(context.control.pStrOrchm());
  const std::u16string value = arguments.Text();
  arguments.End();
  (context.control.*property.write)(value);
  return {};
}

Answer Show(ScriptContext& context, Arguments& arguments) {
  using Limits = std::numeric_limits<std::int32_t>;
  const std::int32_t mode = arguments.AtEnd() ? 0 : arguments.Whole(Limits::min(), Limits::max());
  arguments.End();
  context.control.ShowMicroEdit(mode);
  return {};
}

}  // namespace lumenote::verbs
