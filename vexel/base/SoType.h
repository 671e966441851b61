#pragma once

#include <cstdint>
#include <functional>
#include <vector>

#include <vexel/base/SbName.h>
#include <vexel/base/VexelApi.h>

/**
 * Run-time type of a field, node, engine, action or any other class of the toolkit.
 *
 * A type is two bytes, copied and compared by value. Types form one tree; isDerivedFrom() costs the same at any depth.
 * Types live for the whole process.
 */
class VEXEL_API SoType {
public:
    /** Makes an instance of the type; the caller knows the base class from the family of the type. */
    using Factory = void* (*)();

    /** The bad type: no class, derived from nothing. */
    constexpr SoType() = default;
    static SoType badType() { return SoType(); }

    /**
     * Registers a type.
     * @param parent   the type of the base class, or the bad type for the root of a family
     * @param name     class name; a leading "So" is dropped ("SoCube" is registered as "Cube")
     * @param factory  makes an instance; null for an abstract class
     * @return the new type, or the registered one when the name is taken already
     */
    static SoType createType(SoType parent, const char* name, Factory factory = nullptr);

    /** The type of that name, with or without the "So" prefix; the bad type when there is none. */
    static SoType fromName(const SbName& name);

    /** Answers @p base itself (when registered) and every type derived from it, in the order of registration. */
    static std::vector<SoType> getAllDerivedFrom(SoType base);

    bool isBad() const { return m_key == 0; }
    SbName getName() const;
    SoType getParent() const;
    bool isDerivedFrom(SoType ancestor) const;

    bool canCreateInstance() const;
    /** A new instance with a reference count of 0, or null for an abstract or bad type. */
    void* createInstance() const;

    std::uint16_t getKey() const { return m_key; }

    friend bool operator==(SoType a, SoType b) { return a.m_key == b.m_key; }
    friend bool operator!=(SoType a, SoType b) { return a.m_key != b.m_key; }
    friend bool operator<(SoType a, SoType b) { return a.m_key < b.m_key; }

private:
    explicit constexpr SoType(std::uint16_t key) : m_key(key) {}

    std::uint16_t m_key = 0;
};

template <>
struct std::hash<SoType> {
    std::size_t operator()(SoType type) const noexcept { return type.getKey(); }
};
