#pragma once

#include <extension/NscExtension.h>

#include <QStringList>

/** An extension that writes down how it is called. */
class TestExtension : public NscExtension {
    Q_OBJECT
public:
    explicit TestExtension(const char* name = "Test") : NscExtension({name}) {}

    void activate() override { m_calls << "activate"; }
    void show() override { m_calls << "show"; }
    void hide() override { m_calls << "hide"; }

    QStringList m_calls;
};
