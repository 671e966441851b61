#pragma once

#include <nodescope/NodescopeApi.h>

#include <vector>

/** The actions of the main frame, in the order of their table. */
enum class ActionId {
    New,
    Open,
    Reload,
    Close,
    Save,
    SaveAs,
    Print,
    Export,
    Quit,
    Undo,
    Redo,
    Cut,
    Copy,
    Paste,
    Delete,
    Find,
    FindNext,
    FindPrevious,
    ToggleBookmark,
    NextBookmark,
    PreviousBookmark,
    ClearBookmarks,
    ToggleFilters,
    FilterAppearance, ///< the fourteen category filters stand in the order of the category bits
    FilterCallback,
    FilterCamera,
    FilterGroup,
    FilterLight,
    FilterManipulator,
    FilterNodekit,
    FilterProperty,
    FilterSelection,
    FilterSeparator,
    FilterShape,
    FilterSwitch,
    FilterTopology,
    FilterTransform,
    FilterCustom,
    Explore,
    ExploreAll,
    FilterDialog,
    Insert,
    InsertClipboard,
    SetIgnoredEnable,
    ShowAllReferences,
    HideAllReferences,
    NextReference,
    PreviousReference,
    OpenViewer,
    Preferences,
    Contents,
    About,
    Count
};

/** The action that follows by `steps` in the table. */
constexpr ActionId actionAfter(ActionId id, int steps)
{
    return ActionId(int(id) + steps);
}

/** Everything that is fixed about one action. */
struct ActionRow {
    enum Flag : unsigned {
        Plain = 0,
        Checkable = 1,
        Checked = 2 | Checkable,
        StartsDisabled = 4,  ///< until a selection or the history enables it
        NeedsSceneFiles = 8, ///< works on the scene as a file
        StandaloneOnly = 16  ///< would replace the scene of a host
    };

    ActionId id;
    const char* text;
    const char* icon;        ///< file name in the icon folder; null: none
    const char* shortcut;    ///< null: none
    const char* managerSlot; ///< operation of the command manager that the action needs; null: none
    const char*
        frameSlot; ///< slot of the frame that stands between the two; null: the action reaches the manager directly
    unsigned flags;
};

NODESCOPE_API const std::vector<ActionRow>& actionTable();
