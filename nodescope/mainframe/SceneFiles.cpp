#include "SceneFiles.h"
#include "LiveInput.h"
#include "RecentFilesMenu.h"
#include "SceneDocument.h"
#include "SoNodescopeMainFrame.h"
#include "detail/FileMessages.h"
#include "detail/NodeKeeper.h"
#include "detail/ReadErrors.h"

#include <vexel/actions/SoWriteAction.h>
#include <vexel/base/SbFileHelper.h>
#include <vexel/io/SoDB.h>
#include <vexel/io/SoOutput.h>
#include <vexel/nodes/SoSeparator.h>

#include <QAction>
#include <QFileDialog>
#include <QFileInfo>

namespace {

constexpr char Scene_extension[] = ".vx";

/** Makes the files that a scene refers to be found beside it. */
void searchBesideFile(SoInput& input)
{
    const SbString folder = SbFileHelper::getDirName(input.getCurFileName());
    if (folder.isEmpty())
        return;
    input.removeDirectory(folder);
    input.addDirectoryLast(folder);
}

bool isBinaryFile(const QString& file)
{
    SoInput input;
    return input.openFile(file, true) && input.isBinary();
}

/** The name up to its last dot; dots of folders do not count. */
QString withoutExtension(const QString& file)
{
    const int dot = file.lastIndexOf('.');
    return dot > file.lastIndexOf('/') ? file.left(dot) : file;
}

bool isSceneName(const QString& file)
{
    return QFileInfo(file).fileName().contains(QLatin1String(Scene_extension), Qt::CaseInsensitive);
}

QString filterText(const char* format)
{
    return QStringLiteral("Vexel Files [%1] (*.vx *.vxz *.vx.gz)").arg(format);
}

} // namespace

void SceneFiles::setScene(SoNode* scene, bool clearsUndo)
{
    m_document.setSceneGraph(scene, clearsUndo);
}

bool SceneFiles::newScene()
{
    if (!mayDiscardChanges())
        return false;
    setCurrentFile(QString());
    auto* root = new SoSeparator;
    const NodeKeeper keeper(root);
    m_document.setSceneGraph(root, true);
    return true;
}

void SceneFiles::openFile(const QString& file)
{
    ReadErrors errors;
    load(file, std::make_unique<LiveInput>(file, &m_frame));
    errors.show(&m_frame);
}

void SceneFiles::load(const QString& file, std::unique_ptr<SoInput> input)
{
    if (!input->openFile(file))
        return;
    searchBesideFile(*input);
    const QString fullName = input->getCurFileName().toQString();
    SoNode* const root = SoDB::readAll(input.get());
    const NodeKeeper keeper(root); // the input holds what it has read only while it is open
    input.reset();
    if (!root)
        return;
    m_document.setSceneGraph(root, true);
    useAsCurrentFile(fullName);
    m_frame.action(ActionId::Reload)->setEnabled(true);
}

void SceneFiles::openRecentFile(const QString& file)
{
    if (!mayDiscardChanges())
        return;
    if (QFileInfo::exists(file))
        openFile(file);
    else
        FileMessages::showFileIsGone(&m_frame, file);
}

void SceneFiles::reload()
{
    if (!m_currentFile.isEmpty())
        openRecentFile(m_currentFile);
}

void SceneFiles::save()
{
    if (m_currentFile.isEmpty())
        saveAs(nullptr);
    else if (!write(m_document.scene(), m_currentFile, WriteMode::KeepFormat, false))
        setCurrentFile(QString());
}

void SceneFiles::saveAs(SoNode* subgraph)
{
    const QString ascii = filterText("ascii");
    const QString binary = filterText("binary");
    const QString proposal = m_currentFile.isEmpty() ? "./Untitled File" : withoutExtension(m_currentFile);
    QString filter = ascii;
    // Whether a file would be overwritten shows only when the name is complete.
    QString file = QFileDialog::getSaveFileName(&m_frame, FileMessages::tr("Nodescope -- Save As"), proposal,
                                                ascii + ";;" + binary, &filter, QFileDialog::DontConfirmOverwrite);
    if (file.isEmpty())
        return;
    if (!isSceneName(file))
        file += Scene_extension;
    if (QFileInfo::exists(file) && !FileMessages::askToOverwrite(&m_frame, file))
        return;
    const WriteMode mode = filter == binary ? WriteMode::Binary : WriteMode::Ascii;
    if (subgraph)
        write(subgraph, file, mode, false);
    else if (write(m_document.scene(), file, mode, true))
        useAsCurrentFile(file);
}

bool SceneFiles::write(SoNode* node, const QString& file, WriteMode mode, bool setAsScene)
{
    if (!node)
        return false;
    const NodeKeeper keeper(node);
    SoOutput output;
    output.setBinary(mode == WriteMode::KeepFormat ? isBinaryFile(file) : mode == WriteMode::Binary);
    if (!output.openFile(file)) {
        FileMessages::showCannotCreate(&m_frame, file);
        return false;
    }
    SoWriteAction(&output).apply(node);
    if (!output.closeFile()) {
        FileMessages::showCannotFinish(&m_frame, file, output.getError().toQString());
        return false;
    }
    if (setAsScene)
        m_document.setSceneGraph(node, true);
    return true;
}

bool SceneFiles::mayDiscardChanges()
{
    if (!m_document.isModified())
        return true;
    const auto answer = FileMessages::askAboutChanges(&m_frame, m_currentFile);
    if (answer == QMessageBox::Yes)
        save();
    return answer != QMessageBox::Cancel;
}

void SceneFiles::setCurrentFile(const QString& file)
{
    m_currentFile = file;
    m_frame.setWindowTitle(file.isEmpty() ? FileMessages::tr("Nodescope")
                                          : FileMessages::tr("Nodescope -- %1").arg(file));
}

void SceneFiles::useAsCurrentFile(const QString& file)
{
    setCurrentFile(file);
    m_frame.recentFiles()->addFile(file);
}
