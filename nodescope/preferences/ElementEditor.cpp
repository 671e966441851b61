#include "ElementEditor.h"
#include "ReadableColor.h"
#include "SoPreferenceStore.h"
#include "detail/ColorChoice.h"
#include "detail/PreferencePage.h"

#include <QCoreApplication>
#include <QFontDatabase>
#include <QPointer>
#include <QSignalBlocker>

namespace {

constexpr int Option_row = 6;
constexpr int All_columns = -1;
constexpr char Default_family[] = "Arial";

/** Shows a value in a control without taking that for the user's choice. */
template <class Control, class Value>
void showIn(Control* control, void (Control::*setter)(Value), std::decay_t<Value> value)
{
    const QSignalBlocker blocker(control);
    (control->*setter)(value);
}

} // namespace

ElementEditor::ElementEditor(QWidget* parent) : QGroupBox(parent)
{
    setupUi(this);
    m_comboFamily->addItems(QFontDatabase().families());
    m_comboFamily->setCurrentText(QLatin1String(Default_family));
    m_spinSize->setRange(SoPreferenceStore::SmallestFont, SoPreferenceStore::LargestFont);
    connect(m_listItems, &QListWidget::currentTextChanged, this, &ElementEditor::elementChanged);
    connect(m_comboFamily, &QComboBox::textActivated, this, &ElementEditor::familyChanged);
    connect(m_spinSize, qOverload<int>(&QSpinBox::valueChanged), this, &ElementEditor::sizeChanged);
    connect(m_checkBold, &QCheckBox::toggled, this, &ElementEditor::boldChanged);
    connect(m_checkItalic, &QCheckBox::toggled, this, &ElementEditor::italicChanged);
    connect(m_checkUnderline, &QCheckBox::toggled, this, &ElementEditor::underlineChanged);
    connect(m_buttonColor, &QToolButton::clicked, this, &ElementEditor::colorClicked);
    connect(m_pushToDefault, &QPushButton::clicked, this, &ElementEditor::setToDefault);
}

void ElementEditor::setGroup(const char* group)
{
    m_group = QLatin1String(group);
    m_elements = SoPreferenceStore::getInstance()->defaultElements(m_group);
    for (const PreferenceElement& element : PreferencePage::find(m_group)->elements) {
        auto* item = new QListWidgetItem(QCoreApplication::translate("PreferencePage", element.name), m_listItems);
        item->setData(Qt::UserRole, QString(element.name));
    }
    m_listItems->setMinimumWidth(m_listItems->sizeHintForColumn(0) + 2 * m_listItems->frameWidth());
    m_listItems->setCurrentRow(0);
}

void ElementEditor::addOption(QWidget* option)
{
    m_elementLayout->addWidget(option, Option_row, 0, 1, All_columns);
}

void ElementEditor::load()
{
    m_elements = SoPreferenceStore::getInstance()->loadElements(m_group);
    m_listItems->setCurrentRow(0);
    showCurrent();
}

void ElementEditor::save() const
{
    SoPreferenceStore::getInstance()->saveElements(m_group, m_elements);
}

QString ElementEditor::currentName() const
{
    const QListWidgetItem* item = m_listItems->currentItem();
    return item ? item->data(Qt::UserRole).toString() : QString();
}

DisplayElement* ElementEditor::current()
{
    const auto found = m_elements.find(currentName());
    return found == m_elements.end() ? nullptr : &*found;
}

template <class Change>
void ElementEditor::change(Change&& apply)
{
    if (DisplayElement* element = current()) {
        apply(*element);
        showPreview(*element);
    }
}

void ElementEditor::elementChanged()
{
    showCurrent();
}

void ElementEditor::familyChanged(const QString& family)
{
    change([&](DisplayElement& element) { element.font.setFamily(family); });
}

void ElementEditor::sizeChanged(int size)
{
    change([&](DisplayElement& element) { element.font.setPointSize(size); });
}

void ElementEditor::boldChanged(bool isOn)
{
    change([&](DisplayElement& element) { element.font.setBold(isOn); });
}

void ElementEditor::italicChanged(bool isOn)
{
    change([&](DisplayElement& element) { element.font.setItalic(isOn); });
}

void ElementEditor::underlineChanged(bool isOn)
{
    change([&](DisplayElement& element) { element.font.setUnderline(isOn); });
}

void ElementEditor::colorClicked()
{
    const DisplayElement* const element = current();
    if (!element)
        return;
    const QPointer<ElementEditor> self(this);
    const QColor color = ColorChoice::ask(element->color, "editor_getcolor_dlg", this);
    if (!self)
        return;
    change([&](DisplayElement& changed) { changed.color = color; });
}

void ElementEditor::setCurrentShown(bool isShown)
{
    change([&](DisplayElement& element) { element.isShown = isShown; });
}

void ElementEditor::setToDefault()
{
    if (DisplayElement* element = current()) {
        *element = SoPreferenceStore::getInstance()->defaultElements(m_group).value(currentName());
        showCurrent();
    }
}

void ElementEditor::showCurrent()
{
    const DisplayElement* const element = current();
    if (!element)
        return;
    const QFont& font = element->font;
    if (m_comboFamily->findText(font.family()) < 0)
        m_comboFamily->addItem(font.family()); // chosen where that font is installed
    showIn(m_comboFamily, &QComboBox::setCurrentText, font.family());
    showIn(m_spinSize, &QSpinBox::setValue, font.pointSize());
    showIn<QAbstractButton>(m_checkBold, &QAbstractButton::setChecked, font.bold());
    showIn<QAbstractButton>(m_checkItalic, &QAbstractButton::setChecked, font.italic());
    showIn<QAbstractButton>(m_checkUnderline, &QAbstractButton::setChecked, font.underline());
    showPreview(*element);
    emit currentElementChanged(*element);
}

void ElementEditor::showPreview(const DisplayElement& element)
{
    m_editPreview->setFont(element.font);
    QPalette palette = m_editPreview->palette();
    const QColor base = this->palette().color(QPalette::Base);
    const bool isReadable = ReadableColor::isReadable(element.color, base);
    for (const QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive}) {
        palette.setBrush(group, QPalette::Text, element.color);
        palette.setBrush(group, QPalette::WindowText, element.color);
        palette.setColor(group, QPalette::Base, isReadable ? base : ReadableColor::on(element.color, base));
    }
    m_editPreview->setPalette(palette);
    m_buttonColor->setIcon(ColorChoice::swatch(element.color, m_buttonColor->iconSize(), *m_buttonColor));
}
