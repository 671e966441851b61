#pragma once

#include <plugins/field_editors/values/ValueWidget.h>
#include <vexel/fields/SoSFRotation.h>

class RotationHandle;

/** A rotation: axis and angle, three angles, and a ball that is turned with the mouse. */
class RotationWidget : public ValueWidget {
    Q_OBJECT
public:
    explicit RotationWidget(QWidget* parent = nullptr);

    void showValue(const SoField& value) override;
    void setReadOnly(bool isReadOnly) override;

private:
    void takeAxis();
    void takeAngle(int unit, double number);
    void takeEuler();
    void take(const SbRotation& rotation);
    void showRotation();

    SoSFRotation m_value;
    NumberGrid* m_axis;
    NumberGrid* m_angle; ///< in degrees, in radians
    NumberGrid* m_euler;
    RotationHandle* m_handle;
};
