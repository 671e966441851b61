#pragma once

#include <nodescope/NodescopeApi.h>

#include "ui_QFieldWatchPreferences.h"

/** The preferences page of the field watch. */
class NODESCOPE_API SoFieldWatchPreferences : public QWidget, private Ui::QFieldWatchPreferences {
    Q_OBJECT
public:
    explicit SoFieldWatchPreferences(QWidget* parent = nullptr);

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
