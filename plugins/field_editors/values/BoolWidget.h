#pragma once

#include <plugins/field_editors/values/ValueWidget.h>

class QCheckBox;

/** TRUE or FALSE. */
class BoolWidget : public ValueWidget {
    Q_OBJECT
public:
    explicit BoolWidget(QWidget* parent = nullptr);

    void showValue(const SoField& value) override;
    void setReadOnly(bool isReadOnly) override;

private:
    void showBool(bool value);

    QCheckBox* m_box;
};
