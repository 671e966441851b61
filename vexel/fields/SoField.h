#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

#include <vexel/base/SbName.h>
#include <vexel/base/SoNotification.h>
#include <vexel/base/SoType.h>
#include <vexel/base/VexelApi.h>

class SbString;
class SoBase;
class SoCopyMap;
class SoDataSensor;
class SoEngineOutput;
class SoFieldContainer;
class SoInput;
class SoNode;
class SoOutput;
struct SoFieldLinks;

/**
 * One value, or list of values, of a field container: a node, an engine, or any object made of fields.
 *
 * A field knows whether it still has its default, whether it is ignored in traversal, and what it is connected to. A
 * connected field takes its value from another field or from an engine output; the value is fetched when it is asked
 * for.
 */
class VEXEL_API SoField {
public:
    /** Who the field is for. The numbers are part of the interface; they fit in three bits. */
    enum FieldType {
        ORDINARY = 0,
        PRIVATE = 1,
        OUTPUT_ONLY = 2, /**< the container computes it; an editor shows it read-only */
        INPUT_ONLY = 3,
        INTERNAL_PART = 6, /**< held by the container for its own use */
        INTERNAL = 7
    };

    static SoType getClassTypeId();
    virtual SoType getTypeId() const = 0;
    bool isOfType(SoType type) const { return getTypeId().isDerivedFrom(type); }

    SoField(const SoField&) = delete;
    virtual ~SoField();

    SoFieldContainer* getContainer() const { return m_container; }
    /** Makes a field of its own part of @p container, which is told of its changes from now on. */
    void setContainer(SoFieldContainer* container) { m_container = container; }
    /** Name of the field in its container; empty for a field of its own. */
    SbName getName() const;

    /** Sets the value from its file text. False, with the value unchanged, when the text is not a value of the type. */
    bool set(const SbString& text);
    bool set(const char* text);
    /** The value as file text. */
    SbString get() const;
    void get(SbString& text) const;

    /** True until the field is given a value, also when that value equals the default. */
    bool isDefault() const { return hasFlag(Default); }
    /** Sets the mark alone; the value stays, and only the sensors of the field are told. */
    void setDefault(bool on);
    bool isIgnored() const { return hasFlag(Ignored); }
    void setIgnored(bool on);

    FieldType getFieldType() const { return static_cast<FieldType>(m_flags >> TypeShift); }
    void setFieldType(FieldType type);

    bool isNotifyEnabled() const { return hasFlag(NotifyEnabled); }
    /** Switches the notification of changes; answers how it was. */
    bool enableNotify(bool on);
    /** Notifies without a change of the value. */
    void touch();

    /** Same type and same value. */
    virtual bool isSame(const SoField& other) const = 0;
    /** Takes the value of a field of the same type; anything else is left alone. */
    virtual void copyFrom(const SoField& other) = 0;

    /**
     * Connects this field to @p source: it takes that field's value now and whenever it changes, converted when the
     * types differ. A former connection is cut.
     * @return false when the types cannot be converted, the source is this field, or it is of an engine that needs the
     * value of this field itself
     */
    bool connectFrom(SoField* source);
    bool connectFrom(SoEngineOutput* source);
    /** Keeps the value that came over the connection; only the sensors of the field are told. */
    void disconnect();
    bool isConnected() const { return isConnectedFromField() || isConnectedFromEngine(); }
    bool isConnectedFromField() const { return getConnectedField() != nullptr; }
    bool isConnectedFromEngine() const { return getConnectedEngine() != nullptr; }
    SoField* getConnectedField() const;
    SoEngineOutput* getConnectedEngine() const;
    /** The fields that take their value from this one. */
    std::vector<SoField*> getForwardConnections() const;
    /** A connection that is switched off stays in place and passes nothing on. */
    void enableConnection(bool on);
    bool isConnectionEnabled() const { return hasFlag(ConnectionEnabled); }

    /** Reads the value where @p in stands; posts a read error and answers false when there is none. */
    virtual bool readValue(SoInput& in) = 0;
    virtual void writeValue(SoOutput& out) const = 0;

    /** True for fields whose values are shared objects: nodes, paths, engines. */
    virtual bool holdsReferences() const { return false; }
    /** The objects that such a field refers to, null for none. */
    virtual std::vector<SoBase*> getReferences() const;
    /** Makes a field refer to these objects; ones of a wrong type count as null. */
    virtual void setReferences(const std::vector<SoBase*>& objects);

    /** Numbers that stand one after the other in memory, as files keep them. */
    struct RawValues {
        const void* data = nullptr;
        std::size_t numValues = 0;
        /** What one value consists of. */
        std::uint8_t numComponents = 0;
        std::uint8_t bytesPerComponent = 0;
        bool isFloatingPoint = false;
    };
    /** Answers the values of a list of numbers or vectors; false for fields that only have a text. */
    virtual bool getRawValues(RawValues& raw) const;
    /** Takes such values over; false, with nothing changed, when they are not of the field's kind. */
    virtual bool setRawValues(const RawValues& raw);

    /** After its container was copied: exchanges the objects the field refers to for their copies. */
    virtual void remapReferences(SoCopyMap& copies);

    /** Brings a connected field up to date. Readers of the value do this themselves. */
    void evaluate() const
    {
        if (hasFlag(Stale))
            evaluateConnection();
    }

    void addAuditor(SoDataSensor* sensor);
    void removeAuditor(SoDataSensor* sensor);
    /** Passes a change of this field, or of a node it holds, on to sensors, connected fields and the container. */
    void notify(SoNotList& list);

protected:
    /** A field of @p container, registered there under @p name; or a field of its own when both are null. */
    SoField(SoFieldContainer* container, const char* name);

    /**
     * To be called by the destructor of each concrete class, while its value is still there: followers take it over
     * before they are cut off.
     */
    void giveLastValue()
    {
        if (m_links)
            cutFollowers();
    }

    /** To be called after the value was changed: it is no default any more, and listeners are told. */
    void valueChanged(SoTriggerType type = SO_TRIGGER_UNSPECIFIED);

private:
    friend class SoEngineOutput;

    enum Flag : std::uint16_t {
        Default = 1,
        Ignored = 2,
        NotifyEnabled = 4,
        ConnectionEnabled = 8,
        Stale = 16,
        Evaluating = 32,
        Notifying = 64
    };
    static constexpr int TypeShift = 13;

    bool hasFlag(Flag flag) const { return (m_flags & flag) != 0; }
    void setFlag(Flag flag, bool on) const
    {
        m_flags = static_cast<std::uint16_t>(on ? m_flags | flag : m_flags & ~flag);
    }
    SoFieldLinks& links();
    /** @param origin  see SoNotList; 0 for a change at first hand */
    void sourceChanged(std::uint32_t origin = 0);
    void evaluateConnection() const;
    void tellSensors();
    void connected();
    void release();
    void cutConnection();
    void cutFollowers();

    SoFieldContainer* m_container;
    std::unique_ptr<SoFieldLinks> m_links;
    mutable std::uint16_t m_flags;
};
