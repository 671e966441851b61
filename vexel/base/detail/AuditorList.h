#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include <vexel/base/SoNotification.h>
#include <vexel/base/VexelApi.h>

/**
 * The listeners of an object, each with its kind, in eight bytes while there is only one.
 *
 * A listener that is added several times stands once, with a count. Adding and removing cost the same however many
 * there are, so that a node shared a million times is released in linear time; the order is not kept on removal.
 */
class VEXEL_API AuditorList {
public:
    struct Entry {
        void* auditor;
        SoAuditorType type;
    };

    AuditorList() = default;
    AuditorList(const AuditorList&) = delete;
    AuditorList& operator=(const AuditorList&) = delete;
    ~AuditorList();

    void add(void* auditor, SoAuditorType type);
    void remove(void* auditor, SoAuditorType type);
    bool contains(void* auditor, SoAuditorType type) const;

    /** Number of different listeners. */
    std::size_t size() const;
    Entry at(std::size_t i) const;
    /** How often the listener at place @p i was added. */
    std::uint32_t countAt(std::size_t i) const;

    /** Calls @p visit(auditor, type) for each listener that is still there when its turn comes. */
    template <class Visit>
    void forEach(Visit&& visit) const
    {
        if (isLarge())
            forEachOfLarge(visit);
        else if (m_data)
            visit(pointerOf(m_data), typeOf(m_data));
    }

private:
    struct Large;

    // Not inlined: the way of one listener, which most changes take all through the graph, stays short without it.
    template <class Visit>
    [[gnu::noinline]] void forEachOfLarge(Visit& visit) const
    {
        // A listener may add and remove listeners, itself included, so the walk runs over a copy and asks again once
        // something changed.
        const std::vector<std::uintptr_t> snapshot = keys();
        const std::uint32_t generation = generationOfLarge();
        for (const std::uintptr_t key : snapshot) {
            if ((!isLarge() || generationOfLarge() != generation) && !contains(pointerOf(key), typeOf(key)))
                continue;
            visit(pointerOf(key), typeOf(key));
        }
    }

    static constexpr std::uintptr_t LargeTag = 7;
    static std::uintptr_t keyOf(void* auditor, SoAuditorType type)
    {
        return reinterpret_cast<std::uintptr_t>(auditor) | static_cast<std::uintptr_t>(type);
    }
    static void* pointerOf(std::uintptr_t key) { return reinterpret_cast<void*>(key & ~std::uintptr_t(7)); }
    static SoAuditorType typeOf(std::uintptr_t key) { return static_cast<SoAuditorType>(key & 7); }

    bool isLarge() const { return (m_data & 7) == LargeTag; }
    Large* large() const { return reinterpret_cast<Large*>(m_data & ~std::uintptr_t(7)); }
    std::vector<std::uintptr_t> keys() const;
    std::uint32_t generationOfLarge() const;

    std::uintptr_t m_data = 0;
};
