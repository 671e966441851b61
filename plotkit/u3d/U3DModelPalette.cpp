#include "U3DModelPalette.h"

#include <utility>

namespace {

U3DBytes named(const std::string& name)
{
    U3DBitStream data;
    data.putString(name);
    return data.finish();
}

std::size_t hashOf(const U3DBytes& bytes)
{
    return std::hash<std::string_view>()({reinterpret_cast<const char*>(bytes.data()), bytes.size()});
}

} // namespace

std::string U3DModelPalette::add(std::string_view wanted, U3DModelKind kind, U3DModelResource resource)
{
    const std::size_t hash = hashOf(resource.continuation);
    const auto [first, last] = m_byHash.equal_range(hash);
    for (auto it = first; it != last; ++it) {
        const Entry& entry = *it->second;
        if (entry.kind == kind && entry.resource.continuation == resource.continuation &&
            entry.resource.declaration == resource.declaration)
            return entry.name;
    }
    m_entries.push_back({m_names.add(wanted), kind, std::move(resource)});
    m_byHash.emplace(hash, &m_entries.back());
    return m_entries.back().name;
}

U3DBytes U3DModelPalette::declarations() const
{
    U3DBytes bytes;
    for (const Entry& entry : m_entries) {
        const bool isMesh = entry.kind == U3DModelKind::Mesh;
        U3DBytes block;
        appendU3DBlock(block, isMesh ? U3DBlockType::MeshDeclaration : U3DBlockType::LineSetDeclaration,
                       named(entry.name), entry.resource.declaration);
        appendU3DChain(bytes, entry.name, U3DChainType::ModelResource, 1, block);
    }
    return bytes;
}

U3DBytes U3DModelPalette::continuation(std::size_t index) const
{
    const Entry& entry = m_entries[index];
    const bool isMesh = entry.kind == U3DModelKind::Mesh;
    U3DBytes bytes;
    appendU3DBlock(bytes, isMesh ? U3DBlockType::BaseMeshContinuation : U3DBlockType::LineSetContinuation,
                   named(entry.name), entry.resource.continuation);
    return bytes;
}

std::uint64_t U3DModelPalette::numContinuationBytes() const
{
    std::uint64_t sum = 0;
    for (const Entry& entry : m_entries)
        sum += u3dBlockSize(named(entry.name).size() + entry.resource.continuation.size());
    return sum;
}
