#pragma once

#include <nodescope/NodescopeApi.h>

#include <QMenu>
#include <QStringList>
#include <array>

/** The submenu of the files opened last, newest first; at most nine. Its actions carry the file's name as data. */
class NODESCOPE_API RecentFilesMenu : public QMenu {
    Q_OBJECT
public:
    static constexpr int Capacity = 9;

    explicit RecentFilesMenu(QWidget* parent = nullptr);

    /** Puts a file to the front; a file that is in the list already moves there. */
    void addFile(const QString& file);
    const QStringList& files() const { return m_files; }
    /** One action per place; those without a file are hidden. */
    const std::array<QAction*, Capacity>& fileActions() const { return m_actions; }

    /** Reads the list from the preference store. */
    void load();
    /** Writes the list to the preference store, empty places as empty texts. */
    void save() const;

private:
    void showFiles();

    QStringList m_files;
    std::array<QAction*, Capacity> m_actions{};
};
