#pragma once

#include <QObject>
#include <string>

/** A run that nobody watches: messages go to the standard error output instead of waiting for an answer. */
class UnattendedRun : public QObject {
public:
    UnattendedRun();

    /** Draws the main window and writes its picture; false, with a message, when that fails. */
    static bool writeScreenshot(const std::string& file);

    bool eventFilter(QObject* watched, QEvent* event) override;
};
