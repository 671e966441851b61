#pragma once

#include <plugins/field_editors/values/ValueWidget.h>
#include <vexel/fields/SoField.h>
#include <vexel/io/SoDB.h>

#include <QApplication>
#include <QStringList>
#include <QTest>
#include <gtest/gtest.h>

/** A value widget in a window of its own, and what the user gave it. */
template <class Widget, class Field>
class ShownWidget {
public:
    ShownWidget()
    {
        QObject::connect(&widget, &ValueWidget::edited, [this](const SoField& value) {
            ++edits;
            last.copyFrom(value);
        });
        QObject::connect(&widget, &ValueWidget::problemChanged, [this](const QString& text) { problem = text; });
        QObject::connect(&widget, &ValueWidget::gestureBegun, [this] { gestures += "begun"; });
        QObject::connect(&widget, &ValueWidget::gestureEnded, [this] { gestures += "ended"; });
        QObject::connect(&widget, &ValueWidget::gestureCancelled, [this] { gestures += "cancelled"; });
    }

    void showField(const Field& field)
    {
        widget.showValue(field);
        widget.show();
        widget.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&widget));
    }
    template <class Value>
    void showValue(const Value& value)
    {
        Field field;
        field.setValue(value);
        showField(field);
    }
    template <class Child>
    Child* child(int i = 0)
    {
        const QList<Child*> all = widget.template findChildren<Child*>();
        return i < all.size() ? all[i] : nullptr;
    }
    /** To the widget that has the keyboard. */
    ///@{
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::keyClick(QApplication::focusWidget(), key, modifiers);
    }
    void type(const QString& text) { QTest::keyClicks(QApplication::focusWidget(), text); }
    /** Selects all that stands there and types in its place. */
    void retype(const QString& text)
    {
        press(Qt::Key_A, Qt::ControlModifier);
        type(text);
    }
    ///@}

private:
    struct Toolkit {
        Toolkit() { SoDB::init(); }
    } m_toolkit;

public:
    Widget widget;
    Field last;
    int edits = 0;
    QString problem;
    QStringList gestures;
};
