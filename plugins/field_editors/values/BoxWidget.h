#pragma once

#include <memory>
#include <plugins/field_editors/values/NumbersWidget.h>

class QLabel;

/** A box: its ends along each axis, with size and middle. Says so when it is empty, and makes it so. */
class BoxWidget : public ValueWidget {
    Q_OBJECT
public:
    /** @param access  of a field of boxes, whose numbers are minimum and maximum along each axis in turn */
    explicit BoxWidget(const NumberAccess& access, QWidget* parent = nullptr);
    ~BoxWidget() override;

    void showValue(const SoField& value) override;
    void setReadOnly(bool isReadOnly) override;

private:
    void showBox();
    QString describe() const;
    void makeEmpty();

    NumberAccess m_access;
    std::unique_ptr<SoField> m_value;
    NumberGrid* m_grid;
    QLabel* m_measures;
    QToolButton* m_empty;
};
