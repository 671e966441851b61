#pragma once

#include <vexel/fields/SoMFEnum.h>
#include <vexel/fields/SoMFFloat.h>
#include <vexel/fields/SoMFNode.h>
#include <vexel/fields/SoMFString.h>
#include <vexel/fields/SoSFBitMask.h>
#include <vexel/fields/SoSFBool.h>
#include <vexel/fields/SoSFEnum.h>
#include <vexel/fields/SoSFFloat.h>
#include <vexel/fields/SoSFNode.h>
#include <vexel/fields/SoSFString.h>
#include <vexel/fields/SoSFVec3f.h>
#include <vexel/nodes/SoGroup.h>

/** A node with fields of most kinds. */
class SoSample : public SoGroup {
    SO_NODE(SoSample, SoGroup)
public:
    enum Mood { GOOD, FAIR = 5, BAD = 7 };
    static constexpr SoEnumEntry Mood_names[] = {{"GOOD", GOOD}, {"FAIR", FAIR}, {"BAD", BAD}};
    enum Side { LEFT = 1, RIGHT = 2, TOP = 4 };
    static constexpr SoEnumEntry Side_names[] = {{"LEFT", LEFT}, {"RIGHT", RIGHT}, {"TOP", TOP}};

    SoSFFloat size{this, "size", 1.5f};
    SoSFBool open{this, "open", true};
    SoSFVec3f place{this, "place", SbVec3f(1, 2, 3)};
    SoSFEnum mood{this, "mood", FAIR, Mood_names};
    SoSFBitMask sides{this, "sides", LEFT, Side_names};
    SoMFEnum moods{this, "moods", Mood_names};
    SoMFFloat values{this, "values"};
    SoMFString words{this, "words", "first"};
    SoSFNode held{this, "held"};
    SoMFNode several{this, "several"};

    SoSample() = default;
};

/** The same with one field more, to see inherited tables. */
class SoSpecialSample : public SoSample {
    SO_NODE(SoSpecialSample, SoSample)
public:
    SoSFString note{this, "note", "none"};

    SoSpecialSample() = default;
};

/** Holds a node for the length of a test. */
template <class Node>
class Held {
public:
    Held() : m_node(new Node) { m_node->ref(); }
    Held(const Held&) = delete;
    Held& operator=(const Held&) = delete;
    ~Held() { m_node->unref(); }

    Node* operator->() const { return m_node; }
    Node& operator*() const { return *m_node; }
    Node* get() const { return m_node; }

private:
    Node* m_node;
};
