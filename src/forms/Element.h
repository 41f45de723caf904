// What every part of a window has: a name, its form, members by name.
#pragma once
#include <string>

#include "forms/values/Members.h"

namespace lumenote {

class Form;

/// What of an element has changed; a peer reads the new state from the element.
enum class Property {
  Geometry,
  Caption,
  Visible,
  Enabled,
  Checked,
  BackColor,
  OnTop,
  Panels,
  Content,
  Value,
  List,
  Locked,
  Font,
  Order,
};

/// A window, control, menu entry or timer. Lives as long as its form, which it is a member of.
class Element {
 public:
  /// `name` is the element's own, with its index in parentheses for one of an array.
  Element(Form& form, std::string name);
  virtual ~Element();
  Element(const Element&) = delete;
  Element& operator=(const Element&) = delete;

  Form& Owner() const { return form_; }
  const std::string& Name() const { return name_; }

  virtual void Describe(MemberTable& members);

 protected:
  /// Enters the form's list of elements; called once, by the constructors of a form's parts.
  void Enlist();
  /// Leaves it again, where the part goes before its form does.
  void Delist();
  /// Pushes the change to the form's peer, if there is one.
  void Changed(Property property);

 private:
  Form& form_;
  std::string name_;
};

}  // namespace lumenote
