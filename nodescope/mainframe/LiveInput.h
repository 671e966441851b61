#pragma once

#include <nodescope/NodescopeApi.h>
#include <vexel/io/SoInput.h>

#include <QPointer>
#include <QProgressDialog>
#include <QString>

/** A scene file whose reading the user can watch in a progress dialog. The dialog goes with it. */
class NODESCOPE_API LiveInput : public SoInput {
public:
    /** Names the file in the dialog; it is opened by openFile(). */
    LiveInput(const QString& fileName, QWidget* dialogParent);
    ~LiveInput() override;

protected:
    void progressChanged(double percent) override;

private:
    QPointer<QProgressDialog> m_dialog; ///< its parent may delete it first
};
