#include "LinePattern.h"

std::vector<double> LinePattern::dashes(unsigned pattern)
{
    constexpr unsigned Last_bit = 0x8000;
    std::vector<double> lengths;
    if (pattern == 0xffff)
        return lengths;
    // Turned so that a stroke is first and the last gap ends the pattern.
    while (!(pattern & 1) || (pattern & Last_bit))
        pattern = (pattern >> 1) | ((pattern & 1) << 15);
    bool isStroke = true;
    int length = 0;
    for (int i = 0; i < 16; ++i, ++length) {
        if (((pattern >> i & 1) != 0) == isStroke)
            continue;
        lengths.push_back(length);
        isStroke = !isStroke;
        length = 0;
    }
    lengths.push_back(length);
    return lengths;
}
