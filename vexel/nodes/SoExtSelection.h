#pragma once

#include <vector>

#include <vexel/base/SbVec2f.h>
#include <vexel/fields/SoEnumEntry.h>
#include <vexel/fields/SoSFEnum.h>
#include <vexel/nodes/SoSelection.h>

class LassoLine;
class SoAnnotation;

/**
 * A selection that can also be made by drawing a line about things on the screen, with the left mouse button held. What
 * lies inside is picked all at once, as the policy says; a click without a move is a pick of what is there.
 */
class VEXEL_API SoExtSelection : public SoSelection {
    SO_NODE(SoExtSelection, SoSelection)
public:
    enum LassoType { NOLASSO, LASSO, RECTANGLE, ELLIPSE };
    static constexpr SoEnumEntry LassoType_names[] = {
        {"NOLASSO", NOLASSO}, {"LASSO", LASSO}, {"RECTANGLE", RECTANGLE}, {"ELLIPSE", ELLIPSE}};
    enum LassoPolicy { FULL_BBOX, PART_BBOX, FULL, PART };
    static constexpr SoEnumEntry LassoPolicy_names[] = {
        {"FULL_BBOX", FULL_BBOX}, {"PART_BBOX", PART_BBOX}, {"FULL", FULL}, {"PART", PART}};
    enum LassoMode { ALL_SHAPES, VISIBLE_SHAPES };
    static constexpr SoEnumEntry LassoMode_names[] = {{"ALL_SHAPES", ALL_SHAPES}, {"VISIBLE_SHAPES", VISIBLE_SHAPES}};

    /** The form that is drawn. */
    SoSFEnum lassoType{this, "lassoType", NOLASSO, LassoType_names};
    /** Whether shapes, or their boxes, must lie inside as a whole or in part. */
    SoSFEnum lassoPolicy{this, "lassoPolicy", FULL_BBOX, LassoPolicy_names};
    /** Whether hidden shapes count. */
    SoSFEnum lassoMode{this, "lassoMode", ALL_SHAPES, LassoMode_names};

    SoExtSelection() = default;

    void doAction(SoAction& action) override;
    void handleEvent(SoHandleEventAction& action) override;

protected:
    ~SoExtSelection() override;

private:
    void begin(SoHandleEventAction& action);
    void drag(SoHandleEventAction& action);
    void finish(SoHandleEventAction& action);
    std::vector<SbVec2f> outline() const;

    std::vector<SbVec2f> m_way; ///< of the pointer while the button is held, in pixels
    SoAnnotation* m_overlay = nullptr;
    LassoLine* m_line = nullptr;
};
