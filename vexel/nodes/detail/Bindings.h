#pragma once

class SoMFInt32;

/** Where one corner of a face, line or point of a shape stands in the shape's lists. */
struct ShapeCorner {
    /** Index of the coordinate. */
    int coordinate;
    /** Place in the index lists of an indexed shape, with the marks that end faces counted. */
    int position;
    /** The same without these marks. */
    int running;
};

/** A face or line that corners belong to, by the numbers that bindings count. */
struct ShapePart {
    int face;
    int part;
};

/** Answers for each corner of a shape which value of a list it gets: one rule for materials, normals and textures. */
class BindingRule {
public:
    /**
     * @param binding  of SoMaterialBinding, which SoNormalBinding equals in its numbers
     * @param indices  index list of the shape for this kind of value; null for shapes without
     */
    BindingRule(int binding, const SoMFInt32* indices);

    bool isOverall() const;
    /** Index into the list of values; never negative. */
    int indexOf(const ShapeCorner& corner, const ShapePart& part) const;

private:
    int listed(int place, int otherwise) const;

    int m_binding;
    const int* m_indices = nullptr;
    int m_numIndices = 0;
};
