#pragma once

#include <QWidget>
#include <plugins/field_editors/values/NumberText.h>
#include <vector>
#include <vexel/base/SbVec3f.h>

class DragLabel;
class NumberBox;

/** Boxes for numbers of one kind in rows and columns, each with its name in front, which can be dragged. */
class NumberGrid : public QWidget {
    Q_OBJECT
public:
    /** A number without a name has no label. */
    NumberGrid(const NumberKind& kind, const QStringList& names, int columns = 1, QWidget* parent = nullptr);

    int count() const { return int(m_boxes.size()); }
    NumberBox& box(int i) const { return *m_boxes[std::size_t(i)]; }
    double value(int i) const;
    /** Shows a number, unless the user is typing one in its place. */
    void setValue(int i, double value);
    /** The same for the first three numbers. */
    ///@{
    SbVec3f vector() const { return {float(value(0)), float(value(1)), float(value(2))}; }
    void setVector(const SbVec3f& vector);
    ///@}
    void setStep(double step);
    /** For a grid with one column. */
    ///@{
    /** The place that names take at least, so that grids below each other are aligned. */
    void setNameWidth(int width);
    /** Puts a widget behind a number; those of a grid take two thirds of its width. */
    void addBehind(int i, QWidget& widget);
    ///@}
    void setReadOnly(bool isReadOnly);
    /** Drops what the user is typing. */
    void forgetInput();

signals:
    void edited(int i, double value);
    void gestureBegun();
    void gestureEnded();
    /** That of the first number that has one; empty: none has. */
    void problemChanged(const QString& problem);

private:
    void addNumber(const NumberKind& kind, const QString& name);
    void connectLabel(DragLabel& label, NumberBox& box);
    void setProblem(int i, const QString& problem);

    std::vector<NumberBox*> m_boxes;
    std::vector<DragLabel*> m_labels; ///< null: no name
    std::vector<QString> m_problems;
};
