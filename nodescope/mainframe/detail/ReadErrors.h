#pragma once

#include <QStringList>

class QWidget;
class SoError;

/** Collects the messages about what cannot be read, from its creation to its end, and shows them together. */
class ReadErrors {
public:
    ReadErrors();
    ~ReadErrors();
    ReadErrors(const ReadErrors&) = delete;
    ReadErrors& operator=(const ReadErrors&) = delete;

    /** Lists all in the window's messages, and shows a warning with them, the first ones at once and the others on
     * demand; nothing without messages. */
    void show(QWidget* window) const;

private:
    using Handler = void(const SoError* error, void* data);

    Handler* m_previousHandler;
    void* m_previousData;
    QStringList m_messages;
};
