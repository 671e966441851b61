#pragma once

#include <vexel/io/SoDB.h>

/** Keeps other threads from traversing the graph for the length of a block. */
class SoDBWriteLock {
public:
    SoDBWriteLock() { SoDB::writelock(); }
    ~SoDBWriteLock() { SoDB::writeunlock(); }
    SoDBWriteLock(const SoDBWriteLock&) = delete;
    SoDBWriteLock& operator=(const SoDBWriteLock&) = delete;
};
