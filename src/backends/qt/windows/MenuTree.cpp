#include "backends/qt/windows/MenuTree.h"

#include <QKeySequence>
#include <QPointer>
#include <QStyleOptionMenuItem>

#include "backends/qt/text/FontNames.h"
#include "backends/qt/toolkit/QtText.h"

namespace lumenote {

namespace {

/// Shows the shortcuts of its entries as French keyboards name them: an action's data is its text
/// with the shortcut.
class MenuList final : public QMenu {
 public:
  using QMenu::QMenu;

 protected:
  void initStyleOption(QStyleOptionMenuItem* option, const QAction* action) const override {
    QMenu::initStyleOption(option, action);
    if (!action->shortcut().isEmpty()) option->text = action->data().toString();
  }
};

/// The key is the entry's for those who read menus, but pressing it is the form's affair.
void Show(const Menu& menu, QAction& action) {
  action.setSeparator(menu.IsSeparator());
  if (!menu.IsSeparator()) action.setText(ToQString(menu.Caption()));
  action.setData(ToQString(menu.ShownText()));
  action.setShortcutContext(Qt::WidgetShortcut);
  action.setShortcut(QKeySequence(ToQString(menu.Shortcut()), QKeySequence::PortableText));
  action.setVisible(menu.Visible());
  action.setEnabled(menu.Enabled());
  action.setCheckable(menu.Checked());
  action.setChecked(menu.Checked());
}

}  // namespace

MenuTree::MenuTree(const std::vector<Menu*>& menus, QMenuBar& bar, QWidget& window,
                   WidgetRegistry& registry)
    : window_(window), registry_(registry), listener_(std::make_unique<QObject>()) {
  for (Menu* menu : menus) bar.addAction(Add(*menu));
}

MenuTree::~MenuTree() {
  for (const auto& [menu, action] : actions_) {
    registry_.Remove(*menu);
    if (action->menu()) action->menu()->close();
  }
}

QAction* MenuTree::Add(Menu& menu) {
  QAction* action = MakeAction(menu);
  Show(menu, *action);
  actions_[&menu] = action;
  registry_.Add(menu, *action);
  return action;
}

QAction* MenuTree::MakeAction(Menu& menu) {
  if (menu.Entries().empty()) {
    auto* action = new QAction(&window_);
    // Undoes Qt's own toggling of the check mark, which only the form may change.
    QObject::connect(action, &QAction::triggered, listener_.get(), [this, &menu] {
      Update(menu);
      menu.UserClick();
    });
    return action;
  }
  auto* list = new MenuList(&window_);
  list->setFont(ControlFont());
  for (Menu* entry : menu.Entries()) list->addAction(Add(*entry));
  QObject::connect(list, &QMenu::aboutToShow, listener_.get(), [this, &menu] {
    if (poppedUp_ != &menu) menu.UserOpen();
  });
  return list->menuAction();
}

void MenuTree::Update(const Menu& menu) { Show(menu, *actions_.at(&menu)); }

void MenuTree::PopUp(Menu& menu, QPoint at) {
  QMenu* list = actions_.at(&menu)->menu();
  if (!list) return;
  const QPointer<QObject> alive = listener_.get();
  poppedUp_ = &menu;
  list->exec(at);
  if (alive) poppedUp_ = nullptr;
}

void MenuTree::Compare(DifferenceList& differences) const {
  for (const auto& [menu, action] : actions_) {
    differences.Check(*menu, "Caption",
                      menu->IsSeparator() || action->text() == ToQString(menu->Caption()));
    differences.Check(*menu, "Visible", action->isVisible() == menu->Visible());
    differences.Check(*menu, "Enabled", !menu->Visible() || action->isEnabled() == menu->Enabled());
    differences.Check(*menu, "Checked", action->isChecked() == menu->Checked());
  }
}

}  // namespace lumenote
