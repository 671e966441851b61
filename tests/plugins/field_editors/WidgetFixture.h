#pragma once

#include <plugins/field_editors/values/NumberBox.h>
#include <plugins/field_editors/values/ValueWidget.h>
#include <vexel/io/SoDB.h>

#include <QApplication>
#include <QLineEdit>
#include <QMouseEvent>
#include <QSignalSpy>
#include <QTest>
#include <QToolButton>
#include <gtest/gtest.h>

/** A value widget on the screen, and what the user made with it; `Field` is the type of its values. */
template <class Widget, class Field>
class ShownWidget {
public:
    template <class... Arguments>
    explicit ShownWidget(Arguments&&... arguments) : widget(std::forward<Arguments>(arguments)...)
    {
        QObject::connect(&widget, &ValueWidget::edited, [this](const SoField& value) {
            ++edits;
            last.copyFrom(value);
        });
        QObject::connect(&widget, &ValueWidget::problemChanged, [this](const QString& text) { problem = text; });
    }

    template <class Value>
    void show(const Value& value)
    {
        Field field;
        field.setValue(value);
        showField(field);
    }
    void showField(const Field& field)
    {
        widget.showValue(field);
        widget.show();
        widget.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&widget));
    }

    /** The boxes in the order in which they were made. */
    NumberBox* box(int i) { return widget.template findChildren<NumberBox*>()[i]; }
    QString text(int i) { return box(i)->template findChild<QLineEdit*>()->text(); }
    void type(int i, const QString& text)
    {
        box(i)->setFocus();
        box(i)->selectAll();
        QTest::keyClicks(box(i), text);
    }
    void enter(int i, const QString& text)
    {
        type(i, text);
        QTest::keyClick(box(i), Qt::Key_Return);
    }
    QToolButton* button(const QString& text)
    {
        for (QToolButton* each : widget.template findChildren<QToolButton*>()) {
            if (each->text() == text)
                return each;
        }
        return nullptr;
    }
    void press(const QString& text) { QTest::mouseClick(button(text), Qt::LeftButton); }

    Widget widget;
    Field last;
    int edits = 0;
    QString problem;
};

/** Moves the mouse with its left button held. */
inline void moveMouse(QWidget& widget, const QPoint& place)
{
    QMouseEvent event(QEvent::MouseMove, place, widget.mapToGlobal(place), Qt::NoButton, Qt::LeftButton, {});
    QApplication::sendEvent(&widget, &event);
}
