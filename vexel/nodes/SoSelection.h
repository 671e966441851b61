#pragma once

#include <vexel/base/SoPathList.h>
#include <vexel/fields/SoEnumEntry.h>
#include <vexel/fields/SoSFEnum.h>
#include <vexel/nodes/SoSeparator.h>
#include <vexel/nodes/detail/CallbackList.h>

class SoPath;

/**
 * A separator that keeps a list of selected paths below it. The paths in the list begin at the selection node, and hold
 * it: it lives on until all are deselected. What is done on a pick, the policy says.
 */
class VEXEL_API SoSelection : public SoSeparator {
    SO_NODE(SoSelection, SoSeparator)
public:
    enum Policy {
        SINGLE, /**< a pick selects what is picked alone */
        TOGGLE, /**< a pick selects, or deselects what is selected */
        SHIFT   /**< SINGLE; with the shift key, TOGGLE */
    };
    static constexpr SoEnumEntry Policy_names[] = {{"SINGLE", SINGLE}, {"TOGGLE", TOGGLE}, {"SHIFT", SHIFT}};
    using PathFunction = void(void* data, SoPath* path);
    using ClassFunction = void(void* data, SoSelection* selection);
    /** Answers the path to select for what was picked; null for nothing. */
    using PickFilter = SoPath*(void* data, const SoPath* picked);

    SoSFEnum policy{this, "policy", SHIFT, Policy_names};

    SoSelection() = default;

    // A path counts from this node on, wherever it begins; one that does not lead through this node is left aside.
    // For a node, the first path to it counts.

    void select(const SoPath* path);
    void select(SoNode* node);
    void deselect(const SoPath* path);
    void deselect(SoNode* node);
    void deselect(int index);
    void toggle(const SoPath* path);
    void toggle(SoNode* node);
    void deselectAll();

    bool isSelected(const SoPath* path) const;
    bool isSelected(SoNode* node) const;
    int getNumSelected() const { return m_selected.getLength(); }
    SoPath* getPath(int index) const { return m_selected[index]; }
    const SoPathList& getList() const { return m_selected; }

    /** Called after a path was selected. */
    void addSelectionCallback(PathFunction* function, void* data = nullptr) { m_onSelect.add(function, data); }
    void removeSelectionCallback(PathFunction* function, void* data = nullptr) { m_onSelect.remove(function, data); }
    /** Called after a path was deselected. */
    void addDeselectionCallback(PathFunction* function, void* data = nullptr) { m_onDeselect.add(function, data); }
    void removeDeselectionCallback(PathFunction* function, void* data = nullptr)
    {
        m_onDeselect.remove(function, data);
    }
    /** Called before and after a pick changes the selection. */
    void addStartCallback(ClassFunction* function, void* data = nullptr) { m_onStart.add(function, data); }
    void removeStartCallback(ClassFunction* function, void* data = nullptr) { m_onStart.remove(function, data); }
    void addFinishCallback(ClassFunction* function, void* data = nullptr) { m_onFinish.add(function, data); }
    void removeFinishCallback(ClassFunction* function, void* data = nullptr) { m_onFinish.remove(function, data); }
    /** Called after every change of the list. */
    void addChangeCallback(ClassFunction* function, void* data = nullptr) { m_onChange.add(function, data); }
    void removeChangeCallback(ClassFunction* function, void* data = nullptr) { m_onChange.remove(function, data); }
    void setPickFilterCallback(PickFilter* filter, void* data = nullptr);

    void handleEvent(SoHandleEventAction& action) override;
    /** Told by the event handling: changes the selection as the policy says. A null path is a pick of nothing. */
    void pick(const SoPath* picked, bool isShiftDown);
    /** The same for several paths at once. */
    void pick(const SoPathList& picked, bool isShiftDown);

protected:
    ~SoSelection() override = default;

private:
    SoPath* fromHere(const SoPath* path) const;
    SoPath* pathTo(SoNode* node) const;
    template <class Change>
    void change(SoPath* ownPath, Change&& change);
    void add(SoPath* path);
    void removeAt(int index);

    SoPathList m_selected;
    CallbackList<SoPath*> m_onSelect;
    CallbackList<SoPath*> m_onDeselect;
    CallbackList<SoSelection*> m_onStart;
    CallbackList<SoSelection*> m_onFinish;
    CallbackList<SoSelection*> m_onChange;
    PickFilter* m_filter = nullptr;
    void* m_filterData = nullptr;
};
