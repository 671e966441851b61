#pragma once

#include <vexel/fields/SoSFNode.h>
#include <vexel/fields/SoSFString.h>
#include <vexel/fields/SoSFVec3f.h>
#include <vexel/nodes/SoChildList.h>
#include <vexel/nodes/SoNode.h>

/**
 * Stands for a scene elsewhere, which the program fetches when it is asked for. Until then a box can be shown. The
 * first child is that box; the scene that was fetched follows. None of them is written with the node.
 */
class VEXEL_API SoWWWInline : public SoNode {
    SO_NODE(SoWWWInline, SoNode)
public:
    enum BboxVisibility { NEVER, UNTIL_LOADED, ALWAYS };
    using Function = void(const SbString& url, void* data, SoWWWInline* node);

    /** The address. */
    SoSFString name{this, "name", SbString("<Undefined URL>")};
    SoSFVec3f bboxCenter{this, "bboxCenter", SbVec3f(0, 0, 0)};
    /** 0 0 0 for no box. */
    SoSFVec3f bboxSize{this, "bboxSize", SbVec3f(0, 0, 0)};
    /** Shown instead of the box. */
    SoSFNode alternateRep{this, "alternateRep"};

    SoWWWInline();

    /** The address, made relative to the file that the node was read from. */
    SbString getFullURLName() const;

    /** What requestChildrenFromURL() calls; one function for all. It answers through setChildData(), now or later. */
    static void setFetchURLCallBack(Function* function, void* data);
    /** Asks for the scene. */
    void requestChildrenFromURL();
    bool isURLDataRequested() const { return m_isRequested; }
    bool isURLDataHere() const { return m_isHere; }
    /** The scene that was fetched; null takes it away. */
    void setChildData(SoNode* scene);
    SoNode* getChildData() const;

    static void setBoundingBoxVisibility(BboxVisibility visibility);
    static BboxVisibility getBoundingBoxVisibility();

    SoChildList* getChildren() const override { return &m_children; }
    void doAction(SoAction& action) override;
    void readFinished(SoInput& in) override;
    void notify(SoNotList& list) override;
    void copyContents(const SoNode& from, SoCopyMap& copies) override;

private:
    void updateBox();

    mutable SoChildList m_children{this};
    SbString m_folder;
    bool m_isRequested = false;
    bool m_isHere = false;
};
