#pragma once

#include <vector>

#include <vexel/base/VexelApi.h>

/** Which part of a shape a pick met. */
class VEXEL_API SoDetail {
public:
    virtual ~SoDetail() = default;

protected:
    SoDetail() = default;
    SoDetail(const SoDetail&) = default;
    SoDetail& operator=(const SoDetail&) = default;
};

/** One vertex of a shape. Indices are -1 where the shape has none. */
class VEXEL_API SoPointDetail : public SoDetail {
public:
    SoPointDetail() = default;
    SoPointDetail(int coordinate, int material) : m_coordinate(coordinate), m_material(material) {}

    /** Place among the coordinates in force. */
    int getCoordinateIndex() const { return m_coordinate; }
    /** Place among the materials in force. */
    int getMaterialIndex() const { return m_material; }

private:
    int m_coordinate = -1;
    int m_material = 0;
};

/** A face, and the triangle of it that was met. */
class VEXEL_API SoFaceDetail : public SoDetail {
public:
    SoFaceDetail(int face, int part, std::vector<SoPointDetail> points)
        : m_face(face), m_part(part), m_points(std::move(points))
    {
    }

    /** Number of the face in its shape. */
    int getFaceIndex() const { return m_face; }
    /** Number of the part of the shape, such as the side of a cylinder. */
    int getPartIndex() const { return m_part; }
    /** The corners of the triangle. */
    int getNumPoints() const { return static_cast<int>(m_points.size()); }
    const SoPointDetail& getPoint(int i) const { return m_points[static_cast<std::size_t>(i)]; }

private:
    int m_face;
    int m_part;
    std::vector<SoPointDetail> m_points;
};

/** A piece of a line. */
class VEXEL_API SoLineDetail : public SoDetail {
public:
    SoLineDetail(int line, int part, const SoPointDetail& first, const SoPointDetail& second)
        : m_line(line), m_part(part), m_first(first), m_second(second)
    {
    }

    /** Number of the line in its shape. */
    int getLineIndex() const { return m_line; }
    /** Number of the piece among all pieces of the shape. */
    int getPartIndex() const { return m_part; }
    const SoPointDetail& getPoint0() const { return m_first; }
    const SoPointDetail& getPoint1() const { return m_second; }

private:
    int m_line;
    int m_part;
    SoPointDetail m_first;
    SoPointDetail m_second;
};
