#include "ColorPalette.h"

#include <algorithm>
#include <cmath>
#include <queue>

namespace {

using Component = std::uint8_t InkColor::*;
constexpr Component Components[] = {&InkColor::red, &InkColor::green, &InkColor::blue};

struct Use {
    InkColor color;
    double area;
};
using Uses = std::vector<Use>::iterator;

/** Colours near each other. */
struct Box {
    Box(Uses from, Uses to) : first(from), end(to)
    {
        for (const Component each : Components) {
            const auto [low, high] = std::minmax_element(
                from, to, [each](const Use& a, const Use& b) { return a.color.*each < b.color.*each; });
            const int its = high->color.*each - low->color.*each;
            if (its > width) {
                width = its;
                component = each;
            }
        }
        for (Uses use = from; use != to; ++use)
            area += use->area;
    }

    /** How wrong one colour for all of it would look. */
    double error() const { return width * width * std::sqrt(area); }
    bool operator<(const Box& other) const { return error() < other.error(); }

    InkColor mean() const
    {
        InkColor color;
        for (const Component each : Components) {
            double sum = 0;
            for (Uses use = first; use != end; ++use)
                sum += use->area * (use->color.*each);
            color.*each = std::uint8_t(std::lround(sum / area));
        }
        return color;
    }

    /** Between its colours, in the middle of their area. */
    Uses cut() const
    {
        std::sort(first, end, [its = component](const Use& a, const Use& b) { return a.color.*its < b.color.*its; });
        double passed = first->area;
        Uses place = first + 1;
        while (place + 1 != end && passed * 2 < area)
            passed += (place++)->area;
        return place;
    }

    Uses first;
    Uses end;
    Component component = Components[0];
    int width = 0; ///< of the component that spreads most; 0 for one colour
    double area = 0;
};

} // namespace

void ColorPalette::reduce(std::size_t mostColors)
{
    m_colors.clear();
    m_places.clear();
    if (m_areas.empty())
        return;
    std::vector<Use> uses;
    for (const auto& [packed, area] : m_areas)
        uses.push_back({{std::uint8_t(packed >> 16), std::uint8_t(packed >> 8), std::uint8_t(packed)}, area});
    // The order of a hash must not be seen in files.
    std::sort(uses.begin(), uses.end(), [](const Use& a, const Use& b) { return a.color.packed() < b.color.packed(); });
    std::priority_queue<Box> boxes;
    boxes.emplace(uses.begin(), uses.end());
    while (boxes.size() < mostColors && boxes.top().width > 0) {
        const Box box = boxes.top();
        boxes.pop();
        const Uses middle = box.cut();
        boxes.emplace(box.first, middle);
        boxes.emplace(middle, box.end);
    }
    for (; !boxes.empty(); boxes.pop()) {
        const Box& box = boxes.top();
        for (Uses use = box.first; use != box.end; ++use)
            m_places[use->color.packed()] = m_colors.size();
        m_colors.push_back(box.mean());
    }
}
