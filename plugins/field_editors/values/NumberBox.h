#pragma once

#include <QAbstractSpinBox>
#include <plugins/field_editors/values/NumberText.h>

/**
 * A number that is typed, or stepped with arrow keys, arrow buttons and wheel: by 1, with Shift by 10, with Alt by 0.1
 * (whole numbers by 1). What is typed counts when Return is pressed or the focus goes elsewhere; Escape takes it back.
 */
class NumberBox : public QAbstractSpinBox {
    Q_OBJECT
public:
    explicit NumberBox(const NumberKind& kind, QWidget* parent = nullptr);

    double value() const { return m_value; }
    /** Shows a number, unless the user is typing one. */
    void setValue(double value);
    /** Drops what the user is typing. */
    void forgetInput();
    /** What an arrow key without a modifier adds; 1 at first. */
    void setStep(double step) { m_step = step; }

    void stepBy(int steps) override;
    QValidator::State validate(QString& text, int& position) const override;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

public slots:
    /** As by the user, from `start` on: what a drag of so many pixels gives. */
    void dragTo(double start, int pixels);

signals:
    void edited(double value);
    void gestureBegun();
    void gestureEnded();
    /** Empty: the text is a number. */
    void problemChanged(const QString& problem);

protected:
    StepEnabled stepEnabled() const override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    double stepWithModifiers() const;
    void edit(double value);
    void takeText();
    void showProblem(const QString& problem);
    void setGesture(bool isOn);

    NumberKind m_kind;
    double m_value = 0;
    double m_step = 1;
    QString m_shown;
    QString m_problem;
    bool m_isInGesture = false;
};
