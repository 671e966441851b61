#pragma once

#include <cstddef>
#include <cstdint>
#include <unordered_map>

/** Table from a number or an address to an untyped pointer. It owns nothing. */
class SbDict {
public:
    using Key = std::uintptr_t;

    static Key keyOf(const void* address) noexcept { return reinterpret_cast<Key>(address); }

    /** Sets the value of a key; true when the key was not in the table before. */
    bool enter(Key key, void* value) { return m_values.insert_or_assign(key, value).second; }
    bool enter(const void* key, void* value) { return enter(keyOf(key), value); }

    /** True, with the value, when the key is in the table; otherwise `value` becomes null. */
    bool find(Key key, void*& value) const
    {
        const auto found = m_values.find(key);
        value = found == m_values.end() ? nullptr : found->second;
        return found != m_values.end();
    }
    bool find(const void* key, void*& value) const { return find(keyOf(key), value); }

    /** True when the key was in the table. */
    bool remove(Key key) { return m_values.erase(key) != 0; }
    bool remove(const void* key) { return remove(keyOf(key)); }

    void clear() noexcept { m_values.clear(); }
    std::size_t getLength() const noexcept { return m_values.size(); }

private:
    std::unordered_map<Key, void*> m_values;
};
