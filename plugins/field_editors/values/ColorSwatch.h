#pragma once

#include <QAbstractButton>
#include <QPointer>

class QColorDialog;

/** A button that shows a colour and lets the user choose another one in a dialog, which counts while he chooses. */
class ColorSwatch : public QAbstractButton {
    Q_OBJECT
public:
    explicit ColorSwatch(QWidget* parent = nullptr);

    void setColor(const QColor& color);
    void setReadOnly(bool isReadOnly);
    /** Closes the dialog; what was chosen so far stays. */
    void closeDialog();
    QSize sizeHint() const override;

signals:
    void choiceBegun();
    void chosen(const QColor& color);
    /** One of the two follows choiceBegun(). */
    ///@{
    void choiceEnded();
    void choiceCancelled();
    ///@}

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void openDialog();

    QColor m_color;
    bool m_isReadOnly = false;
    QPointer<QColorDialog> m_dialog;
};
