// The row of text panels at a window's lower edge, and the sign at its end.
#pragma once
#include "forms/Control.h"
#include "forms/values/StatusSign.h"

namespace lumenote {

/// In twips: the room at each side of a panel's text, the least width of a panel, the sign's side.
inline constexpr double kPanelPadding = 75;
inline constexpr double kLeastPanelWidth = 360;
inline constexpr double kSignTwips = 240;

/// Panels count from 1; each is as wide as its text, and without text not shown. The backend
/// chooses the bar's bounds, at most 300 twips high.
class StatusBar : public Control {
 public:
  StatusBar(Container& container, std::string name, int panels);

  int Count() const { return static_cast<int>(panels_.size()); }
  /// Raises NoSuchElement (340) for a missing panel.
  const std::u16string& Panel(int number) const;
  void Panel(int number, std::u16string_view text);
  /// What the panels say that have a text.
  std::vector<std::u16string> ShownPanels() const;

  StatusSign Sign() const { return sign_; }
  /// What the sign says in words.
  const std::u16string& SignTip() const { return signTip_; }
  void Sign(StatusSign sign, std::u16string_view tip);

  void Describe(MemberTable& members) override;

 private:
  std::vector<std::u16string> panels_;
  StatusSign sign_ = StatusSign::None;
  std::u16string signTip_;
};

}  // namespace lumenote
