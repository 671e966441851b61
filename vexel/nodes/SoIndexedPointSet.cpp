#include <vexel/nodes/SoIndexedPointSet.h>

#include <vexel/nodes/detail/LineBuilder.h>
#include <vexel/state/SoShapeGeometry.h>
#include <vexel/state/SoState.h>

void SoIndexedPointSet::buildGeometry(const SoState& state, SoShapeGeometry& geometry) const
{
    LineBuilder builder(state, geometry, this, static_cast<std::size_t>(coordIndex.getNum()));
    for (int i = 0, running = 0; i < coordIndex.getNum(); ++i) {
        if (coordIndex[i] >= 0)
            builder.addPoint({coordIndex[i], i, running++});
    }
    builder.finish();
}
