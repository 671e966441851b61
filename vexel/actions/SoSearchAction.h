#pragma once

#include <vexel/actions/SoAction.h>
#include <vexel/base/SbName.h>
#include <vexel/base/SoPathList.h>

/** Looks for nodes: a certain node, nodes of a type, or nodes of a name; all that is asked for must fit. */
class VEXEL_API SoSearchAction : public SoAction {
    SO_ACTION(SoSearchAction, SoAction)
public:
    enum LookFor { NODE = 1, TYPE = 2, NAME = 4 };
    enum Interest { FIRST, LAST, ALL };

    SoSearchAction() = default;
    ~SoSearchAction() override;

    void setNode(SoNode* node);
    /** @param derivedIsOk  types derived from @p type fit as well */
    void setType(SoType type, bool derivedIsOk = true);
    void setName(const SbName& name);
    /** What is looked for, as the sum of LookFor flags; the set functions switch on their own flag. */
    void setFind(int what) { m_find = what; }
    int getFind() const { return m_find; }
    void setInterest(Interest interest) { m_interest = interest; }
    Interest getInterest() const { return m_interest; }
    /** Whether children that a switch hides are looked at too. */
    void setSearchingAll(bool on) { m_searchingAll = on; }
    bool isSearchingAll() const override { return m_searchingAll; }

    /** The path to the first or last node that fits; null when none was found. */
    SoPath* getPath() const;
    /** The paths to all nodes that fit, in the order of traversal. */
    const SoPathList& getPaths() const { return m_paths; }

    /** Forgets what was looked for and what was found. */
    void reset();

    bool needsState() const override { return false; }

protected:
    void beginTraversal() override;
    void visitNode(SoNode& node) override;

private:
    bool fits(const SoNode& node) const;

    SoNode* m_node = nullptr;
    SoType m_type;
    bool m_derivedIsOk = true;
    SbName m_name;
    int m_find = 0;
    Interest m_interest = FIRST;
    bool m_searchingAll = false;
    SoPathList m_paths;
};
