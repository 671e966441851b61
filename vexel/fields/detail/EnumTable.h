#pragma once

#include <cstddef>

#include <vexel/base/VexelApi.h>
#include <vexel/fields/SoEnumEntry.h>

class SbName;
class SoInput;
class SoOutput;

/** The mnemonics that a field knows; a view of an array that lives as long as the program. */
class VEXEL_API EnumTable {
public:
    EnumTable() = default;
    template <std::size_t N>
    EnumTable(const SoEnumEntry (&entries)[N]) : m_entries(entries), m_count(static_cast<int>(N))
    {
    }

    int getNum() const { return m_count; }
    const SoEnumEntry& operator[](int i) const { return m_entries[i]; }
    /** Answers whether there is such a mnemonic, and its value. */
    bool find(const SbName& name, int& value) const;
    /** The mnemonic of a value, or null. */
    const char* nameOf(int value) const;

    /** Reads a mnemonic or a number. */
    bool readEnum(SoInput& in, int& value) const;
    void writeEnum(SoOutput& out, int value) const;
    /** Reads NONE, ALL, one mnemonic, or several as ( A | B ). */
    bool readMask(SoInput& in, int& value) const;
    void writeMask(SoOutput& out, int value) const;

private:
    bool readFlag(SoInput& in, int& value) const;
    int allFlags() const;

    const SoEnumEntry* m_entries = nullptr;
    int m_count = 0;
};
