#include "backends/win32/windows/menus/MenuTree.h"

#include "backends/win32/system/NativeText.h"

namespace lumenote {
namespace {

constexpr UINT kFirstCommand = 1000;

UINT FlagsOf(const Menu& entry) {
  if (entry.IsSeparator()) return MF_SEPARATOR;
  return (entry.Enabled() ? MF_ENABLED : MF_GRAYED) | (entry.Checked() ? MF_CHECKED : MF_UNCHECKED);
}

std::u16string TextIn(HMENU list, UINT place) {
  wchar_t text[256] = {};
  GetMenuStringW(list, place, text, static_cast<int>(std::size(text)), MF_BYPOSITION);
  return std::u16string(Utf16(text));
}

}  // namespace

MenuTree::List::~List() {
  Clear();
  DestroyMenu(handle_);
}

void MenuTree::List::Clear() {
  while (RemoveMenu(handle_, 0, MF_BYPOSITION)) {
  }
}

MenuTree::MenuTree(const std::vector<Menu*>& menus) {
  for (Menu* menu : menus) Add(*menu, nullptr);
}

void MenuTree::Add(Menu& menu, const Menu* parent) {
  const UINT command = kFirstCommand + static_cast<UINT>(items_.size());
  Item& item = items_[&menu];
  item.menu = &menu;
  item.parent = parent;
  item.command = command;
  if (menu.Entries().empty()) return;
  item.list = std::make_unique<List>();
  for (Menu* entry : menu.Entries()) Add(*entry, &menu);
  Fill(menu);
}

void MenuTree::Fill(const Menu& menu) {
  items_.at(&menu).list->Clear();
  for (const Menu* entry : menu.Entries())
    if (entry->Visible()) Append(ListOf(menu), *entry);
}

void MenuTree::Append(HMENU list, const Menu& entry) const {
  const Item& item = items_.at(&entry);
  const UINT kind = item.list ? MF_POPUP : 0;
  const auto id = item.list ? reinterpret_cast<UINT_PTR>(item.list->Handle()) : item.command;
  AppendMenuW(list, FlagsOf(entry) | kind, id, Wide(entry.ShownText()));
}

void MenuTree::Update(const Menu& menu) {
  if (const Menu* parent = items_.at(&menu).parent) Fill(*parent);
}

HMENU MenuTree::ListOf(const Menu& menu) const {
  const Item& item = items_.at(&menu);
  return item.list ? item.list->Handle() : nullptr;
}

Menu* MenuTree::WithList(HMENU list) const {
  for (const auto& [menu, item] : items_)
    if (item.list && item.list->Handle() == list) return item.menu;
  return nullptr;
}

Menu* MenuTree::WithCommand(UINT command) const {
  for (const auto& [menu, item] : items_)
    if (item.command == command) return item.menu;
  return nullptr;
}

void MenuTree::Compare(DifferenceList& differences) const {
  for (const auto& [menu, item] : items_) {
    if (!item.list) continue;
    UINT place = 0;
    for (const Menu* entry : menu->Entries()) {
      if (!entry->Visible()) continue;
      const UINT state = GetMenuState(item.list->Handle(), place, MF_BYPOSITION);
      const UINT shown = entry->IsSeparator() ? MF_SEPARATOR : MF_GRAYED | MF_CHECKED;
      differences.Check(*entry, "state", (state & shown) == (FlagsOf(*entry) & shown));
      if (!entry->IsSeparator())
        differences.Check(*entry, "Caption",
                          TextIn(item.list->Handle(), place) == entry->ShownText());
      ++place;
    }
    differences.Check(*menu, "entries",
                      GetMenuItemCount(item.list->Handle()) == static_cast<int>(place));
  }
}

}  // namespace lumenote
