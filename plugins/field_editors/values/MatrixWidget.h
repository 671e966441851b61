#pragma once

#include <plugins/field_editors/values/ValueWidget.h>
#include <vexel/fields/SoSFMatrix.h>

class ProblemLine;

/** A matrix: its elements, and what it does to space as translation, rotation and scale. Warns of a singular one. */
class MatrixWidget : public ValueWidget {
    Q_OBJECT
public:
    explicit MatrixWidget(QWidget* parent = nullptr);

    void showValue(const SoField& value) override;
    void setReadOnly(bool isReadOnly) override;

private:
    void takeElement(int i, double number);
    void takeParts();
    void take(const SbMatrix& matrix);
    void showMatrix();
    void showParts();
    QString warning() const;

    SoSFMatrix m_value;
    NumberGrid* m_elements;
    NumberGrid* m_parts; ///< three columns: translation, angles about the axes, scale
    ProblemLine* m_warning;
};
