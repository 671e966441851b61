#pragma once

#include <vexel/io/SoDB.h>

/** Keeps other threads from traversing the graph for the length of a block. */
class GraphLock {
public:
    GraphLock() { SoDB::writelock(); }
    ~GraphLock() { SoDB::writeunlock(); }
    GraphLock(const GraphLock&) = delete;
    GraphLock& operator=(const GraphLock&) = delete;
};
