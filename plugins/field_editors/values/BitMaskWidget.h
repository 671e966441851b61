#pragma once

#include <memory>
#include <plugins/field_editors/values/ValueWidget.h>
#include <vector>
#include <vexel/fields/SoSFBitMask.h>

class QCheckBox;
class QPushButton;
class QVBoxLayout;

/**
 * A set of flags, each with a box to check. A name for several flags is checked when all of them are, in part when some
 * are, and switches all of them; the names of all flags and of none are buttons. Bits without a name have one box.
 */
class BitMaskWidget : public ValueWidget {
    Q_OBJECT
public:
    explicit BitMaskWidget(QWidget* parent = nullptr);
    ~BitMaskWidget() override;

    void showValue(const SoField& value) override;
    void setReadOnly(bool isReadOnly) override;

private:
    struct Row {
        unsigned bits;
        QCheckBox* box;
    };

    void makeRows();
    void addRow(const QString& name, unsigned bits);
    void showRow(const Row& row);
    void showMask();
    void edit(unsigned mask);
    unsigned mask() const { return unsigned(m_value->getValue()); }

    std::unique_ptr<SoSFBitMask> m_value;
    unsigned m_known = 0;   ///< the bits that have names
    unsigned m_unnamed = 0; ///< the bits of the last row, 0 without it
    std::vector<Row> m_rows;
    QVBoxLayout* m_boxes;
    QPushButton* m_all;
    QPushButton* m_none;
};
