#include <vexel/nodes/detail/NormalGenerator.h>

#include <algorithm>
#include <cmath>
#include <unordered_map>

#include <vexel/nodes/detail/FaceList.h>
#include <vexel/nodes/detail/SlotMap.h>
#include <vexel/nodes/detail/StateCoordinates.h>

namespace {

// Faces at one point that are looked at for one corner; with more of them the nearest in the list count, so that a
// point that a whole mesh shares does not take quadratic time.
constexpr std::size_t MostNeighbours = 128;

/** The corners at each point, one point after the other. */
struct CornersByPoint {
    std::vector<std::uint32_t> pointOf; // for each corner
    std::vector<std::uint32_t> starts;  // for each point, and one more
    std::vector<std::uint32_t> corners;
    std::vector<std::uint32_t> places; // of each corner in the list above
};

CornersByPoint sortCorners(const FaceList& list, const StateCoordinates& coordinates)
{
    CornersByPoint sorted;
    SlotMap slots(static_cast<std::size_t>(coordinates.getNum()), list.corners.size());
    std::unordered_map<SbVec3f, std::uint32_t> places;
    places.reserve(list.corners.size() / 3);
    std::uint32_t numPoints = 0;
    sorted.pointOf.reserve(list.corners.size());
    for (const ShapeCorner& corner : list.corners) {
        std::uint32_t& slot = slots[corner.coordinate];
        if (slot == SlotMap::None) {
            slot = places.try_emplace(coordinates[corner.coordinate], numPoints).first->second;
            numPoints = std::max(numPoints, slot + 1);
        }
        sorted.pointOf.push_back(slot);
    }
    sorted.starts.assign(numPoints + 1, 0);
    for (const std::uint32_t point : sorted.pointOf)
        ++sorted.starts[point + 1];
    for (std::size_t i = 1; i < sorted.starts.size(); ++i)
        sorted.starts[i] += sorted.starts[i - 1];
    std::vector<std::uint32_t> next(sorted.starts.begin(), sorted.starts.end() - 1);
    sorted.corners.resize(list.corners.size());
    sorted.places.resize(list.corners.size());
    for (std::uint32_t corner = 0; corner < sorted.pointOf.size(); ++corner) {
        const std::uint32_t place = next[sorted.pointOf[corner]]++;
        sorted.corners[place] = corner;
        sorted.places[corner] = place;
    }
    return sorted;
}

} // namespace

SbVec3f newellNormal(const std::vector<SbVec3f>& ring)
{
    double sum[3] = {0, 0, 0};
    for (std::size_t i = 0; i < ring.size(); ++i) {
        const SbVec3f& a = ring[i];
        const SbVec3f& b = ring[i + 1 == ring.size() ? 0 : i + 1];
        for (int axis = 0; axis < 3; ++axis) {
            const int u = (axis + 1) % 3;
            const int v = (axis + 2) % 3;
            sum[axis] += (double(a[u]) - b[u]) * (double(a[v]) + b[v]);
        }
    }
    return SbVec3f(static_cast<float>(sum[0]), static_cast<float>(sum[1]), static_cast<float>(sum[2]));
}

std::vector<SbVec3f> generateNormals(const FaceList& list, const StateCoordinates& coordinates, float creaseAngle,
                                     bool isClockwise)
{
    std::vector<SbVec3f> weighted(list.faces.size());
    std::vector<SbVec3f> units(list.faces.size());
    std::vector<std::uint32_t> faceOf(list.corners.size());
    std::vector<SbVec3f> ring;
    for (std::size_t i = 0; i < list.faces.size(); ++i) {
        const FaceList::Face& face = list.faces[i];
        ring.clear();
        for (int k = face.firstCorner; k < face.firstCorner + face.numCorners; ++k) {
            ring.push_back(coordinates[list.corners[static_cast<std::size_t>(k)].coordinate]);
            faceOf[static_cast<std::size_t>(k)] = static_cast<std::uint32_t>(i);
        }
        weighted[i] = isClockwise ? -newellNormal(ring) : newellNormal(ring);
        units[i] = weighted[i];
        // A face without area still needs a direction for light.
        if (!(units[i].normalize() > 0))
            units[i] = SbVec3f(0, 0, 1);
    }

    std::vector<SbVec3f> normals(list.corners.size());
    const bool isFlat = !(creaseAngle > 0);
    const float leastCosine = std::cos(std::min(creaseAngle, 3.14159265f)) - 1e-6f;
    const CornersByPoint sorted = isFlat ? CornersByPoint() : sortCorners(list, coordinates);
    for (std::size_t corner = 0; corner < normals.size(); ++corner) {
        const std::uint32_t face = faceOf[corner];
        normals[corner] = units[face];
        if (isFlat)
            continue;
        std::size_t first = sorted.starts[sorted.pointOf[corner]];
        std::size_t last = sorted.starts[sorted.pointOf[corner] + 1];
        if (last - first > MostNeighbours) {
            const std::size_t place = sorted.places[corner];
            first = std::max(first, place - std::min(place, MostNeighbours / 2));
            last = std::min(last, place + MostNeighbours / 2);
        }
        SbVec3f sum;
        for (std::size_t i = first; i < last; ++i) {
            const std::uint32_t other = faceOf[sorted.corners[i]];
            if (units[other].dot(units[face]) >= leastCosine)
                sum += weighted[other];
        }
        if (sum.normalize() > 0)
            normals[corner] = sum;
    }
    return normals;
}
