#include "BitMaskWidget.h"

#include "EnumText.h"

#include <plugins/field_editors/edit/FieldCommand.h>

#include <QCheckBox>
#include <QHBoxLayout>
#include <QPushButton>
#include <algorithm>

BitMaskWidget::BitMaskWidget(QWidget* parent)
    : ValueWidget(parent), m_value(std::make_unique<SoSFBitMask>()), m_boxes(new QVBoxLayout),
      m_all(new QPushButton(QStringLiteral("ALL"))), m_none(new QPushButton(QStringLiteral("NONE"))) // as in files
{
    auto* const buttons = new QHBoxLayout;
    buttons->addWidget(m_all);
    buttons->addWidget(m_none);
    buttons->addStretch();
    m_boxes->setSpacing(2);
    auto* const rows = new QVBoxLayout(this);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->addLayout(m_boxes);
    rows->addLayout(buttons);
    m_all->setToolTip(tr("Set all flags"));
    m_none->setToolTip(tr("Set no flag"));
    connect(m_all, &QPushButton::clicked, this, [this] { edit(mask() | m_known); });
    connect(m_none, &QPushButton::clicked, this, [this] { edit(0); });
}

BitMaskWidget::~BitMaskWidget() = default;

void BitMaskWidget::showValue(const SoField& value)
{
    const auto& shown = static_cast<const SoSFBitMask&>(value);
    const bool isOtherTable = !EnumText::areSame(m_value->getEnums(), shown.getEnums());
    // A new copy each time: one that has mnemonics keeps them.
    m_value.reset(static_cast<SoSFBitMask*>(copyOf(value).release()));
    if (isOtherTable)
        makeRows();
    showMask();
}

void BitMaskWidget::makeRows()
{
    for (const Row& row : m_rows)
        delete row.box;
    m_rows.clear();
    m_unnamed = 0;
    m_known = 0;
    const EnumTable& table = m_value->getEnums();
    for (int i = 0; i < table.getNum(); ++i)
        m_known |= unsigned(table[i].value);
    for (int i = 0; i < table.getNum(); ++i) {
        const auto bits = unsigned(table[i].value);
        const bool isOneFlag = bits != 0 && (bits & (bits - 1)) == 0;
        const bool isButton = bits == 0 || (bits == m_known && !isOneFlag);
        const bool isKnown = std::any_of(m_rows.begin(), m_rows.end(), [&](const Row& r) { return r.bits == bits; });
        if (!isButton && !isKnown)
            addRow(QString::fromLatin1(table[i].name), bits);
    }
}

void BitMaskWidget::addRow(const QString& name, unsigned bits)
{
    auto* const box = new QCheckBox(name);
    box->setEnabled(m_all->isEnabled());
    m_boxes->addWidget(box, 0, Qt::AlignLeft);
    box->show(); // at once, not with the next event
    setTabOrder(m_rows.empty() ? this : static_cast<QWidget*>(m_rows.back().box), box);
    m_rows.push_back({bits, box});
    connect(box, &QCheckBox::clicked, this,
            [this, bits] { edit((mask() & bits) == bits ? mask() & ~bits : mask() | bits); });
}

void BitMaskWidget::showMask()
{
    const unsigned unnamed = mask() & ~m_known;
    if (unnamed != m_unnamed) {
        if (m_unnamed != 0) {
            m_rows.back().box->deleteLater(); // it may be the one that was clicked
            m_rows.back().box->hide();
            m_rows.pop_back();
        }
        m_unnamed = unnamed;
        if (unnamed != 0) {
            addRow(QStringLiteral("0x%1").arg(unnamed, 0, 16), unnamed);
            m_rows.back().box->setToolTip(tr("Bits without a name"));
        }
    }
    for (const Row& row : m_rows)
        showRow(row);
}

void BitMaskWidget::showRow(const Row& row)
{
    const unsigned set = mask() & row.bits;
    const bool isInPart = set != 0 && set != row.bits;
    row.box->setTristate(isInPart);
    row.box->setCheckState(isInPart ? Qt::PartiallyChecked : (set != 0 ? Qt::Checked : Qt::Unchecked));
}

void BitMaskWidget::edit(unsigned mask)
{
    const bool isOther = mask != this->mask();
    m_value->setValue(int(mask));
    showMask();
    if (isOther)
        emit edited(*m_value);
}

void BitMaskWidget::setReadOnly(bool isReadOnly)
{
    m_all->setEnabled(!isReadOnly);
    m_none->setEnabled(!isReadOnly);
    for (const Row& row : m_rows)
        row.box->setEnabled(!isReadOnly);
}
