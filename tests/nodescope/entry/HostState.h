#pragma once

#include <vexel/base/SoError.h>

#include <QFont>
#include <QPalette>
#include <QString>
#include <QtGlobal>

#include <array>
#include <utility>
#include <vector>

class QCursor;
class QWidget;
class SoNode;

/** Everything of a host that an inspection must leave as it was. Its default locale is not among it. */
class HostState {
public:
    using Handler = std::pair<SoErrorCB*, void*>;

    /** @param root, window  the host's scene, and one of its windows */
    HostState(const SoNode& root, const QWidget& window);

    void expectSameAs(const HostState& before) const;

private:
    void note(const SoNode& node);

    int m_numWidgets;
    int m_numTopLevels;
    int m_numObjectsOfWindow;
    int m_numObjectsOfApplication;
    std::int64_t m_numToolkitObjects;
    std::vector<int> m_references;
    std::vector<std::size_t> m_listeners;
    QString m_style;
    QString m_styleSheet;
    QPalette m_palette;
    QFont m_font;
    QString m_language; ///< what a text of the inspector is translated into
    bool m_quitsOnLastWindow;
    QCursor* m_cursor;
    QtMessageHandler m_messageHandler;
    std::array<Handler, 4> m_errorHandlers;
};
