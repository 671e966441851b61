#include "U3DProgress.h"

#include <algorithm>
#include <utility>

U3DProgress::U3DProgress(Callback callback, std::size_t numShapes)
    : m_callback(std::move(callback)), m_numShapes(std::max<std::size_t>(numShapes, 1))
{
}

bool U3DProgress::finishShape()
{
    ++m_done;
    return tell(0);
}

bool U3DProgress::tell(double partOfShape)
{
    if (m_callback && !m_isCanceled)
        m_isCanceled = !m_callback((double(m_done) + partOfShape) / double(m_numShapes));
    return !m_isCanceled;
}
