#pragma once

#include <vexel/base/SbColorRGBA.h>
#include <vexel/base/SbVec3f.h>
#include <vexel/fields/SoBufferObject.h>
#include <vexel/fields/SoSFArray.h>

/** The elements of a buffer object as vectors and colours; a view of none for a null pointer. */
class BufferView {
public:
    explicit BufferView(const SoBufferObject* buffer) : m_buffer(buffer)
    {
        if (buffer) {
            m_components = static_cast<std::size_t>(buffer->getNumComponents());
            m_num = m_components > 0 ? static_cast<std::size_t>(buffer->getNumElements()) : 0;
        }
    }

    std::size_t getNum() const { return m_num; }
    /** A component of an element; 0 for one that the elements do not have. */
    double numberAt(std::size_t element, std::size_t component) const
    {
        return component < m_components ? m_buffer->values.getNumber(element * m_components + component) : 0;
    }
    /** With four components, the first three divided by the last. */
    SbVec3f vectorAt(std::size_t element) const
    {
        const double weight = m_components > 3 ? numberAt(element, 3) : 1;
        const double divisor = weight != 0 ? weight : 1;
        return SbVec3f(static_cast<float>(numberAt(element, 0) / divisor),
                       static_cast<float>(numberAt(element, 1) / divisor),
                       static_cast<float>(numberAt(element, 2) / divisor));
    }
    SbColorRGBA colorAt(std::size_t element) const
    {
        const auto type = m_buffer->values.getComponentType();
        const double full = type == SoSFArray::FLOAT || type == SoSFArray::DOUBLE ? 1 : 255;
        float color[4] = {0, 0, 0, 1};
        for (std::size_t i = 0; i < 4 && i < m_components; ++i)
            color[i] = static_cast<float>(numberAt(element, i) / full);
        return SbColorRGBA(color);
    }

private:
    const SoBufferObject* m_buffer;
    std::size_t m_components = 0;
    std::size_t m_num = 0;
};
