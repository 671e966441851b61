#pragma once

#include <vector>

#include <vexel/nodes/SoNode.h>

class SoEvent;
class SoPath;

/** Calls functions of the program for events of the user. */
class VEXEL_API SoEventCallback : public SoNode {
    SO_NODE(SoEventCallback, SoNode)
public:
    using Function = void(void* data, SoEventCallback* node);

    SoEventCallback() = default;

    /** Events count only while what is under the cursor lies on the path; without one, always. A copy is kept. */
    void setPath(const SoPath* path);
    const SoPath* getPath() const { return m_path; }

    /** Calls @p function for events of the type and of types derived from it. */
    void addEventCallback(SoType eventType, Function* function, void* data = nullptr);
    void removeEventCallback(SoType eventType, Function* function, void* data = nullptr);

    /** Calls the functions for an event; answers whether one of them handled it. */
    bool invoke(const SoEvent& event, SoAction* action);
    void handleEvent(SoHandleEventAction& action) override;

    // For the functions, while they are called.

    const SoEvent* getEvent() const { return m_event; }
    SoAction* getAction() const { return m_action; }
    void setHandled() { m_handled = true; }
    bool isHandled() const { return m_handled; }

    bool affectsState() const override { return false; }

protected:
    ~SoEventCallback() override;

private:
    struct Entry {
        SoType type;
        Function* function;
        void* data;
    };

    std::vector<Entry> m_entries;
    SoPath* m_path = nullptr;
    const SoEvent* m_event = nullptr;
    SoAction* m_action = nullptr;
    bool m_handled = false;
};
