#pragma once

#include <gtest/gtest.h>

#include <cmath>
#include <string>

#include <vexel/actions/SoAction.h>
#include <vexel/base/SoBase.h>
#include <vexel/io/SoDB.h>
#include <vexel/io/SoInput.h>
#include <vexel/nodes/SoSeparator.h>
#include <vexel/nodes/SoShape.h>
#include <vexel/state/SoShapeGeometry.h>

/** Takes the geometry and box of the shapes of a graph as it finds them. */
class GeometryAction : public SoAction {
    SO_ACTION(GeometryAction, SoAction)
public:
    GeometryAction() = default;

    void visitShape(SoShape& shape) override
    {
        geometry = SoShapeGeometry();
        shape.buildGeometry(state(), geometry);
        box = shape.computeBoundingBox(state());
        ++numShapes;
    }

    SoShapeGeometry geometry;
    SbBox3f box;
    int numShapes = 0;
};

/** Builds the geometry of shapes that stand in scene text; the last shape counts. */
class ShapeTest : public testing::Test {
protected:
    static void SetUpTestSuite() { SoDB::init(); }

    const SoShapeGeometry& build(const std::string& text)
    {
        SoInput in;
        in.setBuffer(text.data(), text.size());
        SoSeparator* root = SoDB::readAll(&in);
        EXPECT_NE(root, nullptr);
        EXPECT_EQ(in.getNumErrors(), 0) << text;
        if (!root)
            return action.geometry;
        root->ref();
        action.apply(root);
        in.closeFile();
        root->unref();
        checkIndices();
        return action.geometry;
    }

    const SoShapeGeometry& geometry() const { return action.geometry; }

    SbVec3f cross(std::size_t triangle) const
    {
        const std::uint32_t* corner = geometry().triangles.data() + 3 * triangle;
        const SbVec3f& first = geometry().points[corner[0]];
        return (geometry().points[corner[1]] - first).cross(geometry().points[corner[2]] - first);
    }

    double area() const
    {
        double sum = 0;
        for (std::size_t i = 0; i < geometry().getNumTriangles(); ++i)
            sum += cross(i).length() / 2;
        return sum;
    }

    /** Volume inside the triangles, positive when all of them face outwards. */
    double volume() const
    {
        double sum = 0;
        for (std::size_t i = 0; i < geometry().getNumTriangles(); ++i)
            sum += cross(i).dot(geometry().points[geometry().triangles[3 * i]]) / 6;
        return sum;
    }

    /** Triangles and normals must agree about the side that is seen; triangles without area show none. */
    void expectNormalsOnTheFrontSide() const
    {
        ASSERT_EQ(geometry().normals.size(), geometry().points.size());
        for (std::size_t i = 0; i < geometry().triangles.size(); ++i) {
            const SbVec3f& normal = geometry().normals[geometry().triangles[i]];
            EXPECT_NEAR(normal.length(), 1, 1e-5);
            if (cross(i / 3).length() > 1e-6) {
                EXPECT_GT(normal.dot(cross(i / 3)), 0) << "corner " << i;
            }
        }
    }

    GeometryAction action;

private:
    void checkIndices() const
    {
        const std::size_t num = geometry().points.size();
        for (const auto* indices :
             {&geometry().triangles, &geometry().lines, &geometry().pointVertices, &geometry().outline}) {
            for (const std::uint32_t index : *indices)
                ASSERT_LT(index, num);
        }
        for (const std::size_t size : {geometry().normals.size(), geometry().textureCoordinates.size(),
                                       geometry().materialIndices.size(), geometry().coordinateIndices.size()})
            EXPECT_TRUE(size == 0 || size == num);
        EXPECT_TRUE(geometry().triangleFaces.empty() ||
                    geometry().triangleFaces.size() == geometry().getNumTriangles());
    }
};
