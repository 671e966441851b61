#pragma once

#include <cstdint>

class SoBase;
class SoField;
class SoNode;

/** What a change was; sensors answer it as their trigger type. The numbers are part of the interface. */
enum SoTriggerType {
    SO_TRIGGER_UNSPECIFIED = 0,
    SO_TRIGGER_CHILD_ADDED = 1,
    SO_TRIGGER_CHILD_INSERTED = 2,
    SO_TRIGGER_CHILD_REPLACED = 3,
    SO_TRIGGER_CHILD_REMOVED = 4,
    SO_TRIGGER_ALL_CHILDREN_REMOVED = 5,
    SO_TRIGGER_MULTIPLE_VALUES = 6
};

/** Who listens to a base object; the numbers are part of the interface. */
enum class SoAuditorType { Container = 0, Path = 1, Sensor = 2, Field = 3, Engine = 4 };

/** One step of the way of a notification, kept on the stack of the walk: @c previous is nearer to the change. */
struct SoNotRec {
    SoBase* base;
    const SoNotRec* previous;
};

/**
 * One change on its way up the graph: what changed, and the chain of containers from the change to the listener that is
 * being told. Each container passes on a change once, however many ways lead to it; the stamp tells it so.
 */
struct SoNotList {
    explicit SoNotList(SoTriggerType triggerType = SO_TRIGGER_UNSPECIFIED)
        : stamp(nextStamp()), origin(stamp), type(triggerType)
    {
    }

    std::uint32_t stamp;
    /** Stamp of the change that led to this one over connections; the own one for a change at first hand. */
    std::uint32_t origin;
    SoTriggerType type;
    /** The field that changed; null when children changed or a node was touched. */
    SoField* field = nullptr;
    /** The first node on the way up: the one that changed, or that owns the field. */
    SoNode* node = nullptr;
    /** The child added, inserted, put in place of another, or removed; null otherwise. */
    SoNode* child = nullptr;
    int childIndex = -1;
    const SoNotRec* last = nullptr;

private:
    static std::uint32_t nextStamp();
};
