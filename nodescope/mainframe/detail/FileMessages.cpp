#include "FileMessages.h"

namespace {

/** A message box; texts with file names in them are never taken for rich text. */
class Box : public QMessageBox {
public:
    Box(QWidget* parent, Icon icon, const QString& title, const QString& text, StandardButtons buttons = Ok)
        : QMessageBox(icon, title, text, buttons, parent)
    {
        setTextFormat(Qt::PlainText);
    }

    StandardButton ask() { return StandardButton(exec()); }
};

} // namespace

QMessageBox::StandardButton FileMessages::askAboutChanges(QWidget* parent, const QString& file)
{
    const QString text = tr("Save changes ") + (file.isEmpty() ? QString() : tr("to %1").arg(file));
    Box box(parent, Box::Information, tr("Nodescope -- Unsaved Changes"), text, Box::Yes | Box::No | Box::Cancel);
    box.setDefaultButton(Box::Yes);
    box.setEscapeButton(Box::No);
    return box.ask();
}

bool FileMessages::askToOverwrite(QWidget* parent, const QString& file)
{
    Box box(parent, Box::Question, tr("Nodescope -- Overwrite File"), tr("Overwrite\n'%1'?").arg(file),
            Box::Yes | Box::No);
    box.setDefaultButton(Box::No);
    return box.ask() == Box::Yes;
}

void FileMessages::showReadErrors(QWidget* parent, const QString& text, const QString& details)
{
    Box box(parent, Box::Warning, tr("NodescopeReadFile"), text);
    box.setDetailedText(details);
    box.ask();
}

void FileMessages::showFileIsGone(QWidget* parent, const QString& file)
{
    Box(parent, Box::Critical, tr("Nodescope -- Load File"),
        tr("Can't load '%1'. \n This file doesn't exist anymore.").arg(file))
        .ask();
}

void FileMessages::showCannotCreate(QWidget* parent, const QString& file)
{
    Box(parent, Box::Warning, tr("File Error Dialog"), tr("Error creating file: ") + file).ask();
}

void FileMessages::showCannotFinish(QWidget* parent, const QString& file, const QString& reason)
{
    Box(parent, Box::Warning, tr("File Error Dialog"),
        tr("Error writing file: %1\n%2\nThe file is as it was before.").arg(file, reason))
        .ask();
}
