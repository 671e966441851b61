#pragma once

#include <cstdint>
#include <vector>

#include <vexel/base/SbName.h>
#include <vexel/base/SoType.h>
#include <vexel/base/VexelApi.h>

class SoEngine;
class SoField;

/** One result of an engine, of one field type, that any number of fields may be connected to. */
class VEXEL_API SoEngineOutput {
public:
    SoEngineOutput(SoEngine* engine, const char* name, SoType type);
    SoEngineOutput(const SoEngineOutput&) = delete;
    SoEngineOutput& operator=(const SoEngineOutput&) = delete;
    ~SoEngineOutput();

    SoEngine* getContainer() const { return m_engine; }
    const SbName& getName() const { return m_name; }
    /** Type of the fields that take the result without conversion. */
    SoType getConnectionType() const { return m_type; }

    bool isEnabled() const { return m_enabled; }
    /** An output that is switched off gives no values. */
    void enable(bool on) { m_enabled = on; }

    const std::vector<SoField*>& getConnections() const { return m_connections; }

private:
    friend class SoEngine;
    friend class SoField;

    void addConnection(SoField* field);
    void removeConnection(SoField* field);
    void giveValueTo(SoField& field);
    void notifyConnections(std::uint32_t origin);

    SoEngine* m_engine;
    SbName m_name;
    SoType m_type;
    std::vector<SoField*> m_connections;
    bool m_enabled = true;
};
