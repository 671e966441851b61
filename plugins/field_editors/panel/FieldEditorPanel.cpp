#include "FieldEditorPanel.h"

#include "FieldHeader.h"

#include <extension/NscFieldEditor.h>
#include <extension/NscServices.h>
#include <extension/NscShell.h>
#include <vexel/fields/SoField.h>

#include <QDockWidget>
#include <QEvent>
#include <QLabel>
#include <QScrollArea>
#include <QVBoxLayout>
#include <utility>

namespace {

/** Asks for a height in which most editors need not be scrolled, also before one is shown. */
class PanelContent : public QWidget {
public:
    QSize sizeHint() const override
    {
        constexpr int Lines = 26;
        return {QWidget::sizeHint().width(), fontMetrics().lineSpacing() * Lines};
    }
};

} // namespace

FieldEditorPanel::FieldEditorPanel(Info info)
    : NscExtension(std::move(info)), m_dock(new QDockWidget(tr("Field Editor"))), m_header(new FieldHeader),
      m_place(new QScrollArea), m_hint(new QLabel(tr("Select a field to edit it here.")))
{
    m_dock->setObjectName(QStringLiteral("FieldEditor"));
    m_dock->installEventFilter(this);
    m_place->setWidgetResizable(true);
    m_place->setFrameShape(QFrame::NoFrame);
    m_hint->setAlignment(Qt::AlignCenter);
    m_hint->setWordWrap(true);
    m_hint->setEnabled(false); // it is no value
    auto* const content = new PanelContent;
    auto* const rows = new QVBoxLayout(content);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(0);
    rows->addWidget(m_header);
    rows->addWidget(m_hint, 1);
    rows->addWidget(m_place, 1);
    m_dock->setWidget(content);
    setField(nullptr);
}

FieldEditorPanel::~FieldEditorPanel()
{
    showEditor(nullptr);
    m_dock->removeEventFilter(this);
    if (NscShell* const shell = NscShell::getInstance()) {
        shell->removeViewToggle(this);
        shell->removeDockWidget(m_dock);
    }
    delete m_dock;
}

void FieldEditorPanel::activate()
{
    NscShell& shell = *NscShell::getInstance();
    shell.addViewToggle(this, false);
    shell.addDockWidget(m_dock, Qt::RightDockWidgetArea);
    NscServices& services = *NscServices::getInstance();
    connect(&services, &NscServices::selectedFieldChanged, this, &FieldEditorPanel::setField);
    setField(services.getSelectedField());
}

void FieldEditorPanel::show()
{
    m_dock->show();
    m_dock->raise();
}

void FieldEditorPanel::hide()
{
    m_dock->hide();
}

bool FieldEditorPanel::eventFilter(QObject* watched, QEvent* event)
{
    // However the dock was shown or closed, its entry in the menu follows.
    if (watched == m_dock && (event->type() == QEvent::ShowToParent || event->type() == QEvent::HideToParent))
        NscShell::getInstance()->setViewToggle(this, !m_dock->isHidden());
    return NscExtension::eventFilter(watched, event);
}

void FieldEditorPanel::setField(SoField* field)
{
    showEditor(field ? findEditor(field->getTypeId()) : nullptr);
    m_header->setField(field);
    if (m_editor)
        m_editor->setField(field);
    m_header->setVisible(field);
    m_place->setVisible(m_editor);
    m_hint->setVisible(!m_editor);
    m_hint->setText(field ? tr("There is no editor for fields of this type.") : tr("Select a field to edit it here."));
}

void FieldEditorPanel::showEditor(NscFieldEditor* editor)
{
    if (m_editor == editor)
        return;
    if (QWidget* const shown = m_place->takeWidget())
        shown->setParent(nullptr);
    if (m_editor)
        m_editor->setField(nullptr);
    m_editor = editor;
    if (m_editor)
        m_place->setWidget(m_editor->getWidget());
}

NscFieldEditor* FieldEditorPanel::findEditor(SoType type)
{
    const std::vector<NscExtension*> extensions = NscShell::getInstance()->getExtensions(type);
    // Those for exactly this type are the last.
    for (auto extension = extensions.rbegin(); extension != extensions.rend(); ++extension) {
        if (auto* const editor = qobject_cast<NscFieldEditor*>(*extension))
            return editor;
    }
    return nullptr;
}
