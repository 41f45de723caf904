// The menus of a form as native menus, which its menu bar and popups show.
#pragma once
#include <map>
#include <memory>
#include <vector>

#include "backends/win32/system/System.h"
#include "forms/Differences.h"
#include "forms/Menu.h"

namespace lumenote {

/// Each entry has a command number, by which the window that owns the menus is told of a choice.
class MenuTree {
 public:
  explicit MenuTree(const std::vector<Menu*>& menus);

  void Update(const Menu& menu);
  void Compare(DifferenceList& differences) const;

  /// Null for a menu without entries.
  HMENU ListOf(const Menu& menu) const;
  UINT CommandOf(const Menu& entry) const { return items_.at(&entry).command; }
  /// Null for none.
  Menu* WithList(HMENU list) const;
  Menu* WithCommand(UINT command) const;

 private:
  /// Owns a native menu, but not the ones that open from it.
  class List {
   public:
    List() : handle_(CreatePopupMenu()) {}
    ~List();
    List(const List&) = delete;
    List& operator=(const List&) = delete;

    HMENU Handle() const { return handle_; }
    void Clear();

   private:
    HMENU handle_;
  };
  struct Item {
    Menu* menu = nullptr;
    const Menu* parent = nullptr;  // null for a menu of the bar
    UINT command = 0;
    std::unique_ptr<List> list{};
  };

  void Add(Menu& menu, const Menu* parent);
  void Fill(const Menu& menu);
  void Append(HMENU list, const Menu& entry) const;

  std::map<const Menu*, Item> items_;
};

}  // namespace lumenote
