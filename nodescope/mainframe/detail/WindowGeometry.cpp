#include "WindowGeometry.h"

#include <nodescope/preferences/SoPreferenceStore.h>

#include <QMainWindow>

namespace {

constexpr int Unlimited = 32767;
constexpr int Layout_version = 1; ///< a layout of another version is not restored

QString key(const char* name)
{
    return QString(SoPreferenceStore::MainFrameGroup) + name;
}

} // namespace

void WindowGeometry::restore(QMainWindow& window)
{
    const SoPreferenceStore& store = *SoPreferenceStore::getInstance();
    const int width = store.readInt(key("/WindowWidth"), Unlimited);
    const int height = store.readInt(key("/WindowHeight"), Unlimited);
    window.move(store.readInt(key("/WindowX"), 0), store.readInt(key("/WindowY"), 0));
    if (store.readString(key("/MainWindowLayout"), QString()).isEmpty())
        window.setWindowState(window.windowState() | Qt::WindowMaximized);
    else
        window.resize(width, height);
}

void WindowGeometry::restoreLayout(QMainWindow& window)
{
    const QString layout = SoPreferenceStore::getInstance()->readString(key("/DocksAndToolBars"), QString());
    window.restoreState(QByteArray::fromBase64(layout.toLatin1()), Layout_version);
}

void WindowGeometry::save(const QMainWindow& window)
{
    SoPreferenceStore& store = *SoPreferenceStore::getInstance();
    store.writeInt(key("/WindowWidth"), window.width());
    store.writeInt(key("/WindowHeight"), window.height());
    store.writeInt(key("/WindowX"), window.x());
    store.writeInt(key("/WindowY"), window.y());
    store.writeString(key("/MainWindowLayout"), QString());
    store.writeString(key("/DocksAndToolBars"), QString::fromLatin1(window.saveState(Layout_version).toBase64()));
}
