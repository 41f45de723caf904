// Peers that show nothing.
#include "backends/headless/HeadlessBackend.h"

#include "base/RuntimeError.h"
#include "forms/Form.h"
#include "forms/controls/RichTextBox.h"
#include "surface/DocumentSurface.h"

namespace lumenote {
namespace {

using Layouts = std::map<const RichTextBox*, std::unique_ptr<BoxLayout>>;

void Refresh(const Layouts& layouts, const Control& control) {
  const auto layout = layouts.find(dynamic_cast<const RichTextBox*>(&control));
  if (layout != layouts.end()) layout->second->WrapWidthChanged();
}

void RefreshAll(const Layouts& layouts, const Container& container) {
  for (const Control* control : container.Controls()) {
    Refresh(layouts, *control);
    if (const auto* inner = dynamic_cast<const Container*>(control)) RefreshAll(layouts, *inner);
  }
}

/// Shows nothing; keeps the layout of rich-text boxes in step with their width.
class HeadlessPeer final : public FormPeer {
 public:
  explicit HeadlessPeer(const Layouts& layouts) : layouts_(layouts) {}

  void Update(Element& element, Property property) override {
    const auto* control = dynamic_cast<const Control*>(&element);
    if (control && property == Property::Geometry) Refresh(layouts_, *control);
  }
  void Focus(Control&) override {}
  void Activate() override {}
  void Add(Control&) override {}
  void Remove(Control&) override {}
  void PopUp(Menu&, Point) override {}
  std::vector<std::string> Differences() const override { return {}; }

 private:
  const Layouts& layouts_;
};

}  // namespace

std::unique_ptr<FormPeer> HeadlessBackend::Realise(Form& form) {
  RefreshAll(layouts_, form);
  return std::make_unique<HeadlessPeer>(layouts_);
}

std::unique_ptr<RichTextSurface> HeadlessBackend::MakeSurface(RichTextBox& box,
                                                              Clipboard& clipboard, Files& files) {
  std::unique_ptr<BoxLayout>& layout = layouts_[&box];
  layout = std::make_unique<BoxLayout>(box);
  auto surface = std::make_unique<DocumentSurface>(clipboard, files, layout->Breaker());
  layout->Attach(*surface);
  return surface;
}

MessageBox::Answer HeadlessBackend::Show(const MessageBox& box, Form*) {
  return DefaultAnswer(box);
}

void HeadlessBackend::RunUntil(const std::function<bool()>& done) {
  if (!done())
    throw RuntimeError(ErrorNumber::InvalidArgument,
                       u"Sans système de fenêtres, cette attente ne finirait jamais");
}

}  // namespace lumenote
