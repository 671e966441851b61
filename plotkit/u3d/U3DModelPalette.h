#pragma once

#include <plotkit/u3d/U3DBlocks.h>
#include <plotkit/u3d/U3DMesh.h>
#include <plotkit/u3d/U3DNames.h>

#include <deque>

enum class U3DModelKind { Mesh, LineSet };

/** The model resources of a document; equal ones are kept once. */
class U3DModelPalette {
public:
    /** The name of the resource: the wanted one, another like it, or that of an equal resource. */
    std::string add(std::string_view wanted, U3DModelKind kind, U3DModelResource resource);

    U3DBytes declarations() const;
    std::size_t numContinuations() const { return m_entries.size(); }
    U3DBytes continuation(std::size_t index) const;
    /** Bytes of all continuations. */
    std::uint64_t numContinuationBytes() const;

private:
    struct Entry {
        std::string name;
        U3DModelKind kind;
        U3DModelResource resource;
    };

    U3DNames m_names;
    std::deque<Entry> m_entries;
    std::unordered_multimap<std::size_t, const Entry*> m_byHash;
};
