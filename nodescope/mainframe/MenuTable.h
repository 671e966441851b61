#pragma once

#include <nodescope/mainframe/ActionTable.h>

#include <vector>

struct MenuRow;

/** One entry of a menu or tool bar. */
struct MenuItem {
    enum class Kind { Action, Separator, Submenu, RecentFiles, SearchBox };

    MenuItem(ActionId id) : kind(Kind::Action), action(id) {}
    MenuItem(Kind special) : kind(special) {}
    MenuItem(const MenuRow& menu) : kind(Kind::Submenu), submenu(&menu) {}

    Kind kind;
    ActionId action = ActionId::Count;
    const MenuRow* submenu = nullptr;
};

/** A menu or tool bar: its title and entries, in order. */
struct MenuRow {
    const char* title;
    std::vector<MenuItem> items;
    bool startsLine = false; ///< a tool bar that begins a new line
};

/** Menus of the menu bar, in order. */
NODESCOPE_API const std::vector<MenuRow>& menuTable();
/** Tool bars, in order. */
NODESCOPE_API const std::vector<MenuRow>& toolBarTable();

/** Places in menuTable() of the menus that others add to. */
constexpr std::size_t View_menu = 2;
constexpr std::size_t Help_menu = 4;
