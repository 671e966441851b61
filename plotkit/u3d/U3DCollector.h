#pragma once

#include <plotkit/u3d/U3DDocument.h>
#include <vexel/actions/SoAction.h>

class SoLight;
class U3DShape;

/** Walks a graph and puts what it shows into a document; groups in which nothing is seen are left out. */
class U3DCollector : public SoAction {
    SO_ACTION(U3DCollector, SoAction)
public:
    /** @param frame  a group around the graph that is no part of it */
    U3DCollector(U3DDocument& document, const SbViewportRegion& region, const SoNode* frame, U3DProgress& progress);

    void visitShape(SoShape& shape) override;
    void visitCamera(const SoCamera& camera) override;

protected:
    void beginTraversal() override;
    void visitNode(SoNode& node) override;

private:
    /** A group on the way to the present node. */
    struct Level {
        const SoNode* node = nullptr;
        SbMatrix local;   ///< to the level above
        SbMatrix world;   ///< from the level to the world; always invertible
        SbMatrix inverse; ///< of world
        bool isWritten = false;
        std::string name;
    };

    void enter(const SoNode& group);
    const std::string& parentName();
    /** The matrix of something in the present space, as its group has it. */
    SbMatrix fromGroup(const SbMatrix& toWorld) const { return toWorld * m_levels.back().inverse; }
    void addMesh(const SoShape& shape, const U3DShape& built);
    void addLines(const SoShape& shape, const U3DShape& built);
    void addLight(const SoLight& light);
    void addAmbientLight();

    U3DDocument& m_document;
    const SoNode* m_frame;
    U3DProgress& m_progress;
    std::vector<Level> m_levels;
    bool m_hasAmbientLight = false;
};
