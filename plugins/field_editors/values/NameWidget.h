#pragma once

#include <plugins/field_editors/values/ValueWidget.h>

class CheckedLine;

/** A name. */
class NameWidget : public ValueWidget {
    Q_OBJECT
public:
    explicit NameWidget(QWidget* parent = nullptr);

    void showValue(const SoField& value) override;
    void setReadOnly(bool isReadOnly) override;
    void forgetInput() override;

private:
    CheckedLine* m_line;
};
