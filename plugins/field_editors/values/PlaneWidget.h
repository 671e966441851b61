#pragma once

#include <plugins/field_editors/values/ValueWidget.h>
#include <vexel/fields/SoSFPlane.h>

class QToolButton;

/** A plane: its normal, of any length while it is typed, and its distance from the origin; it can be turned round. */
class PlaneWidget : public ValueWidget {
    Q_OBJECT
public:
    explicit PlaneWidget(QWidget* parent = nullptr);

    void showValue(const SoField& value) override;
    void setReadOnly(bool isReadOnly) override;

private:
    void takeNumbers();
    void flip();
    void showNumbers(const SbVec3f& normal);

    SoSFPlane m_value;
    NumberGrid* m_grid; ///< normal, distance
    QToolButton* m_flip;
};
