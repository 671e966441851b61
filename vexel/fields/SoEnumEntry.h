#pragma once

/** One mnemonic of an enumeration or bit mask; classes keep arrays of them beside the enumeration itself. */
struct SoEnumEntry {
    const char* name;
    int value;
};
