#pragma once

#include <cstdint>

class SoNode;

/** What the graph below a node consists of; a node that stands in two places counts twice. */
struct GraphCounts {
    std::int64_t nodes = 0;
    std::int64_t shapes = 0;
    std::int64_t triangles = 0;
    std::int64_t lines = 0;
    std::int64_t points = 0;

    static GraphCounts of(SoNode* root);
};
