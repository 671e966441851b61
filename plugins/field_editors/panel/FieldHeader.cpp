#include "FieldHeader.h"

#include <plugins/field_editors/edit/FieldCommand.h>
#include <plugins/field_editors/values/ProblemLine.h>
#include <plugins/field_editors/values/ReferenceText.h>
#include <vexel/base/SbString.h>
#include <vexel/engines/SoEngine.h>
#include <vexel/engines/SoEngineOutput.h>
#include <vexel/fields/SoFieldContainer.h>

#include <QAction>
#include <QClipboard>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QIcon>
#include <QLabel>
#include <QToolButton>

namespace {

constexpr int Icon_size = 18;

QString sourceText(const SoField& field)
{
    if (const SoField* const source = field.getConnectedField())
        return ReferenceText::of(source->getContainer()) + QLatin1Char('.') + source->getName().toQString();
    if (const SoEngineOutput* const output = field.getConnectedEngine())
        return ReferenceText::of(output->getContainer()) + QLatin1Char('.') + output->getName().toQString();
    return QString();
}

QToolButton* newButton(QAction& action)
{
    auto* const button = new QToolButton;
    button->setDefaultAction(&action);
    button->setAutoRaise(true);
    button->setIconSize(QSize(Icon_size, Icon_size));
    return button;
}

} // namespace

FieldHeader::FieldHeader(QWidget* parent)
    : QWidget(parent), m_name(new QLabel), m_owner(new QLabel), m_state(new QLabel), m_source(new QLabel),
      m_connection(new QWidget), m_problem(new ProblemLine), m_cut(new QToolButton)
{
    QFont bold = m_name->font();
    bold.setBold(true);
    m_name->setFont(bold);
    m_name->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_owner->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred); // a long name does not widen the panel
    m_state->setEnabled(false);                                           // it is no value
    m_source->setWordWrap(true);
    m_cut->setIcon(QIcon(QStringLiteral(":/Field_editor_icons/disconnect.png")));
    m_cut->setText(tr("Cut"));
    m_cut->setToolTip(tr("Cut the connection; the field keeps the value that it has now"));
    m_cut->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    connect(m_cut, &QToolButton::clicked, &m_binding, &FieldBinding::cutConnection);

    auto* const title = new QHBoxLayout;
    title->addWidget(m_name, 1);
    m_reset = addAction("reset", tr("Reset"), tr("Give the field its default value"), *title);
    m_copy = addAction("copy", tr("Copy"), tr("Copy the value as text"), *title);
    m_paste = addAction("paste", tr("Paste"), tr("Paste a value that was copied as text"), *title);
    m_ignore = addAction("ignore", tr("Ignore"), tr("Ignore the field in traversals"), *title);
    m_ignore->setCheckable(true);
    connect(m_reset, &QAction::triggered, this, &FieldHeader::reset);
    connect(m_copy, &QAction::triggered, this, &FieldHeader::copy);
    connect(m_paste, &QAction::triggered, this, &FieldHeader::paste);
    connect(m_ignore, &QAction::triggered, &m_binding, &FieldBinding::setIgnored);
    auto* const connection = new QHBoxLayout(m_connection);
    connection->setContentsMargins(0, 0, 0, 0);
    connection->addWidget(m_source, 1);
    connection->addWidget(m_cut);
    auto* const rows = new QVBoxLayout(this);
    rows->setSpacing(2);
    rows->addLayout(title);
    auto* const facts = new QHBoxLayout;
    facts->addWidget(m_owner, 1);
    facts->addWidget(m_state);
    rows->addLayout(facts);
    rows->addWidget(m_connection);
    rows->addWidget(m_problem);
    connect(&m_binding, &FieldBinding::fieldChanged, this, &FieldHeader::showField);
    connect(&m_binding, &FieldBinding::valueChanged, this, &FieldHeader::showState);
}

FieldHeader::~FieldHeader() = default;

QAction* FieldHeader::addAction(const char* icon, const QString& text, const QString& tip, QLayout& bar)
{
    auto* const action = new QAction(QIcon(QStringLiteral(":/Field_editor_icons/%1.png").arg(icon)), text, this);
    action->setObjectName(icon);
    action->setToolTip(tip);
    bar.addWidget(newButton(*action));
    return action;
}

void FieldHeader::showField()
{
    m_problem->setProblem(QString());
    const SoField* const field = m_binding.field();
    if (!field)
        return;
    m_hasDefaultValue = m_binding.hasDefaultValue();
    m_name->setText(field->getName().toQString());
    m_owner->setText(
        tr("%1 of %2").arg(field->getTypeId().getName().toQString(), ReferenceText::of(field->getContainer())));
    showState();
}

void FieldHeader::showState()
{
    const SoField* const field = m_binding.field();
    if (!field)
        return;
    const bool isEditable = m_binding.isEditable();
    m_reset->setEnabled(isEditable && !field->isDefault() && m_hasDefaultValue);
    m_copy->setEnabled(!field->holdsReferences());
    m_paste->setEnabled(isEditable);
    m_ignore->setChecked(field->isIgnored());
    QStringList states;
    if (field->getFieldType() == SoField::OUTPUT_ONLY)
        states += tr("output, read-only");
    if (field->isDefault())
        states += tr("default value");
    if (field->isIgnored())
        states += tr("ignored");
    m_state->setText(states.join(QStringLiteral(", ")));
    m_state->setVisible(!states.isEmpty());
    showConnection(*field);
}

void FieldHeader::showConnection(const SoField& field)
{
    const QString source = sourceText(field);
    m_source->setText(tr("Connected from %1").arg(source));
    m_connection->setVisible(!source.isEmpty());
}

void FieldHeader::reset()
{
    m_problem->setProblem(QString());
    m_binding.resetValue();
}

void FieldHeader::copy()
{
    QGuiApplication::clipboard()->setText(m_binding.field()->get().toQString());
}

void FieldHeader::paste()
{
    const std::unique_ptr<SoField> value = copyOf(*m_binding.field());
    const bool isValue = value->set(SbString(QGuiApplication::clipboard()->text()));
    const QString type = value->getTypeId().getName().toQString();
    m_problem->setProblem(isValue ? QString() : tr("The clipboard holds no value of type %1.").arg(type));
    if (isValue)
        m_binding.setValue(*value);
}
