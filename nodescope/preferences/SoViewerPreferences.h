#pragma once

#include <nodescope/NodescopeApi.h>

#include "ui_QViewerPreferences.h"

class QButtonGroup;

/** The preferences page of the 3D view: how transparency is drawn, and the colour behind the scene. */
class NODESCOPE_API SoViewerPreferences : public QWidget, private Ui::QViewerPreferences {
    Q_OBJECT
public:
    explicit SoViewerPreferences(QWidget* parent = nullptr);

signals:
    /** The store has new values: read them. */
    void saved();

public slots:
    /** Shows what the store has. */
    void reInit();
    /** Writes what the user chose into the store. */
    void save();
    /** Takes the type of transparency that the button stands for. */
    void transparencyButtonClicked(QAbstractButton* button);

private:
    void chooseBackground();
    void showBackground();

    QButtonGroup* m_transparencyButtons; ///< its ids are values of SoGLRenderAction::TransparencyType
    int m_transparencyType;
    QColor m_background;
};
