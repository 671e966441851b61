#include "PluginProblems.h"

#include <vexel/base/SoDebugError.h>

#include <QStringList>

void PluginProblems::add(const QString& text)
{
    m_all.push_back(text);
}

bool PluginProblems::post()
{
    QStringList lines;
    for (; m_posted < m_all.size(); ++m_posted)
        lines << m_all[m_posted].toQString();
    if (!lines.isEmpty())
        SoDebugError::post("NscPluginsManager::read", "%s", lines.join('\n').toUtf8().constData());
    return lines.isEmpty();
}
