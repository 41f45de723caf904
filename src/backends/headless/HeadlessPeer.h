// Invisible windows: only their rich-text boxes are realised.
#pragma once
#include <map>
#include <memory>
#include <vector>

#include "backends/headless/HeadlessView.h"
#include "forms/Form.h"

namespace lumenote {

/// The layouts of boxes, created with their surfaces. A destroyed box leaves its layout behind
/// until a new box has the same address.
using HeadlessBoxes = std::map<const Control*, std::unique_ptr<HeadlessBox>>;

class HeadlessPeer : public FormPeer {
 public:
  /// `layouts` must outlive the peer.
  HeadlessPeer(Form& form, HeadlessBoxes& boxes);
  ~HeadlessPeer() override;

  void Update(Element& element, Property property) override;
  void Focus(Control& control) override { ShowFocus(&control); }
  void FocusMenuBar(bool on) override { ShowFocus(on ? nullptr : form_.ActiveControl()); }
  void Activate() override {}
  std::optional<Rect> SelectionIn(const RichTextBox& box) override;
  void Add(Control& control) override;
  void Remove(Control& control) override;
  void PopUp(Menu&, Point) override {}
  std::vector<std::string> Differences() const override;

 private:
  /// Shows no boxes yet.
  struct Empty {};
  HeadlessPeer(Form& form, HeadlessBoxes& boxes, Empty) : form_(form), boxes_(boxes) {}

  void AddAll(Container& container);
  HeadlessView* ViewOf(const Control& control) const;
  /// Null for no box.
  void ShowFocus(const Control* focused);

  Form& form_;
  HeadlessBoxes& boxes_;
  std::vector<const Control*> mine_;
};

}  // namespace lumenote
