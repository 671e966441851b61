#pragma once

#include <nodescope/NodescopeApi.h>

#include "ui_QAboutNodescopeDlg.h"

/** The about box: two pictures, the name, and which build this is. Modal. */
class NODESCOPE_API SoAboutNodescope : public QDialog, private Ui::QAboutNodescopeDlg {
    Q_OBJECT
public:
    explicit SoAboutNodescope(QWidget* parent = nullptr);
};
