#pragma once

#include <plotkit/scene/PagePrimitives.h>
#include <vexel/actions/SoAction.h>

#include <optional>

/** Walks a graph and lays what it shows on the page. */
class PrimitiveCollector : public SoAction {
    SO_ACTION(PrimitiveCollector, SoAction)
public:
    /** Colours at the lower and the upper end of the picture. */
    struct Background {
        PageColor bottom;
        PageColor top;
    };

    /** @param region  its pixels are the unit of line widths and sizes of points */
    PrimitiveCollector(const PageRect& picture, const SbViewportRegion& region);

    const PagePrimitives& scene() const { return m_scene; }
    /** What is drawn in front of everything else. */
    const PagePrimitives& annotations() const { return m_annotations; }
    /** That of the last background node; none: there is no such node. */
    const std::optional<Background>& background() const { return m_background; }

    void visitShape(SoShape& shape) override;

protected:
    void beginTraversal() override;
    void visitNode(SoNode& node) override;

private:
    PageRect m_picture;
    double m_pixel; ///< in millimetres
    PagePrimitives m_scene;
    PagePrimitives m_annotations;
    std::optional<Background> m_background;
};
