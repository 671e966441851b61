#pragma once

#include <nodescope/NodescopeApi.h>

#include "ui_QTreeViewPreferences.h"

/** The preferences page of the tree view. */
class NODESCOPE_API SoTreeViewPreferences : public QWidget, private Ui::QTreeViewPreferences {
    Q_OBJECT
public:
    explicit SoTreeViewPreferences(QWidget* parent = nullptr);

    ElementEditor& elementEditor() const { return *m_syntaxGroupBox; }

signals:
    /** The store has new values: read them. */
    void saved();

public slots:
    /** Shows what the store has. */
    void reInit();
    /** Writes what the user chose into the store. */
    void save();

private:
    void showElement(const DisplayElement& element);
};
