#pragma once

#include <QCoreApplication>
#include <QMessageBox>

/** The questions and messages about scene files. */
class FileMessages {
    Q_DECLARE_TR_FUNCTIONS(FileMessages)
public:
    FileMessages() = delete;

    /** Whether to save what was changed; `file` is empty for a scene without one. */
    static QMessageBox::StandardButton askAboutChanges(QWidget* parent, const QString& file);
    static bool askToOverwrite(QWidget* parent, const QString& file);
    /** @param details  the whole text when `text` is not all of it */
    static void showReadErrors(QWidget* parent, const QString& text, const QString& details);
    static void showFileIsGone(QWidget* parent, const QString& file);
    static void showCannotCreate(QWidget* parent, const QString& file);
    static void showCannotFinish(QWidget* parent, const QString& file, const QString& reason);
};
