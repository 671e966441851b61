#pragma once

#include <algorithm>

#include <vexel/fields/SoMFInt32.h>

/**
 * Calls visit(number of the run, first place, number of places) for each run of consecutive coordinates that a list of
 * counts describes; -1 takes all that are left, and runs are cut where the coordinates end.
 */
template <class Visit>
void forEachRun(const SoMFInt32& counts, int available, Visit&& visit)
{
    int first = 0;
    for (int run = 0; run < counts.getNum() && first < available; ++run) {
        const int left = available - first;
        const int count = counts[run] < 0 ? left : std::min(counts[run], left);
        visit(run, first, count);
        first += count;
    }
}

/** How many coordinates the runs take in all. */
inline int countInRuns(const SoMFInt32& counts, int available)
{
    int used = 0;
    forEachRun(counts, available, [&](int, int, int count) { used += count; });
    return used;
}

/**
 * Calls visit(number of the run, place of its first index, number of indices) for each part of an index list that a
 * negative index, or the end of the list, ends.
 */
template <class Visit>
void forEachIndexRun(const SoMFInt32& indices, Visit&& visit)
{
    const int num = indices.getNum();
    const int* values = indices.getValues();
    int first = 0;
    for (int i = 0, run = 0; i <= num; ++i) {
        const bool isEnd = i == num || values[i] < 0;
        if (!isEnd)
            continue;
        // The mark that ends the last run begins none.
        if (i < num || i > first)
            visit(run++, first, i - first);
        first = i + 1;
    }
}
