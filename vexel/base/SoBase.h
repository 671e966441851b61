#pragma once

#include <atomic>
#include <cstdint>
#include <vector>

#include <vexel/base/SbName.h>
#include <vexel/base/SoNotification.h>
#include <vexel/base/SoType.h>
#include <vexel/base/VexelApi.h>
#include <vexel/base/detail/AuditorList.h>

class SbString;

/**
 * Base of everything that is shared by reference and notifies: nodes, engines, paths, buffer objects.
 *
 * An object starts with a count of 0 and is destroyed when unref() brings the count back to 0. Objects made with new
 * and never referenced are released with ref() and unref().
 */
class VEXEL_API SoBase {
public:
    static SoType getClassTypeId();
    virtual SoType getTypeId() const = 0;
    bool isOfType(SoType type) const { return getTypeId().isDerivedFrom(type); }

    SoBase(const SoBase&) = delete;
    SoBase& operator=(const SoBase&) = delete;

    void ref() const { m_references.fetch_add(1, std::memory_order_relaxed); }
    /** Takes back a reference; the object is gone after the last one. */
    void unref() const;
    /** Takes back a reference without destroying the object, which may then stand at 0 again. */
    void unrefNoDelete() const { m_references.fetch_sub(1, std::memory_order_relaxed); }
    std::int32_t getRefCount() const { return m_references.load(std::memory_order_relaxed); }

    SbName getName() const { return m_name; }
    /** Names the object; several objects may share a name. An empty name takes the name away. */
    void setName(const SbName& name);

    /** Name under which a distributed application knows the object; empty for most. */
    SbName getNetName() const;
    void setNetName(const SbName& name);

    /** The object of that name and type that was named last, or null. */
    static SoBase* getNamedBase(const SbName& name, SoType type);
    /** All objects of that name and type, those named first in front. */
    static std::vector<SoBase*> getNamedBases(const SbName& name, SoType type);

    /** Notifies as if something unspecified had changed. */
    virtual void touch();

    void addAuditor(void* auditor, SoAuditorType type) { m_auditors.add(auditor, type); }
    void removeAuditor(void* auditor, SoAuditorType type) { m_auditors.remove(auditor, type); }
    const AuditorList& getAuditors() const { return m_auditors; }

    /** Passes a change on to the auditors, once for each stamp. */
    virtual void notify(SoNotList& list);

    /** Number of objects alive in the process; 0 after a program that released everything it made. */
    static std::int64_t getNumLiving();

protected:
    SoBase();
    virtual ~SoBase();

    void notifyAuditors(SoNotList& list);
    bool isNotifiedOf(const SoNotList& list) const { return m_stamp == list.stamp; }

private:
    AuditorList m_auditors;
    SbName m_name;
    mutable std::atomic<std::int32_t> m_references{0};
    std::uint32_t m_stamp = 0;
    bool m_hasNetName = false;
};
