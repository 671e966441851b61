#pragma once

#include <vector>

#include <vexel/base/SoBase.h>
#include <vexel/fields/SoFieldData.h>

class SbString;
class SoField;

/**
 * Declares the run-time class of a container: type, factory and field table. The first line of every class derived from
 * SoFieldContainer; the fields below it register themselves from their member initialisers:
 *
 *     class SoCylinder : public SoShape {
 *         SO_CONTAINER(SoCylinder, SoShape)
 *     public:
 *         SoSFFloat radius{this, "radius", 1.0f};
 *
 * SO_CONTAINER_ABSTRACT is the same for a class without instances of its own.
 */
#define SO_CONTAINER(Class, Base) SO_CONTAINER_WITH_FACTORY(Class, Base, []() -> void* { return new Class; })
#define SO_CONTAINER_ABSTRACT(Class, Base) SO_CONTAINER_WITH_FACTORY(Class, Base, nullptr)
#define SO_CONTAINER_WITH_FACTORY(Class, Base, factory)                                                                \
public:                                                                                                                \
    static SoFieldClass& getFieldClass()                                                                               \
    {                                                                                                                  \
        static SoFieldClass fieldClass(&Base::getFieldClass(), #Class, factory);                                       \
        return fieldClass;                                                                                             \
    }                                                                                                                  \
    static SoType getClassTypeId()                                                                                     \
    {                                                                                                                  \
        return getFieldClass().type;                                                                                   \
    }                                                                                                                  \
    SoType getTypeId() const override                                                                                  \
    {                                                                                                                  \
        return getFieldClass().type;                                                                                   \
    }                                                                                                                  \
                                                                                                                       \
protected:                                                                                                             \
    SoFieldClass& fieldClass() const override                                                                          \
    {                                                                                                                  \
        return getFieldClass();                                                                                        \
    }                                                                                                                  \
                                                                                                                       \
private:

/** Base of nodes, engines and all other objects whose state is a set of named fields. */
class VEXEL_API SoFieldContainer : public SoBase {
public:
    static SoFieldClass& getFieldClass();
    static SoType getClassTypeId() { return getFieldClass().type; }
    SoType getTypeId() const override { return getFieldClass().type; }

    /** The field table of the object's class; of the object itself for a node of an unknown type. */
    virtual const SoFieldData& getFieldData() const;
    /** All fields in the order of their declaration. */
    std::vector<SoField*> getFields() const;
    SoField* getField(const SbName& name) const;
    /** The name under which the container knows one of its fields; empty for any other field. */
    SbName getFieldName(const SoField* field) const;

    /** Sets fields from their file text, as "radius 2 height 3". False at the first thing that is no field with a
     * value. */
    bool set(const SbString& text);
    /** The file text of all fields that differ from their defaults. */
    SbString get() const;

    bool hasDefaultValues() const;
    /** Gives every field the value that it has in a new instance. */
    virtual void setToDefaults();
    /** Same type and same value in every field. */
    bool fieldsAreEqual(const SoFieldContainer& other) const;
    /** Takes the values, default and ignored marks of all fields from an object of the same type. */
    void copyFieldValues(const SoFieldContainer& from);

    /** True for a field that a file must hold: it has no default, is ignored or is connected. */
    virtual bool shouldWriteField(const SoField& field) const;
    /** True when the file must hold the field's value too; otherwise its mark or connection is enough. */
    virtual bool shouldWriteValue(const SoField& field) const;

    bool isNotifyEnabled() const { return m_notifyEnabled; }
    /** Switches notification of this object and of everything below that reaches listeners through it. */
    bool enableNotify(bool on);

    void notify(SoNotList& list) override;

protected:
    SoFieldContainer() = default;

    virtual SoFieldClass& fieldClass() const { return getFieldClass(); }

private:
    friend class SoField;
    // Called by each field while it is constructed; the virtual call answers the class whose constructor is running.
    void registerField(const char* name, const SoField* field);

    bool m_notifyEnabled = true;
};
