#pragma once

#include <vexel/nodes/SoChildList.h>
#include <vexel/nodes/SoSpotLight.h>

class SoDragger;
class SoPath;

/** A spot light that the user can change with a dragger, which is its only child and not written with it. */
class VEXEL_API SoSpotLightManip : public SoSpotLight {
    SO_NODE(SoSpotLightManip, SoSpotLight)
public:
    SoSpotLightManip() = default;

    /** Null for none. */
    SoDragger* getDragger() const;
    void setDragger(SoDragger* dragger);

    /**
     * Puts this node in the place of the spot light at the end of the path, with its values and connections. False,
     * with nothing changed, when the path does not end at a spot light that is a child or part.
     */
    bool replaceNode(SoPath* path);
    /** Puts a plain node, or a new one for null, in the place of this node at the end of the path. */
    bool replaceManip(SoPath* path, SoSpotLight* node) const;

    SoChildList* getChildren() const override { return &m_children; }
    void doAction(SoAction& action) override;

private:
    mutable SoChildList m_children{this};
};
