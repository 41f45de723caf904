// The menus of a form, in its menu bar and as popups.
#pragma once
#include <QAction>
#include <QMenu>
#include <QMenuBar>
#include <memory>
#include <unordered_map>

#include "backends/qt/toolkit/WidgetRegistry.h"
#include "forms/Differences.h"
#include "forms/Menu.h"

namespace lumenote {

class MenuTree {
 public:
  /// `window` owns the actions; they may outlive the tree and are inert then.
  MenuTree(const std::vector<Menu*>& menus, QMenuBar& bar, QWidget& window,
           WidgetRegistry& registry);
  ~MenuTree();

  void Update(const Menu& menu);
  /// Shows the menu at a screen position until it closes; the tree may be destroyed meanwhile.
  void PopUp(Menu& menu, QPoint at);
  void Compare(DifferenceList& differences) const;

 private:
  QAction* Add(Menu& menu);
  QAction* MakeAction(Menu& menu);

  QWidget& window_;
  WidgetRegistry& registry_;
  std::unordered_map<const Menu*, QAction*> actions_;
  std::unique_ptr<QObject> listener_;  // its destruction breaks every connection
  const Menu* poppedUp_ = nullptr;     // its opening event has been raised already
};

}  // namespace lumenote
