#include "ActionTable.h"

#include <QtGlobal>

// Shared shortcuts are meant: Find has the one of New, the references those of the bookmarks. Qt then triggers neither,
// and menus and buttons remain the way to them.

#define TEXT(text) QT_TRANSLATE_NOOP("SoNodescopeMainFrame", text)
#define CATEGORY(name, icon)                                                                                           \
    {                                                                                                                  \
        ActionId::Filter##name, TEXT(#name), icon, nullptr, "setFilter(int)", "on_filterChanged()", ActionRow::Checked \
    }

const std::vector<ActionRow>& actionTable()
{
    using Id = ActionId;
    using Row = ActionRow;
    static const std::vector<ActionRow> Table{
        // clang-format off
        {Id::New, TEXT("&New"), "filenew.png", "Ctrl+N", "newFile()", nullptr, Row::NeedsSceneFiles},
        {Id::Open, TEXT("&Open..."), "fileopen", "Ctrl+O", "openFile()", nullptr, Row::NeedsSceneFiles | Row::StandaloneOnly},
        {Id::Reload, TEXT("&Reload"), "reload.png", "Ctrl+R", "reloadFile()", nullptr, Row::StartsDisabled},
        {Id::Close, TEXT("&Close"), "fileclose.png", nullptr, "closeFile()", nullptr, Row::NeedsSceneFiles | Row::StandaloneOnly},
        {Id::Save, TEXT("&Save"), "filesave.png", "Ctrl+S", "saveFile()", nullptr, Row::NeedsSceneFiles},
        {Id::SaveAs, TEXT("Save &As..."), "filesaveas.png", nullptr, "saveAsFile()", nullptr, Row::NeedsSceneFiles},
        {Id::Print, TEXT("&Print..."), "fileprint.png", "Ctrl+P", "printQt()", nullptr, Row::Plain},
        {Id::Export, TEXT("&Export"), "filequickprint.png", "Ctrl+E", "printFile()", nullptr, Row::Plain},
        {Id::Quit, TEXT("&Quit"), "exit.png", "Ctrl+Q", "closeApp()", nullptr, Row::Plain},
        {Id::Undo, TEXT("&Undo"), "undo.png", "Ctrl+Z", "undo()", nullptr, Row::StartsDisabled},
        {Id::Redo, TEXT("&Redo"), "redo.png", "Ctrl+Y", "redo()", nullptr, Row::StartsDisabled},
        {Id::Cut, TEXT("Cu&t"), "editcut.png", "Ctrl+X", "cut()", "on_cutAction_activated()", Row::Plain},
        {Id::Copy, TEXT("&Copy"), "editcopy.png", "Ctrl+C", "copy()", "on_copyAction_activated()", Row::Plain},
        {Id::Paste, TEXT("&Paste"), "editpaste.png", "Ctrl+V", "paste()", "on_pasteAction_activated()", Row::Plain},
        {Id::Delete, TEXT("&Delete"), "editdelete.png", nullptr, nullptr, "on_deleteAction_activated()", Row::StartsDisabled},
        {Id::Find, TEXT("&Find..."), "find.png", "Ctrl+N", "showFindDialog()", nullptr, Row::Plain},
        {Id::FindNext, TEXT("Find &Next"), "findnext.png", "F3", "findNext()", nullptr, Row::Plain},
        {Id::FindPrevious, TEXT("Find Pre&vious"), "findprevious.png", "Shift+F3", "findPrevious()", nullptr, Row::Plain},
        {Id::ToggleBookmark, TEXT("Toggle Bookmark"), "bookmark.png", "Ctrl+F2", "toggleBookmark()", nullptr, Row::Plain},
        {Id::NextBookmark, TEXT("Next Bookmark"), "bookmarknext.png", "F2", "nextBookmark()", nullptr, Row::Plain},
        {Id::PreviousBookmark, TEXT("Previous Bookmark"), "bookmarkprevious.png", "Shift+F2", "previousBookmark()", nullptr, Row::Plain},
        {Id::ClearBookmarks, TEXT("Clear All Bookmarks"), "bookmarkclear.png", "Alt+F2", "clearBookmark()", nullptr, Row::Plain},
        {Id::ToggleFilters, TEXT("Toggle Filters"), "filter.png", nullptr, "setFilter(int)", "on_toggleFilterAction_toggled(bool)", Row::Checked},
        CATEGORY(Appearance, "appearance.png"),
        CATEGORY(Callback, "callback.png"),
        CATEGORY(Camera, "camera.png"),
        CATEGORY(Group, "group.png"),
        CATEGORY(Light, "light.png"),
        CATEGORY(Manipulator, "manipulator.png"),
        CATEGORY(Nodekit, "nodekit.png"),
        CATEGORY(Property, "property.png"),
        CATEGORY(Selection, "selection.png"),
        CATEGORY(Separator, "separator.png"),
        CATEGORY(Shape, "shape.png"),
        CATEGORY(Switch, "switch.png"),
        CATEGORY(Topology, "topology.png"),
        CATEGORY(Transform, "transform.png"),
        {Id::FilterCustom, TEXT("Custom..."), "filtercustom.png", nullptr, "setFilter(int)", "on_customFilterAction_toggled(bool)", Row::Checkable},
        {Id::Explore, TEXT("&Explore"), nullptr, nullptr, nullptr, nullptr, Row::Plain},
        {Id::ExploreAll, TEXT("Explore &all"), nullptr, nullptr, nullptr, nullptr, Row::Plain},
        {Id::FilterDialog, TEXT("&Filter..."), nullptr, nullptr, nullptr, nullptr, Row::Plain},
        {Id::Insert, TEXT("&Insert..."), nullptr, nullptr, nullptr, nullptr, Row::Plain},
        {Id::InsertClipboard, TEXT("Insert &clipboard"), nullptr, nullptr, "pasteNode()", nullptr, Row::Plain},
        {Id::SetIgnoredEnable, TEXT("&Set Ignored/Enable"), nullptr, nullptr, "ignoreEnable()", nullptr, Row::StartsDisabled},
        {Id::ShowAllReferences, TEXT("Show &All References"), nullptr, "F4", "showAllReferences()", nullptr, Row::StartsDisabled},
        {Id::HideAllReferences, TEXT("&Hide All References"), nullptr, "Ctrl+F4", "removeAllReferences()", nullptr, Row::StartsDisabled},
        {Id::NextReference, TEXT("Ne&xt"), nullptr, "F2", "nextReference()", nullptr, Row::StartsDisabled},
        {Id::PreviousReference, TEXT("Pre&vious"), nullptr, "Shift+F2", "previousReference()", nullptr, Row::StartsDisabled},
        {Id::OpenViewer, TEXT("&Open Viewer"), nullptr, nullptr, nullptr, nullptr, Row::Plain},
        {Id::Preferences, TEXT("&Preferences..."), "configure.png", nullptr, "editPreferences()", nullptr, Row::Plain},
        {Id::Contents, TEXT("&Contents"), "help.png", "Shift+F1", "launchNodescopeHelpViewer()", nullptr, Row::Plain},
        {Id::About, TEXT("&About Nodescope"), "info.png", nullptr, "launchAboutNodescopeFrame()", nullptr, Row::Plain},
        // clang-format on
    };
    return Table;
}
