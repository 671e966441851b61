#include <vexel/engines/SoElapsedTime.h>

#include <vexel/io/SoDB.h>

namespace {

SoField* realTime()
{
    return SoDB::getGlobalField("realTime");
}

} // namespace

SoElapsedTime::SoElapsedTime()
{
    timeIn.connectFrom(realTime());
    timeIn.setDefault(true);
}

bool SoElapsedTime::shouldWriteField(const SoField& field) const
{
    if (&field == &timeIn && !timeIn.isIgnored())
        return !timeIn.isConnected() || timeIn.getConnectedField() != realTime();
    if (&field == &reset)
        return reset.isConnected() || reset.isIgnored();
    return SoEngine::shouldWriteField(field);
}

bool SoElapsedTime::shouldWriteValue(const SoField& field) const
{
    // A value without a connection tells a reader that there is none.
    return (&field == &timeIn && !timeIn.isConnected()) || SoEngine::shouldWriteValue(field);
}

bool SoElapsedTime::inputChanged(const SoField* input)
{
    if (input == &timeIn)
        return m_speed != 0 || !m_isStarted;
    // Until now the watch went as it was set before.
    if (m_isStarted)
        advance();
    if (input == &reset)
        m_elapsed = SbTime::zero();
    timeOut.enable(on.getValue());
    return true;
}

void SoElapsedTime::advance()
{
    const SbTime now = timeIn.getValue();
    const SoField* const clock = timeIn.getConnectedField();
    if (m_isStarted && clock == m_clock)
        m_elapsed += (now - m_last) * static_cast<double>(m_speed);
    m_isStarted = true;
    m_clock = clock;
    m_last = now;
    m_speed = on.getValue() && !pause.getValue() ? speed.getValue() : 0.0f;
}

void SoElapsedTime::evaluate(const SoEngineOutput&, SoField& target)
{
    advance();
    static_cast<SoSFTime&>(target).setValue(m_elapsed);
}
