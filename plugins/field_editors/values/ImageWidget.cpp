#include "ImageWidget.h"

#include "ImageFile.h"
#include "ImagePreview.h"

#include <QFileDialog>
#include <QHBoxLayout>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QVBoxLayout>

ImageWidget::ImageWidget(QWidget* parent)
    : ValueWidget(parent), m_preview(new ImagePreview), m_kind(new QLabel), m_load(new QPushButton(tr("Load..."))),
      m_save(new QPushButton(tr("Save..."))), m_clear(new QPushButton(tr("Clear")))
{
    layOut();
    m_load->setToolTip(tr("Take the image from a file"));
    m_save->setToolTip(tr("Save the image to a file"));
    m_clear->setToolTip(tr("Take the image away"));
    connect(m_load, &QPushButton::clicked, this, &ImageWidget::chooseToLoad);
    connect(m_save, &QPushButton::clicked, this, &ImageWidget::chooseToSave);
    connect(m_clear, &QPushButton::clicked, this, [this] { emit edited(SoSFImage()); });
}

void ImageWidget::layOut()
{
    auto* const buttons = new QHBoxLayout;
    for (QPushButton* button : {m_load, m_save, m_clear})
        buttons->addWidget(button);
    buttons->addStretch();
    auto* const rows = new QVBoxLayout(this);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->addLayout(buttons);
    rows->addWidget(m_kind);
    rows->addWidget(m_preview, 1);
}

void ImageWidget::showValue(const SoField& value)
{
    const auto& image = static_cast<const SoSFImage&>(value);
    const QString kinds[] = {QString(), tr("gray"), tr("gray and alpha"), tr("RGB"), tr("RGBA")};
    const SbVec2i32 size = image.getSize();
    m_kind->setText(image.isEmpty() ? tr("No image")
                                    : tr("%1 x %2, %3").arg(size[0]).arg(size[1]).arg(kinds[image.getNumComponents()]));
    m_preview->setImage(&image);
    m_preview->setAccessibleName(m_kind->text());
    updateButtons();
}

void ImageWidget::setReadOnly(bool isReadOnly)
{
    m_isReadOnly = isReadOnly;
    updateButtons();
}

void ImageWidget::updateButtons()
{
    const bool hasImage = m_preview->image() && !m_preview->image()->isEmpty();
    m_load->setEnabled(!m_isReadOnly);
    m_save->setEnabled(hasImage);
    m_clear->setEnabled(hasImage && !m_isReadOnly);
}

void ImageWidget::forgetInput()
{
    if (m_dialog)
        m_dialog->close();
}

void ImageWidget::chooseToLoad()
{
    auto* const dialog = new QFileDialog(this, tr("Load Image"));
    dialog->setFileMode(QFileDialog::ExistingFile);
    dialog->setNameFilters(ImageFile::loadFilters());
    openDialog(*dialog, &ImageWidget::load);
}

void ImageWidget::chooseToSave()
{
    auto* const dialog = new QFileDialog(this, tr("Save Image"));
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setNameFilters(ImageFile::saveFilters());
    dialog->setDefaultSuffix(QStringLiteral("png"));
    openDialog(*dialog, &ImageWidget::save);
}

void ImageWidget::openDialog(QFileDialog& dialog, void (ImageWidget::*take)(const QString& fileName))
{
    m_dialog = &dialog;
    dialog.setAttribute(Qt::WA_DeleteOnClose);
    connect(&dialog, &QFileDialog::fileSelected, this, take);
    dialog.open();
}

void ImageWidget::load(const QString& fileName)
{
    SoSFImage image;
    const QString problem = ImageFile::load(fileName, image);
    if (problem.isEmpty())
        emit edited(image);
    else
        report(tr("Load Image"), problem);
}

void ImageWidget::save(const QString& fileName)
{
    if (!m_preview->image())
        return;
    const QString problem = ImageFile::save(fileName, *m_preview->image());
    if (!problem.isEmpty())
        report(tr("Save Image"), problem);
}

void ImageWidget::report(const QString& title, const QString& problem)
{
    auto* const box = new QMessageBox(QMessageBox::Warning, title, problem, QMessageBox::Ok, this);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->open();
}
