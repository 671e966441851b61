#pragma once

#include <memory>

#include <vexel/fields/SoSFEnum.h>
#include <vexel/nodes/SoGroup.h>

class SbBox3f;
class SbMatrix;

/** A group whose children change the state for one another, but for nothing behind the separator. */
class VEXEL_API SoSeparator : public SoGroup {
    SO_NODE(SoSeparator, SoGroup)
public:
    enum CacheEnabled { OFF, ON, AUTO };
    static constexpr SoEnumEntry CacheEnabled_names[] = {{"OFF", OFF}, {"ON", ON}, {"AUTO", AUTO}};

    /** Whether what was computed for drawing may be kept. */
    SoSFEnum renderCaching{this, "renderCaching", AUTO, CacheEnabled_names};
    /** Whether the bounding box of the children may be kept until one of them changes. */
    SoSFEnum boundingBoxCaching{this, "boundingBoxCaching", AUTO, CacheEnabled_names};
    /** Whether children outside the view are left out when drawing. */
    SoSFEnum renderCulling{this, "renderCulling", AUTO, CacheEnabled_names};
    /** Whether children whose bounding box a pick ray misses are left out. */
    SoSFEnum pickCulling{this, "pickCulling", AUTO, CacheEnabled_names};

    SoSeparator();

    void doAction(SoAction& action) override;
    bool affectsState() const override { return false; }
    void notify(SoNotList& list) override;

    /** The box kept for the separator where it stands under the matrix @p model, in world space; null when none is. */
    const SbBox3f* getCachedBoundingBox(const SbMatrix& model) const;
    void setCachedBoundingBox(const SbMatrix& model, const SbBox3f& box);

protected:
    ~SoSeparator() override;

private:
    struct BoxCache;
    std::unique_ptr<BoxCache> m_boxCache;
};
