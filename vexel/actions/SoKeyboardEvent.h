#pragma once

#include <vexel/actions/SoButtonEvent.h>

/** A key went down or up. */
class VEXEL_API SoKeyboardEvent : public SoButtonEvent {
    SO_EVENT(SoKeyboardEvent)
public:
    /** Qt::Key of the key. */
    int getKey() const { return m_key; }
    void setKey(int key) { m_key = key; }
    /** The character that the key stands for; 0 for none. */
    char32_t getCharacter() const { return m_character; }
    void setCharacter(char32_t character) { m_character = character; }

    static bool isKeyPressEvent(const SoEvent* event, int key);
    static bool isKeyReleaseEvent(const SoEvent* event, int key);

private:
    int m_key = 0;
    char32_t m_character = 0;
};
