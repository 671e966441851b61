#include "SoViewerPreferences.h"
#include "SoPreferenceStore.h"
#include "detail/ColorChoice.h"

#include <vexel/actions/SoGLRenderAction.h>

#include <QButtonGroup>
#include <QPointer>

namespace {

constexpr QSize Swatch_size(48, 24);

} // namespace

SoViewerPreferences::SoViewerPreferences(QWidget* parent)
    : QWidget(parent), m_transparencyButtons(new QButtonGroup(this)),
      m_transparencyType(SoGLRenderAction::SORTED_OBJECT), m_background(SoPreferenceStore::defaultBackground())
{
    setupUi(this);
    m_transparencyButtons->addButton(m_radioNoSort, SoGLRenderAction::NO_SORT);
    m_transparencyButtons->addButton(m_radioOpaqueFirst, SoGLRenderAction::OPAQUE_FIRST);
    m_transparencyButtons->addButton(m_radioSortedObject, SoGLRenderAction::SORTED_OBJECT);
    m_transparencyButtons->addButton(m_radioSortedPixel, SoGLRenderAction::SORTED_PIXEL);
    connect(m_transparencyButtons, SIGNAL(buttonClicked(QAbstractButton*)), this,
            SLOT(transparencyButtonClicked(QAbstractButton*)));
    connect(m_backgroundButton, &QPushButton::clicked, this, &SoViewerPreferences::chooseBackground);
}

void SoViewerPreferences::reInit()
{
    const SoPreferenceStore& store = *SoPreferenceStore::getInstance();
    m_transparencyType = store.readTransparencyType();
    m_transparencyButtons->button(m_transparencyType)->setChecked(true);
    m_background = store.readBackground();
    showBackground();
}

void SoViewerPreferences::save()
{
    SoPreferenceStore& store = *SoPreferenceStore::getInstance();
    store.writeTransparencyType(m_transparencyType);
    store.writeBackground(m_background);
    emit saved();
}

void SoViewerPreferences::transparencyButtonClicked(QAbstractButton* button)
{
    m_transparencyType = m_transparencyButtons->id(button);
}

void SoViewerPreferences::chooseBackground()
{
    const QPointer<SoViewerPreferences> self(this);
    const QColor color = ColorChoice::ask(m_background, "viewer_getcolor_dlg", this);
    if (!self)
        return;
    m_background = color;
    showBackground();
}

void SoViewerPreferences::showBackground()
{
    m_bacgroundLabel->setPixmap(ColorChoice::swatch(m_background, Swatch_size, *m_bacgroundLabel));
}
