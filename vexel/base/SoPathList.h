#pragma once

#include <vector>

#include <vexel/base/VexelApi.h>

class SoPath;

/** A list of paths; it holds a reference to each. */
class VEXEL_API SoPathList {
public:
    SoPathList() = default;
    SoPathList(const SoPathList& other);
    SoPathList& operator=(const SoPathList& other);
    ~SoPathList();

    int getLength() const { return static_cast<int>(m_paths.size()); }
    SoPath* operator[](int index) const { return m_paths[static_cast<std::size_t>(index)]; }
    void append(SoPath* path);
    void remove(int index);
    void truncate(int length);
    /** Index of the first path that leads the same way, or -1. */
    int findPath(const SoPath& path) const;

private:
    std::vector<SoPath*> m_paths;
};
