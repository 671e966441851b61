#pragma once

#include <QCoreApplication>

class SbName;
class SoNode;

/** What the user is told when an edit is refused. */
class EditMessages {
    Q_DECLARE_TR_FUNCTIONS(EditMessages)
public:
    EditMessages() = delete;

    static void showCannotDelete(const SoNode& node);
    static void showCannotDeleteContainer();
    static void showCannotDeletePart(const SbName& part);
    static void showCannotSetPart(const SbName& part);
    static void showCannotAdd();
    static void showClipboardFull();
};
