#pragma once

#include <cstddef>
#include <string_view>

class SoInput;

/** The first line of a scene file: what it says, and where the scene begins. */
struct SceneHeader {
    enum class Kind { None, Ascii, Binary };

    Kind kind = Kind::None;
    /** Number of bytes before the scene, byte-order mark and line end included. */
    std::size_t length = 0;
    void (*preRead)(void* data, SoInput* in) = nullptr;
    void* data = nullptr;

    static SceneHeader find(const char* data, std::size_t size);
    static bool add(std::string_view line, Kind kind, void (*preRead)(void* data, SoInput* in), void* data);
};
