#include "ReadErrors.h"
#include "FileMessages.h"

#include <nodescope/panels/MessagePanel.h>
#include <vexel/base/SoReadError.h>

namespace {

constexpr int Messages_shown_at_once = 8;
constexpr int Characters_of_a_message = 120;

/** So much of the messages as a box on a small screen has room for. */
QString beginningOf(const QStringList& messages)
{
    QStringList beginning;
    for (const QString& message : messages.mid(0, Messages_shown_at_once)) {
        const bool isLong = message.size() > Characters_of_a_message;
        beginning << (isLong ? message.left(Characters_of_a_message) + QStringLiteral("...") : message);
    }
    if (messages.size() > Messages_shown_at_once)
        beginning << FileMessages::tr("... and %1 more").arg(messages.size() - Messages_shown_at_once);
    return beginning.join('\n');
}

} // namespace

ReadErrors::ReadErrors()
    : m_previousHandler(SoReadError::getHandlerCallback()), m_previousData(SoReadError::getHandlerData())
{
    SoReadError::setHandlerCallback(
        [](const SoError* error, void* data) {
            static_cast<ReadErrors*>(data)->m_messages << error->getDebugString().toQString();
        },
        this);
}

ReadErrors::~ReadErrors()
{
    SoReadError::setHandlerCallback(m_previousHandler, m_previousData);
}

void ReadErrors::show(QWidget* window) const
{
    if (m_messages.isEmpty())
        return;
    if (auto* const panel = window->findChild<MessagePanel*>()) {
        for (const QString& message : m_messages)
            panel->log().add(MessageLog::Kind::Problem, message);
    }
    const QString beginning = beginningOf(m_messages);
    const QString all = m_messages.join('\n');
    FileMessages::showReadErrors(window, beginning, beginning == all ? QString() : all);
}
