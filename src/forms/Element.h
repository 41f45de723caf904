// The base of every part of a window: a name, its form, members by name.
#pragma once
#include <string>

#include "forms/values/Members.h"

namespace lumenote {

class Form;

/// Which state of an element has changed; the peer reads the new value from the element.
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
  Sign,
  ToolTip,
  SpokenName,
};

/// A window, control, menu entry or timer. A member of its form, so both have one lifetime.
class Element {
 public:
  /// `name` includes the index in parentheses for an element of an array.
  Element(Form& form, std::string name);
  virtual ~Element();
  Element(const Element&) = delete;
  Element& operator=(const Element&) = delete;

  Form& Owner() const { return form_; }
  const std::string& Name() const { return name_; }

  virtual void Describe(MemberTable& members);

 protected:
  /// Adds it to the form's list of elements; called once, by the constructors of derived classes.
  void Register();
  /// Removes it again, for an element that is destroyed before its form.
  void Unregister();
  /// Pushes the change to the form's peer, if there is one.
  void Changed(Property property);

 private:
  Form& form_;
  std::string name_;
};

}  // namespace lumenote
