#pragma once

#include <memory>
#include <plugins/field_editors/values/Components.h>
#include <plugins/field_editors/values/ValueWidget.h>
#include <vector>
#include <vexel/fields/SoField.h>

class NumberGrid;
class QToolButton;
class RangeSlider;

/** How the numbers of a single-value field are read and set. */
struct NumberAccess {
    NumberKind kind;
    QStringList names;
    SoField* (*create)();
    double (*get)(const SoField& field, int i);
    void (*set)(SoField& field, int i, double number);

    template <class Field>
    static NumberAccess of()
    {
        using Value = typename Field::ValueType;
        using Its = Components<Value>;
        return {NumberKind::of<typename Its::Number>(), Its::names(), []() -> SoField* { return new Field; },
                [](const SoField& field, int i) { return Its::get(static_cast<const Field&>(field).getValue(), i); },
                [](SoField& field, int i, double number) {
                    Value value = static_cast<Field&>(field).getValue();
                    Its::set(value, i, number);
                    static_cast<Field&>(field).setValue(value);
                }};
    }
};

/**
 * A number or a vector: a box for each component, whose name can be dragged. Components of a vector can be linked, so
 * that they keep their proportions, and made one long together. A number with a known range has a slider.
 */
class NumbersWidget : public ValueWidget {
    Q_OBJECT
public:
    /** @param orientation  how the components of a vector stand */
    explicit NumbersWidget(const NumberAccess& access, Qt::Orientation orientation = Qt::Vertical,
                           QWidget* parent = nullptr);
    ~NumbersWidget() override;

    void showValue(const SoField& value) override;
    void setReadOnly(bool isReadOnly) override;
    void setRange(const ValueRange* range) override;

private:
    void addSlider();
    void addVectorButtons();
    void setNumber(int i, double number);
    void setLinked(int i, double number);
    void normalise();
    void showNumbers();
    int count() const { return m_access.names.size(); }

    NumberAccess m_access;
    std::unique_ptr<SoField> m_value;
    NumberGrid* m_grid;
    std::vector<double> m_proportions; ///< of linked components, kept while one of them passes through zero
    RangeSlider* m_slider = nullptr;
    QToolButton* m_link = nullptr;
    QToolButton* m_normalise = nullptr;
};
