#include "RecentFilesMenu.h"

#include <nodescope/preferences/SoPreferenceStore.h>

namespace {

QString fileKey(int place)
{
    return QString(SoPreferenceStore::MainFrameGroup) + "/File" + QString::number(place + 1);
}

/** "&1 name": the digit is the key of the entry, an ampersand in the name is no key. */
QString entryText(int place, QString file)
{
    return QStringLiteral("&%1 ").arg(place + 1) + file.replace('&', "&&");
}

} // namespace

RecentFilesMenu::RecentFilesMenu(QWidget* parent) : QMenu(parent)
{
    for (QAction*& action : m_actions) {
        action = addAction(QString());
        action->setVisible(false);
    }
}

void RecentFilesMenu::addFile(const QString& file)
{
    m_files.removeAll(file);
    m_files.prepend(file);
    if (m_files.size() > Capacity)
        m_files.removeLast();
    showFiles();
}

void RecentFilesMenu::load()
{
    m_files.clear();
    for (int place = 0; place < Capacity; ++place) {
        const QString file = SoPreferenceStore::getInstance()->readString(fileKey(place), QString());
        if (!file.isEmpty())
            m_files.append(file);
    }
    showFiles();
}

void RecentFilesMenu::save() const
{
    for (int place = 0; place < Capacity; ++place)
        SoPreferenceStore::getInstance()->writeString(fileKey(place), m_files.value(place));
}

void RecentFilesMenu::showFiles()
{
    for (int place = 0; place < Capacity; ++place) {
        QAction& action = *m_actions[std::size_t(place)];
        const QString file = m_files.value(place);
        action.setText(entryText(place, file));
        action.setData(file);
        action.setVisible(!file.isEmpty());
    }
}
