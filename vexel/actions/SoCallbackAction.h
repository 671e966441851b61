#pragma once

#include <vexel/actions/SoAction.h>

struct SoPrimitiveVertex;

/**
 * Walks a graph and calls back: before and after nodes of a type, and for each triangle, line segment and point of
 * shapes of a type. The state at that moment is asked of the action.
 */
class VEXEL_API SoCallbackAction : public SoAction {
    SO_ACTION(SoCallbackAction, SoAction)
public:
    /** How the walk goes on: as usual, without what is below this node, or not at all. */
    enum Response { CONTINUE, PRUNE, ABORT };

    using NodeCB = Response (*)(void* data, SoCallbackAction* action, const SoNode* node);
    using TriangleCB = void (*)(void* data, SoCallbackAction* action, const SoPrimitiveVertex& a,
                                const SoPrimitiveVertex& b, const SoPrimitiveVertex& c);
    using LineSegmentCB = void (*)(void* data, SoCallbackAction* action, const SoPrimitiveVertex& a,
                                   const SoPrimitiveVertex& b);
    using PointCB = void (*)(void* data, SoCallbackAction* action, const SoPrimitiveVertex& point);

    SoCallbackAction();
    ~SoCallbackAction() override;

    void setViewportRegion(const SbViewportRegion& region) { state().setViewportRegion(region); }

    /** Functions of the same kind and type are called in the order in which they were added; derived types fit. */
    void addPreCallback(SoType type, NodeCB function, void* data);
    void addPostCallback(SoType type, NodeCB function, void* data);
    void addTriangleCallback(SoType type, TriangleCB function, void* data);
    void addLineSegmentCallback(SoType type, LineSegmentCB function, void* data);
    void addPointCallback(SoType type, PointCB function, void* data);

    const SbMatrix& getModelMatrix() const { return state()->model; }
    /** The material of an index that a primitive's vertex gives. */
    void getMaterial(SbColor& ambient, SbColor& diffuse, SbColor& specular, SbColor& emissive, float& shininess,
                     float& transparency, int index = 0) const;

    void visitShape(SoShape& shape) override;

protected:
    void visitNode(SoNode& node) override;

private:
    template <class Function>
    struct Callback {
        SoType type;
        Function function;
        void* data;
    };

    Response call(const std::vector<Callback<NodeCB>>& callbacks, const SoNode& node);

    std::vector<Callback<NodeCB>> m_pre;
    std::vector<Callback<NodeCB>> m_post;
    std::vector<Callback<TriangleCB>> m_triangles;
    std::vector<Callback<LineSegmentCB>> m_lines;
    std::vector<Callback<PointCB>> m_points;
};
