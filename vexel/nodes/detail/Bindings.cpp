#include <vexel/nodes/detail/Bindings.h>

#include <algorithm>

#include <vexel/fields/SoMFInt32.h>
#include <vexel/nodes/SoMaterialBinding.h>

BindingRule::BindingRule(int binding, const SoMFInt32* indices) : m_binding(binding)
{
    // A list that holds nothing but -1 is as good as none.
    if (indices && indices->getNum() > 0 && !(indices->getNum() == 1 && (*indices)[0] < 0) && !indices->isIgnored()) {
        m_indices = indices->getValues();
        m_numIndices = indices->getNum();
    }
}

bool BindingRule::isOverall() const
{
    return m_binding == SoMaterialBinding::OVERALL;
}

int BindingRule::listed(int place, int otherwise) const
{
    if (!m_indices)
        return otherwise;
    return place < m_numIndices ? m_indices[place] : 0;
}

int BindingRule::indexOf(const ShapeCorner& corner, const ShapePart& part) const
{
    int index = 0;
    switch (m_binding) {
    case SoMaterialBinding::PER_PART:
        index = part.part;
        break;
    case SoMaterialBinding::PER_PART_INDEXED:
        index = listed(part.part, part.part);
        break;
    case SoMaterialBinding::PER_FACE:
        index = part.face;
        break;
    case SoMaterialBinding::PER_FACE_INDEXED:
        index = listed(part.face, part.face);
        break;
    case SoMaterialBinding::PER_VERTEX:
        index = corner.running;
        break;
    case SoMaterialBinding::PER_VERTEX_INDEXED:
        index = listed(corner.position, corner.coordinate);
        break;
    default:
        break;
    }
    return std::max(index, 0);
}
