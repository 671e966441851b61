#pragma once

#include <QPointer>
#include <plugins/field_editors/values/ValueWidget.h>

class ImagePreview;
class QDialog;
class QFileDialog;
class QLabel;
class QPushButton;

/** An image: a look at it, its size and kind; it is loaded from a file, saved to one, and taken away. */
class ImageWidget : public ValueWidget {
    Q_OBJECT
public:
    explicit ImageWidget(QWidget* parent = nullptr);

    void showValue(const SoField& value) override;
    void setReadOnly(bool isReadOnly) override;
    void forgetInput() override;

private:
    void layOut();
    void updateButtons();
    void chooseToLoad();
    void chooseToSave();
    void openDialog(QFileDialog& dialog, void (ImageWidget::*take)(const QString& fileName));
    void load(const QString& fileName);
    void save(const QString& fileName);
    void report(const QString& title, const QString& problem);

    ImagePreview* m_preview;
    QLabel* m_kind;
    QPushButton* m_load;
    QPushButton* m_save;
    QPushButton* m_clear;
    QPointer<QDialog> m_dialog;
    bool m_isReadOnly = false;
};
