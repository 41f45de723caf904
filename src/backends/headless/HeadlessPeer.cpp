#include "backends/headless/HeadlessPeer.h"

#include "base/Twips.h"

namespace lumenote {

// Made in two steps, so that boxes already shown are hidden again if one cannot be.
HeadlessPeer::HeadlessPeer(Form& form, HeadlessBoxes& boxes) : HeadlessPeer(form, boxes, Empty()) {
  AddAll(form);
}

HeadlessPeer::~HeadlessPeer() {
  while (!mine_.empty()) {
    boxes_.at(mine_.back())->Hide();
    mine_.pop_back();
  }
}

void HeadlessPeer::AddAll(Container& container) {
  for (Control* control : container.Controls()) {
    Add(*control);
    if (auto* inner = dynamic_cast<Container*>(control)) AddAll(*inner);
  }
}

HeadlessView* HeadlessPeer::ViewOf(const Control& control) const {
  const auto box = boxes_.find(&control);
  return box == boxes_.end() ? nullptr : box->second->view.get();
}

void HeadlessPeer::Add(Control& control) {
  auto* box = dynamic_cast<RichTextBox*>(&control);
  if (!box) return;
  mine_.push_back(box);
  boxes_.at(box)->Show(*box);
}

void HeadlessPeer::Remove(Control& control) {
  if (std::erase(mine_, &control) > 0) boxes_.at(&control)->Hide();
}

void HeadlessPeer::Update(Element& element, Property property) {
  const auto* control = dynamic_cast<const Control*>(&element);
  HeadlessView* view = control ? ViewOf(*control) : nullptr;
  if (view && property == Property::Geometry) view->Resize();
}

// A window without decorations of its own has the nominal ones.
std::optional<Rect> HeadlessPeer::SelectionIn(const RichTextBox& box) {
  constexpr Point kClientCorner = {60, 345};
  constexpr float kMenuBarHeight = 300;
  const auto selected = ViewOf(box)->Text().SelectionBox();
  if (!selected) return std::nullopt;
  const auto twips = [](double pixels) { return static_cast<float>(pixels * kTwipsPerPixel); };
  Rect place = {twips(selected->left), twips(selected->top), twips(selected->Width()),
                twips(selected->Height())};
  for (const Control* inner = &box; inner; inner = dynamic_cast<const Control*>(&inner->Parent())) {
    place.left += inner->Left();
    place.top += inner->Top();
  }
  place.left += form_.Left() + kClientCorner.x;
  place.top += form_.Top() + kClientCorner.y + (form_.HasMenuBar() ? kMenuBarHeight : 0);
  return place;
}

void HeadlessPeer::ShowFocus(const Control* focused) {
  for (const Control* box : mine_) ViewOf(*box)->Text().Focus(box == focused);
}

std::vector<std::string> HeadlessPeer::Differences() const {
  std::vector<std::string> differences;
  for (const Control* box : mine_)
    for (const std::string& difference : ViewOf(*box)->Text().Differences())
      differences.push_back(box->Name() + ": " + difference);
  return differences;
}

}  // namespace lumenote
