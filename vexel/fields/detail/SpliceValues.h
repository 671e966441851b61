#pragma once

#include <algorithm>
#include <vector>

/** Puts `fromNum` elements of `from` into the place of `num` elements of `values`; ranges beyond an end are cut. */
template <class Element>
void spliceValues(std::vector<Element>& values, int start, int num, const std::vector<Element>& from, int fromStart,
                  int fromNum)
{
    struct Range {
        int first, last;
        Range(int start, int num, std::size_t size)
            : first(std::clamp(start, 0, static_cast<int>(size))),
              last(first + std::clamp(num, 0, static_cast<int>(size) - first))
        {
        }
        int count() const { return last - first; }
    };
    const Range out(start, num, values.size());
    const Range in(fromStart, fromNum, from.size());
    const int common = std::min(out.count(), in.count());
    const auto next = std::copy_n(from.begin() + in.first, common, values.begin() + out.first);
    if (out.count() > common)
        values.erase(next, values.begin() + out.last);
    else
        values.insert(next, from.begin() + in.first + common, from.begin() + in.last);
}
