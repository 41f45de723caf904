// The verbs by name.
#include <array>
#include <utility>

#include "pilot/verbs/Verbs.h"

namespace lumenote {
namespace {

constexpr std::array<std::pair<std::string_view, Verb>, 48> kVerbs{{
    {"activate", verbs::Activate},
    {"answer", verbs::QueueAnswers},
    {"boxes", verbs::Boxes},
    {"bytes", verbs::Bytes},
    {"cat", verbs::Cat},
    {"click", verbs::Click},
    {"clip", verbs::Clip},
    {"clip-rtf", verbs::ClipRtf},
    {"close", verbs::Close},
    {"dblclick", verbs::DoubleClick},
    {"drag", verbs::Drag},
    {"drop", verbs::Drop},
    {"expect", verbs::Expect},
    {"expect-has", verbs::ExpectHas},
    {"expect-kept", verbs::ExpectKept},
    {"expect-like", verbs::ExpectLike},
    {"file", verbs::File},
    {"finish", verbs::Finish},
    {"font-answer", verbs::FontAnswer},
    {"forms", verbs::Forms},
    {"get", verbs::Get},
    {"hex", verbs::Hex},
    {"host", verbs::Host},
    {"keep", verbs::Keep},
    {"key", verbs::Key},
    {"killed", verbs::Killed},
    {"link", verbs::Link},
    {"ls", verbs::Ls},
    {"mouse", verbs::Mouse},
    {"open", verbs::Open},
    {"pick", verbs::Pick},
    {"popup", verbs::PopUp},
    {"printer-fonts", verbs::PrinterFonts},
    {"program", verbs::PutProgram},
    {"readonly", verbs::ReadOnly},
    {"registry", verbs::Registry},
    {"resize", verbs::Resize},
    {"rm", verbs::Rm},
    {"screen-fonts", verbs::ScreenFonts},
    {"select", verbs::Select},
    {"set", verbs::Set},
    {"setting", verbs::Setting},
    {"show", verbs::Show},
    {"spin", verbs::Spin},
    {"started", verbs::Started},
    {"tick", verbs::Tick},
    {"touch", verbs::Touch},
    {"type", verbs::Type},
}};

}  // namespace

Verb FindVerb(std::string_view name) {
  for (const auto& [known, verb] : kVerbs)
    if (known == name) return verb;
  return nullptr;
}

}  // namespace lumenote
