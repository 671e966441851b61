#pragma once

#include <vexel/nodes/SoNode.h>
#include <vexel/sensors/SoNodeSensor.h>

/**
 * Refers to a node of the host without keeping it alive: a command may stand in the history long after the host has
 * dropped what it changed.
 */
class WeakNode {
public:
    explicit WeakNode(SoNode* node = nullptr) { m_watch.attach(node); }
    WeakNode(const WeakNode& other) : WeakNode(other.get()) {}
    WeakNode& operator=(const WeakNode& other)
    {
        m_watch.attach(other.get());
        return *this;
    }

    /** Null once the node is gone. */
    SoNode* get() const { return m_watch.getAttachedNode(); }

private:
    /** Is told of the node's end; its changes are of no interest. */
    class Watch : public SoNodeSensor {
    public:
        void notify(const SoNotList&) override {}
    };

    Watch m_watch;
};
