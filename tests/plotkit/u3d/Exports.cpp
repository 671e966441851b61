#include "Exports.h"

#include "FileReader.h"

#include <plotkit/SoToU3DAction.h>
#include <vexel/actions/SoCallbackAction.h>
#include <vexel/actions/SoPrimitiveVertex.h>
#include <vexel/actions/SoViewableScene.h>
#include <vexel/base/SbString.h>
#include <vexel/io/SoDB.h>
#include <vexel/io/SoInput.h>
#include <vexel/nodes/SoShape.h>

#include <QTemporaryDir>

#include <cmath>
#include <stdexcept>

namespace {

const SbViewportRegion Region(1208, 1024);

SbVec3f placed(const SbVec3f& point, const SbMatrix& matrix)
{
    SbVec3f result;
    matrix.multVecMatrix(point, result);
    return result;
}

/** Whether it has an area. */
bool isSeen(const SbVec3f& a, const SbVec3f& b, const SbVec3f& c)
{
    const auto part = [&](int i, int k) {
        return (double(b[i]) - a[i]) * (double(c[k]) - a[k]) - (double(b[k]) - a[k]) * (double(c[i]) - a[i]);
    };
    return std::hypot(part(0, 1), part(1, 2), part(2, 0)) > 0;
}

void addTriangle(void* data, SoCallbackAction* action, const SoPrimitiveVertex& a, const SoPrimitiveVertex& b,
                 const SoPrimitiveVertex& c)
{
    if (!isSeen(a.point, b.point, c.point))
        return;
    const SbMatrix& matrix = action->getModelMatrix();
    static_cast<Seen*>(data)->triangles.push_back(
        {{placed(a.point, matrix), placed(b.point, matrix), placed(c.point, matrix)}, {a.normal, b.normal, c.normal}});
}

void addLine(void* data, SoCallbackAction* action, const SoPrimitiveVertex& a, const SoPrimitiveVertex& b)
{
    const SbMatrix& matrix = action->getModelMatrix();
    if (a.point != b.point)
        static_cast<Seen*>(data)->lines.push_back({{placed(a.point, matrix), placed(b.point, matrix)}, {}});
}

template <std::size_t Size>
double distanceOf(const Placed<Size>& a, const Placed<Size>& b, const std::array<std::size_t, Size>& order)
{
    double distance = 0;
    for (std::size_t i = 0; i < Size; ++i)
        distance = std::max(distance, double((a.points[i] - b.points[order[i]]).length()));
    return distance;
}

double distanceOf(const Placed<2>& a, const Placed<2>& b)
{
    return std::min(distanceOf<2>(a, b, {0, 1}), distanceOf<2>(a, b, {1, 0}));
}

/** How far a line of one is from all of the other. */
double farthest(const std::vector<Placed<2>>& from, const std::vector<Placed<2>>& to)
{
    double result = 0;
    for (const Placed<2>& line : from) {
        double nearest = HUGE_VAL;
        for (const Placed<2>& other : to)
            nearest = std::min(nearest, distanceOf(line, other));
        result = std::max(result, nearest);
    }
    return result;
}

} // namespace

ReadScene ReadScene::ofText(const std::string& text)
{
    SoInput in;
    in.setBuffer(text.data(), text.size());
    return ReadScene(in);
}

ReadScene ReadScene::ofFile(const std::string& fileName)
{
    SoInput in;
    if (!in.openFile(SbString(fileName)))
        throw std::runtime_error("no file " + fileName);
    return ReadScene(in);
}

ReadScene::ReadScene(SoInput& in)
{
    SoDB::init();
    m_root = SoDB::readAll(&in);
    if (!m_root)
        throw std::runtime_error("no scene");
    m_root->ref();
}

ReadFile exported(SoNode* root)
{
    const QTemporaryDir folder;
    const QString name = folder.filePath("scene.u3d");
    SoToU3DAction action;
    if (!action.openFile(SbString(name)))
        throw std::runtime_error("the file can't be opened");
    action.apply(root);
    if (!action.closeFile())
        throw std::runtime_error("the file can't be closed");
    return FileReader::read(name.toStdString());
}

ReadFile exported(const std::string& text)
{
    return exported(ReadScene::ofText(text).root());
}

Seen seenIn(SoNode* root)
{
    const SoViewableScene scene(root, Region);
    SoCallbackAction action;
    action.setViewportRegion(Region);
    Seen seen;
    action.addTriangleCallback(SoShape::getClassTypeId(), addTriangle, &seen);
    action.addLineSegmentCallback(SoShape::getClassTypeId(), addLine, &seen);
    action.apply(scene.root());
    return seen;
}

Seen seenIn(const ReadFile& file)
{
    Seen seen;
    for (const std::string& name : file.nodesOf(ReadFile::Node::Model)) {
        const SbMatrix matrix = file.worldMatrix(name);
        const std::string& resource = file.nodes.at(name).resource;
        if (const auto found = file.meshes.find(resource); found != file.meshes.end()) {
            const ReadFile::Mesh& mesh = found->second;
            for (const auto& face : mesh.faces) {
                Placed<3> triangle;
                for (std::size_t i = 0; i < 3; ++i) {
                    triangle.points[i] = placed(mesh.positions[face[i].position], matrix);
                    triangle.normals[i] = mesh.normals[face[i].normal];
                }
                seen.triangles.push_back(triangle);
            }
            continue;
        }
        const ReadFile::LineSet& lineSet = file.lineSets.at(resource);
        for (const auto& [from, to, shading] : lineSet.lines) {
            seen.lines.push_back(
                {{placed(lineSet.positions[from], matrix), placed(lineSet.positions[to], matrix)}, {}});
        }
    }
    return seen;
}

std::string differenceOf(const Seen& expected, const Seen& actual, double tolerance)
{
    if (expected.triangles.size() != actual.triangles.size()) {
        return std::to_string(expected.triangles.size()) + " triangles, but read " +
               std::to_string(actual.triangles.size());
    }
    for (std::size_t i = 0; i < expected.triangles.size(); ++i) {
        const Placed<3>& wanted = expected.triangles[i];
        const Placed<3>& read = actual.triangles[i];
        const bool isTurned = distanceOf<3>(wanted, read, {0, 1, 2}) > tolerance;
        const std::array<std::size_t, 3> order =
            isTurned ? std::array<std::size_t, 3>{0, 2, 1} : std::array<std::size_t, 3>{0, 1, 2};
        if (!(distanceOf<3>(wanted, read, order) <= tolerance))
            return "triangle " + std::to_string(i) + " is elsewhere";
        for (std::size_t k = 0; k < 3; ++k) {
            // What has no normal is told to have this one.
            const SbVec3f& normal = wanted.normals[k];
            if (normal != SbVec3f(0, 0, 1) && !((normal - read.normals[order[k]]).length() < 1e-5f))
                return "normal of triangle " + std::to_string(i);
        }
    }
    const double away = std::max(farthest(expected.lines, actual.lines), farthest(actual.lines, expected.lines));
    return away <= tolerance ? "" : "a line is away by " + std::to_string(away);
}
