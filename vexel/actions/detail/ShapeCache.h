#pragma once

#include <memory>
#include <unordered_map>
#include <vector>

#include <vexel/actions/detail/ChangeStamps.h>
#include <vexel/actions/detail/CompiledShape.h>

class SoShape;
class SoState;

namespace vexel {

/** Makes the geometry of shapes, once for all places where nothing that it depends on differs. */
class ShapeCache {
public:
    explicit ShapeCache(const ChangeStamps& stamps) : m_stamps(stamps) {}

    std::shared_ptr<const CompiledShape> get(const SoShape& shape, const SoState& state);
    /** Forgets shapes that nothing uses any more. */
    void sweep();

private:
    using Key = std::vector<std::uint64_t>;
    struct Hash {
        std::size_t operator()(const Key& key) const;
    };

    void makeKey(const SoShape& shape, const SoState& state);
    template <class List>
    void addToKey(const List& list);

    const ChangeStamps& m_stamps;
    std::unordered_map<Key, std::weak_ptr<const CompiledShape>, Hash> m_shapes;
    Key m_key; // kept for its memory
    std::size_t m_sizeAfterSweep = 0;
};

} // namespace vexel
