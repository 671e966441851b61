#pragma once

#include <memory>
#include <plugins/field_editors/values/ValueWidget.h>
#include <vexel/fields/SoSFEnum.h>

class CheckedLine;
class QComboBox;

/**
 * One value of an enumeration: chosen by its mnemonic, or typed as mnemonic or number. Of several mnemonics for a value
 * only the first is shown.
 */
class EnumWidget : public ValueWidget {
    Q_OBJECT
public:
    explicit EnumWidget(QWidget* parent = nullptr);
    ~EnumWidget() override;

    void showValue(const SoField& value) override;
    void setReadOnly(bool isReadOnly) override;
    void forgetInput() override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void fillList();
    void showNumber();
    void edit(int number);

    std::unique_ptr<SoSFEnum> m_value;
    CheckedLine* m_line;
    QComboBox* m_list;
};
