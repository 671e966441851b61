#pragma once

#include <QLineEdit>
#include <functional>

/**
 * A line of text that must be of some form. What is typed counts when Return is pressed or the focus goes elsewhere;
 * Escape takes it back. A text of another form is marked and does not count.
 */
class CheckedLine : public QLineEdit {
    Q_OBJECT
public:
    /** Why a text is not of the form, in a sentence; empty: it is. */
    using Check = std::function<QString(const QString& text)>;

    explicit CheckedLine(Check check, QWidget* parent = nullptr);

    /** The frame around the line that is marked in its place. */
    void setFrameWidget(QWidget& widget) { m_marked = &widget; }
    /** Shows a text, unless the user is typing one. */
    void showText(const QString& text);
    /** Drops what the user is typing. */
    void forget();

signals:
    void taken(const QString& text);
    /** Empty: the text is of the form. */
    void problemChanged(const QString& problem);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    void takeText();
    void showProblem(const QString& problem);

    Check m_check;
    QString m_shown;
    QString m_problem;
    QWidget* m_marked = this;
};
