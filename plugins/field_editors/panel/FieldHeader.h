#pragma once

#include <QWidget>
#include <plugins/field_editors/edit/FieldBinding.h>

class ProblemLine;
class QAction;
class QLabel;
class QToolButton;

/** What all editors have in common: which field it is, where its value comes from, and what can be done with any. */
class FieldHeader : public QWidget {
    Q_OBJECT
public:
    explicit FieldHeader(QWidget* parent = nullptr);
    ~FieldHeader() override;

    void setField(SoField* field) { m_binding.setField(field); }

public slots:
    void reset();
    /** The value's file text, to and from the clipboard. */
    ///@{
    void copy();
    void paste();
    ///@}

private:
    QAction* addAction(const char* icon, const QString& text, const QString& tip, QLayout& bar);
    void showField();
    void showState();
    void showConnection(const SoField& field);

    FieldBinding m_binding;
    bool m_hasDefaultValue = false; ///< found out once for a field, with an object that is made for that
    QLabel* m_name;
    QLabel* m_owner;
    QLabel* m_state;
    QLabel* m_source;
    QWidget* m_connection;
    ProblemLine* m_problem;
    QAction* m_reset;
    QAction* m_copy;
    QAction* m_paste;
    QAction* m_ignore;
    QToolButton* m_cut;
};
