#include <vexel/nodes/SoText2.h>

#include <vexel/nodes/detail/OutlineFiller.h>
#include <vexel/nodes/detail/ScreenFrame.h>
#include <vexel/nodes/detail/TextOutline.h>
#include <vexel/state/SoShapeGeometry.h>
#include <vexel/state/SoState.h>

void SoText2::buildGeometry(const SoState& state, SoShapeGeometry& geometry) const
{
    const TextOutline text(state, string);
    const ScreenFrame frame(state);
    const float size = state->fontSize * state.getViewportRegion().getPixelsPerPoint();
    float top = 0;
    for (const TextOutline::Line& line : text.lines()) {
        const float left = justification.getValue() == RIGHT    ? -line.width
                           : justification.getValue() == CENTER ? -line.width / 2
                                                                : 0;
        OutlineFiller filler(geometry,
                             [&](float x, float y, float) { return frame.at((left + x) * size, (top + y) * size); });
        filler.addArea(line.path, 0, frame.normal(), 0);
        top -= spacing.getValue();
    }
    geometry.triangleParts.clear();
}
