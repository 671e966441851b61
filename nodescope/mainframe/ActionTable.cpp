#include "ActionTable.h"

#include <QtGlobal>

// Shared shortcuts are meant: Find has the one of New, the references those of the bookmarks. Qt then triggers neither,
// and menus and buttons remain the way to them.

#define CATEGORY(name, text, icon)                                                                                     \
    {                                                                                                                  \
        ActionId::Filter##name, text, icon, nullptr, "setFilter(int)", "on_filterChanged()", ActionRow::Checked        \
    }

const std::vector<ActionRow>& actionTable()
{
    using Id = ActionId;
    using Row = ActionRow;
    static const std::vector<ActionRow> Table{
        // clang-format off
        {Id::New, QT_TRANSLATE_NOOP("Menu", "&New"), "filenew.png", "Ctrl+N", "newFile()", nullptr, Row::NeedsSceneFiles},
        {Id::Open, QT_TRANSLATE_NOOP("Menu", "&Open..."), "fileopen", "Ctrl+O", "openFile()", nullptr, Row::NeedsSceneFiles | Row::StandaloneOnly},
        {Id::Reload, QT_TRANSLATE_NOOP("Menu", "&Reload"), "reload.png", "Ctrl+R", "reloadFile()", nullptr, Row::StartsDisabled},
        {Id::Close, QT_TRANSLATE_NOOP("Menu", "&Close"), "fileclose.png", nullptr, "closeFile()", nullptr, Row::NeedsSceneFiles | Row::StandaloneOnly},
        {Id::Save, QT_TRANSLATE_NOOP("Menu", "&Save"), "filesave.png", "Ctrl+S", "saveFile()", nullptr, Row::NeedsSceneFiles},
        {Id::SaveAs, QT_TRANSLATE_NOOP("Menu", "Save &As..."), "filesaveas.png", nullptr, "saveAsFile()", nullptr, Row::NeedsSceneFiles},
        {Id::Print, QT_TRANSLATE_NOOP("Menu", "&Print..."), "fileprint.png", "Ctrl+P", "printQt()", nullptr, Row::Plain},
        {Id::Export, QT_TRANSLATE_NOOP("Menu", "&Export"), "filequickprint.png", "Ctrl+E", "printFile()", nullptr, Row::Plain},
        {Id::Quit, QT_TRANSLATE_NOOP("Menu", "&Quit"), "exit.png", "Ctrl+Q", "closeApp()", nullptr, Row::Plain},
        {Id::Undo, QT_TRANSLATE_NOOP("Menu", "&Undo"), "undo.png", "Ctrl+Z", "undo()", nullptr, Row::StartsDisabled},
        {Id::Redo, QT_TRANSLATE_NOOP("Menu", "&Redo"), "redo.png", "Ctrl+Y", "redo()", nullptr, Row::StartsDisabled},
        {Id::Cut, QT_TRANSLATE_NOOP("Menu", "Cu&t"), "editcut.png", "Ctrl+X", "cut()", "on_cutAction_activated()", Row::Plain},
        {Id::Copy, QT_TRANSLATE_NOOP("Menu", "&Copy"), "editcopy.png", "Ctrl+C", "copy()", "on_copyAction_activated()", Row::Plain},
        {Id::Paste, QT_TRANSLATE_NOOP("Menu", "&Paste"), "editpaste.png", "Ctrl+V", "paste()", "on_pasteAction_activated()", Row::Plain},
        {Id::Delete, QT_TRANSLATE_NOOP("Menu", "&Delete"), "editdelete.png", nullptr, nullptr, "on_deleteAction_activated()", Row::StartsDisabled},
        {Id::Find, QT_TRANSLATE_NOOP("Menu", "&Find..."), "find.png", "Ctrl+N", "showFindDialog()", nullptr, Row::Plain},
        {Id::FindNext, QT_TRANSLATE_NOOP("Menu", "Find &Next"), "findnext.png", "F3", "findNext()", nullptr, Row::Plain},
        {Id::FindPrevious, QT_TRANSLATE_NOOP("Menu", "Find Pre&vious"), "findprevious.png", "Shift+F3", "findPrevious()", nullptr, Row::Plain},
        {Id::ToggleBookmark, QT_TRANSLATE_NOOP("Menu", "Toggle Bookmark"), "bookmark.png", "Ctrl+F2", "toggleBookmark()", nullptr, Row::Plain},
        {Id::NextBookmark, QT_TRANSLATE_NOOP("Menu", "Next Bookmark"), "bookmarknext.png", "F2", "nextBookmark()", nullptr, Row::Plain},
        {Id::PreviousBookmark, QT_TRANSLATE_NOOP("Menu", "Previous Bookmark"), "bookmarkprevious.png", "Shift+F2", "previousBookmark()", nullptr, Row::Plain},
        {Id::ClearBookmarks, QT_TRANSLATE_NOOP("Menu", "Clear All Bookmarks"), "bookmarkclear.png", "Alt+F2", "clearBookmark()", nullptr, Row::Plain},
        {Id::ToggleFilters, QT_TRANSLATE_NOOP("Menu", "Toggle Filters"), "filter.png", nullptr, "setFilter(int)", "on_toggleFilterAction_toggled(bool)", Row::Checked},
        CATEGORY(Appearance, QT_TRANSLATE_NOOP("Menu", "Appearance"), "appearance.png"),
        CATEGORY(Callback, QT_TRANSLATE_NOOP("Menu", "Callback"), "callback.png"),
        CATEGORY(Camera, QT_TRANSLATE_NOOP("Menu", "Camera"), "camera.png"),
        CATEGORY(Group, QT_TRANSLATE_NOOP("Menu", "Group"), "group.png"),
        CATEGORY(Light, QT_TRANSLATE_NOOP("Menu", "Light"), "light.png"),
        CATEGORY(Manipulator, QT_TRANSLATE_NOOP("Menu", "Manipulator"), "manipulator.png"),
        CATEGORY(Nodekit, QT_TRANSLATE_NOOP("Menu", "Nodekit"), "nodekit.png"),
        CATEGORY(Property, QT_TRANSLATE_NOOP("Menu", "Property"), "property.png"),
        CATEGORY(Selection, QT_TRANSLATE_NOOP("Menu", "Selection"), "selection.png"),
        CATEGORY(Separator, QT_TRANSLATE_NOOP("Menu", "Separator"), "separator.png"),
        CATEGORY(Shape, QT_TRANSLATE_NOOP("Menu", "Shape"), "shape.png"),
        CATEGORY(Switch, QT_TRANSLATE_NOOP("Menu", "Switch"), "switch.png"),
        CATEGORY(Topology, QT_TRANSLATE_NOOP("Menu", "Topology"), "topology.png"),
        CATEGORY(Transform, QT_TRANSLATE_NOOP("Menu", "Transform"), "transform.png"),
        {Id::FilterCustom, QT_TRANSLATE_NOOP("Menu", "Custom..."), "filtercustom.png", nullptr, "setFilter(int)", "on_customFilterAction_toggled(bool)", Row::Checkable},
        {Id::Explore, QT_TRANSLATE_NOOP("Menu", "&Explore"), nullptr, nullptr, nullptr, nullptr, Row::Plain},
        {Id::ExploreAll, QT_TRANSLATE_NOOP("Menu", "Explore &all"), nullptr, nullptr, nullptr, nullptr, Row::Plain},
        {Id::FilterDialog, QT_TRANSLATE_NOOP("Menu", "&Filter..."), nullptr, nullptr, nullptr, nullptr, Row::Plain},
        {Id::Insert, QT_TRANSLATE_NOOP("Menu", "&Insert..."), nullptr, nullptr, nullptr, nullptr, Row::Plain},
        {Id::InsertClipboard, QT_TRANSLATE_NOOP("Menu", "Insert &clipboard"), nullptr, nullptr, "pasteNode()", nullptr, Row::Plain},
        {Id::SetIgnoredEnable, QT_TRANSLATE_NOOP("Menu", "&Set Ignored/Enable"), nullptr, nullptr, "ignoreEnable()", nullptr, Row::StartsDisabled},
        {Id::ShowAllReferences, QT_TRANSLATE_NOOP("Menu", "Show &All References"), nullptr, "F4", "showAllReferences()", nullptr, Row::StartsDisabled},
        {Id::HideAllReferences, QT_TRANSLATE_NOOP("Menu", "&Hide All References"), nullptr, "Ctrl+F4", "removeAllReferences()", nullptr, Row::StartsDisabled},
        {Id::NextReference, QT_TRANSLATE_NOOP("Menu", "Ne&xt"), nullptr, "F2", "nextReference()", nullptr, Row::StartsDisabled},
        {Id::PreviousReference, QT_TRANSLATE_NOOP("Menu", "Pre&vious"), nullptr, "Shift+F2", "previousReference()", nullptr, Row::StartsDisabled},
        {Id::OpenViewer, QT_TRANSLATE_NOOP("Menu", "&Open Viewer"), nullptr, nullptr, nullptr, nullptr, Row::Plain},
        {Id::Preferences, QT_TRANSLATE_NOOP("Menu", "&Preferences..."), "configure.png", nullptr, "editPreferences()", nullptr, Row::Plain},
        {Id::Contents, QT_TRANSLATE_NOOP("Menu", "&Contents"), "help.png", "Shift+F1", "launchNodescopeHelpViewer()", nullptr, Row::Plain},
        {Id::About, QT_TRANSLATE_NOOP("Menu", "&About Nodescope"), "info.png", nullptr, "launchAboutNodescopeFrame()", nullptr, Row::Plain},
        // clang-format on
    };
    return Table;
}
