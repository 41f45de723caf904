#include "forms/Element.h"

#include "base/Strings.h"
#include "forms/Form.h"

namespace lumenote {

Element::Element(Form& form, std::string name) : form_(form), name_(std::move(name)) {}

Element::~Element() = default;

void Element::Register() { form_.elements_.push_back(this); }

void Element::Unregister() { std::erase(form_.elements_, this); }

void Element::Describe(MemberTable& members) {
  members.Add("Name", [this] { return Value(FromUtf8(name_)); });
}

void Element::Changed(Property property) {
  if (FormPeer* peer = form_.Peer()) peer->Update(*this, property);
}

}  // namespace lumenote
