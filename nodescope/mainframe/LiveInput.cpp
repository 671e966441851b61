#include "LiveInput.h"

#include <QCoreApplication>

LiveInput::LiveInput(const QString& fileName, QWidget* dialogParent)
    : m_dialog(new QProgressDialog(QCoreApplication::translate("LiveInput", "Loading ") + fileName,
                                   QCoreApplication::translate("LiveInput", "Cancel"), 0, 100, dialogParent))
{
    m_dialog->setCancelButton(nullptr); // reading cannot be stopped half-way
    m_dialog->setWindowModality(Qt::WindowModal);
    m_dialog->setValue(0);
}

LiveInput::~LiveInput()
{
    delete m_dialog;
}

void LiveInput::progressChanged(double percent)
{
    if (m_dialog)
        m_dialog->setValue(int(percent));
}
