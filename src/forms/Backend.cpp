#include "forms/Backend.h"

#include "base/Numbers.h"
#include "forms/Form.h"

namespace lumenote {

bool Backend::IsTopmost(const Form& form) { return form.Windows().Active() == &form; }

void Backend::Print(RichTextBox&, std::u16string_view, Form&) {}

void Backend::EventFailed(const RuntimeError& error, Form* form) {
  MessageBox box;
  box.text = u"Erreur d'exécution " + NumberText(std::int64_t{error.Number()}) + u"\r\n" +
             error.Description();
  box.icon = MessageBox::Icon::Critical;
  Show(box, form);
}

}  // namespace lumenote
