#pragma once

#include <nodescope/NodescopeApi.h>

#include <QDialog>

#include <array>

class QCheckBox;
class QComboBox;
class QRadioButton;

/**
 * Asks what to look for in the tree. While it is shown, it takes the place of the main window's find box: it begins
 * with the text of the box and gives its own back. Its settings hold while it is hidden, too.
 */
class NODESCOPE_API NscFindDialog : public QDialog {
    Q_OBJECT
public:
    /** @param findBox  the find box of the main window; it must live as long as the dialog is used */
    NscFindDialog(QComboBox* findBox, QWidget* parent);

    /** Where to look: a column of NodeSearch. */
    int column() const;
    /** How to look: a bit set of NodeSearch. */
    int flags() const;
    QString text() const;

public slots:
    void setFlags(int flags);
    /** Nothing for a number that is no column. */
    void setColumn(int column);
    void setText(const QString& text);
    /** Takes the keyboard; all text is selected, so that typing replaces it. */
    void setFocus();

signals:
    /** The user pressed Find. */
    void findRequested();

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    QWidget* makeWhatGroup();
    QWidget* makeOptionGroup();
    QLayout* makeButtons();

    QComboBox* m_findBox;
    QComboBox* m_findWhat = nullptr;
    std::array<QRadioButton*, 4> m_columns{}; ///< in the order of the columns
    std::array<QCheckBox*, 3> m_flags{};      ///< in the order of the bits
};
