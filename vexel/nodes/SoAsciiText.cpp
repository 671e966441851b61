#include <vexel/nodes/SoAsciiText.h>

#include <vexel/base/SbVec3f.h>
#include <vexel/nodes/detail/OutlineFiller.h>
#include <vexel/nodes/detail/TextOutline.h>
#include <vexel/state/SoShapeGeometry.h>
#include <vexel/state/SoState.h>

void SoAsciiText::buildGeometry(const SoState& state, SoShapeGeometry& geometry) const
{
    const TextOutline text(state, string);
    const float size = state->fontSize;
    float top = 0;
    int number = 0;
    for (const TextOutline::Line& line : text.lines()) {
        const float wanted = number < width.getNum() ? width[number] : 0;
        const float stretch = wanted > 0 && line.width > 0 ? wanted / (line.width * size) : 1;
        const float left = justification.getValue() == RIGHT    ? -line.width
                           : justification.getValue() == CENTER ? -line.width / 2
                                                                : 0;
        OutlineFiller filler(geometry, [&](float x, float y, float) {
            return SbVec3f((left + x) * size * stretch, (top + y) * size, 0);
        });
        filler.addArea(line.path, 0, SbVec3f(0, 0, 1), 0);
        top -= spacing.getValue();
        ++number;
    }
    geometry.triangleParts.clear();
}
