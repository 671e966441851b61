#pragma once

#include <nodescope/NodescopeApi.h>

#include "ui_QNodeOverviewPreferences.h"

/** The preferences page of the node overview. */
class NODESCOPE_API SoNodeOverviewPreferences : public QWidget, private Ui::QNodeOverviewPreferences {
    Q_OBJECT
public:
    explicit SoNodeOverviewPreferences(QWidget* parent = nullptr);

    ElementEditor& elementEditor() const { return *m_syntaxGroupBox; }

signals:
    /** The store has new values: read them. */
    void saved();

public slots:
    /** Shows what the store has. */
    void reInit();
    /** Writes what the user chose into the store. */
    void save();
};
