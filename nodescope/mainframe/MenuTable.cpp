#include "MenuTable.h"

#include <QtGlobal>

namespace {

using Id = ActionId;
constexpr MenuItem::Kind Separator = MenuItem::Kind::Separator;
constexpr MenuItem::Kind Recent_files = MenuItem::Kind::RecentFiles;
constexpr MenuItem::Kind Search_box = MenuItem::Kind::SearchBox;

std::vector<MenuItem> filterItems()
{
    std::vector<MenuItem> items{Id::ToggleFilters, Separator};
    for (Id id = Id::FilterAppearance; id <= Id::FilterTransform; id = actionAfter(id, 1))
        items.push_back(id);
    return items;
}

} // namespace

const std::vector<MenuRow>& menuTable()
{
    static const MenuRow Bookmarks{
        QT_TRANSLATE_NOOP("Menu", "Bookmarks"),
        {Id::ToggleBookmark, Separator, Id::NextBookmark, Id::PreviousBookmark, Separator, Id::ClearBookmarks}};
    static const MenuRow Filter{QT_TRANSLATE_NOOP("Menu", "Filter"), filterItems()};
    static const std::vector<MenuRow> Table{
        {QT_TRANSLATE_NOOP("Menu", "File"),
         {Id::New, Id::Open, Separator, Id::Reload, Separator, Id::Close, Separator, Id::Save, Id::SaveAs, Separator,
          Id::Export, Separator, Id::Print, Recent_files, Separator, Id::Quit}},
        {QT_TRANSLATE_NOOP("Menu", "&Edit"),
         {Id::Undo, Id::Redo, Separator, Id::Cut, Id::Copy, Id::Paste, Separator, Id::Delete, Separator,
          Id::Preferences}},
        {QT_TRANSLATE_NOOP("Menu", "&View"), {}},
        {QT_TRANSLATE_NOOP("Menu", "&TreeView"),
         {Id::SetIgnoredEnable, Separator, Id::ShowAllReferences, Id::HideAllReferences, Separator, Id::NextReference,
          Id::Preferences, Separator, Id::Find, Id::FindNext, Bookmarks, Filter}},
        {QT_TRANSLATE_NOOP("Menu", "&?"), {Id::Contents, Separator, Id::About}},
    };
    return Table;
}

const std::vector<MenuRow>& toolBarTable()
{
    static const std::vector<MenuRow> Table{
        {QT_TRANSLATE_NOOP("Menu", "File Tool Bar"),
         {Id::New, Id::Open, Separator, Id::Reload, Separator, Id::Close, Separator, Id::Save, Id::SaveAs, Separator,
          Id::Print, Id::Export}},
        {QT_TRANSLATE_NOOP("Menu", "Edit Tool Bar"),
         {Id::Undo, Id::Redo, Separator, Id::Cut, Id::Copy, Id::Paste, Separator, Id::Delete}},
        {QT_TRANSLATE_NOOP("Menu", "Search Tool Bar"), {Id::Find, Search_box, Id::FindPrevious, Id::FindNext}},
        {QT_TRANSLATE_NOOP("Menu", "Bookmark Tool Bar"),
         {Id::ToggleBookmark, Separator, Id::PreviousBookmark, Id::NextBookmark, Separator, Id::ClearBookmarks}},
        {QT_TRANSLATE_NOOP("Menu", "Filter Tool Bar"), filterItems(), true},
    };
    return Table;
}
