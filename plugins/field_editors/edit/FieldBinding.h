#pragma once

#include <QObject>
#include <QTimer>
#include <memory>
#include <vexel/fields/SoMField.h>
#include <vexel/sensors/SoFieldSensor.h>

class FieldCommand;

/**
 * The field that an editor shows: followed without keeping it alive, and changed by commands that can be undone.
 *
 * Edits between beginGesture() and endGesture() are made at once and undone as one.
 */
class FieldBinding : public QObject {
    Q_OBJECT
public:
    explicit FieldBinding(QObject* parent = nullptr);
    ~FieldBinding() override;

    /** Null: none, as after the end of the field. */
    SoField* field() const { return m_sensor.getAttachedField(); }
    void setField(SoField* field);
    /** Whether an edit would last: there is a field, it is no output, and nothing else gives it its value. */
    bool isEditable() const;

    /** Gives the field another value, with its default mark. */
    void setValue(const SoField& value);
    /** The same with what the field has in a new object of its class; nothing where there are no such objects. */
    void resetValue();
    bool hasDefaultValue() const;
    /** Puts the values of a list into a range of the field, which is a list of the same type. */
    void replaceValues(int start, int num, std::unique_ptr<SoMField> values);
    void setIgnored(bool isIgnored);
    void cutConnection();

    void beginGesture();
    void endGesture();
    /** Ends a gesture and takes back what it did. */
    void cancelGesture();

signals:
    /** Another field is shown, or none. */
    void fieldChanged();
    /** The field's value, or something else of it, is another; once an event turn however often that happens. */
    void valueChanged();

private:
    void add(std::unique_ptr<FieldCommand> command);
    void push(std::unique_ptr<FieldCommand> command);
    std::unique_ptr<SoField> makeDefaultValue() const;

    SoFieldSensor m_sensor;
    QTimer m_update;
    std::unique_ptr<FieldCommand> m_gesture; ///< what was done of it so far
    bool m_isInGesture = false;
};
