#include <vexel/base/SoPathList.h>

#include <algorithm>

#include <vexel/base/SoPath.h>

SoPathList::SoPathList(const SoPathList& other)
{
    for (SoPath* path : other.m_paths)
        append(path);
}

SoPathList& SoPathList::operator=(const SoPathList& other)
{
    SoPathList copied(other);
    m_paths.swap(copied.m_paths);
    return *this;
}

SoPathList::~SoPathList()
{
    truncate(0);
}

void SoPathList::append(SoPath* path)
{
    path->ref();
    m_paths.push_back(path);
}

void SoPathList::remove(int index)
{
    SoPath* path = m_paths[static_cast<std::size_t>(index)];
    m_paths.erase(m_paths.begin() + index);
    path->unref();
}

void SoPathList::truncate(int length)
{
    while (getLength() > std::max(length, 0)) {
        SoPath* path = m_paths.back();
        m_paths.pop_back();
        path->unref();
    }
}

int SoPathList::findPath(const SoPath& path) const
{
    const auto found =
        std::find_if(m_paths.begin(), m_paths.end(), [&](const SoPath* candidate) { return *candidate == path; });
    return found == m_paths.end() ? -1 : static_cast<int>(found - m_paths.begin());
}
