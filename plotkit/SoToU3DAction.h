#pragma once

#include <plotkit/SoVectorizeAction.h>
#include <vexel/io/SoAtomicFile.h>

#include <utility>

/**
 * Puts a graph into a U3D file (ECMA-363), for viewers that turn it in space.
 *
 * Groups become groups, with their transforms, and shapes become models below them; nodes have their names, or those of
 * their types, with a number where one comes again. Groups in which nothing is seen are left out, and so are hidden
 * children of switches. Shapes that are alike are one mesh, however often they are seen.
 *
 * Positions and normals of triangles stand in the file exactly as in the graph. Ends of lines are off by a millionth of
 * the diagonal of the box around the shape at most, and as far as the numbers of the graph are rounded themselves.
 * Materials have all their colours, shininess and opacity; where a shape has several, its vertices have the colours.
 * Each line has an even colour. Triangles of no area are left out, and so is what has coordinates that are no finite
 * numbers, or beyond 1e37.
 *
 * Lights shine on everything, cameras become views, and ambient light is that of the first shape. A graph without a
 * camera or a light is given them. Textures, points, clip planes, fog, widths and patterns of lines are left out; what
 * turns with the camera, such as 2D text, stands as the last camera before it sees it.
 */
class PLOTKIT_API SoToU3DAction {
public:
    SoToU3DAction();
    SoToU3DAction(const SoToU3DAction&) = delete;
    SoToU3DAction& operator=(const SoToU3DAction&) = delete;
    ~SoToU3DAction();

    /** As those of SoVectorOutput. */
    ///@{
    bool openFile(const SbString& fileName);
    bool closeFile();
    SbString getErrorText() const { return m_file.getErrorText(); }
    ///@}

    /** The picture that views are for, and what sizes in pixels are measured by. 1208 x 1024 at first. */
    void setViewportRegion(const SbViewportRegion& region) { m_region = region; }
    void setProgressCallback(SoVectorizeAction::ProgressCB progress) { m_progress = std::move(progress); }

    /** Puts a graph into the open file, which has room for one; null puts nothing. */
    void apply(SoNode* root);

private:
    bool write(SoNode& root);

    SoAtomicFile m_file;
    bool m_isWritten = false;
    SbViewportRegion m_region{1208, 1024};
    SoVectorizeAction::ProgressCB m_progress;
};
