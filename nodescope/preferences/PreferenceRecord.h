#pragma once

#include <QByteArray>
#include <QString>

class QObject;
class QWidget;

/** A page of the preferences dialog, and who loads and saves it. */
struct PreferenceRecord {
    QWidget* page;       ///< not owned
    QString name;        ///< its entry in the list of pages
    QObject* receiver;   ///< null: the page is only shown
    QByteArray loadSlot; ///< slot of the receiver, as written in SLOT(); empty for none
    QByteArray saveSlot;
};
