#pragma once

#include "ReadFile.h"

#include <vexel/nodes/SoSeparator.h>

class SoInput;

/** A graph, held as long as the object is there; throws std::runtime_error when it can't be read. */
class ReadScene {
public:
    static ReadScene ofText(const std::string& text);
    static ReadScene ofFile(const std::string& fileName);
    ReadScene(const ReadScene&) = delete;
    ReadScene& operator=(const ReadScene&) = delete;
    ~ReadScene() { m_root->unref(); }

    SoSeparator* root() const { return m_root; }

private:
    explicit ReadScene(SoInput& in);

    SoSeparator* m_root;
};

/** What a U3D file of the graph holds. */
ReadFile exported(SoNode* root);
/** That of a scene of text. */
ReadFile exported(const std::string& text);

/** Corners of a triangle in the world, or ends of a line. */
template <std::size_t Size>
struct Placed {
    std::array<SbVec3f, Size> points;
    std::array<SbVec3f, Size> normals;
};

/** What is seen of a graph, found without the export. */
struct Seen {
    std::vector<Placed<3>> triangles;
    std::vector<Placed<2>> lines;
};
Seen seenIn(SoNode* root);
/** What is seen of a file. */
Seen seenIn(const ReadFile& file);

/**
 * What differs: triangles come in the same order, lines in any, and equal ones once or more often. Empty when nothing
 * is farther away than the tolerance.
 */
std::string differenceOf(const Seen& expected, const Seen& actual, double tolerance);
