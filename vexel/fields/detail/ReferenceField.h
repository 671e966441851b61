#pragma once

#include <vector>

#include <vexel/fields/SoMField.h>
#include <vexel/fields/SoSField.h>

class SoBase;

/**
 * A field that refers to one shared object, or to none. It holds a reference, and changes of the object are changes of
 * the field.
 */
class VEXEL_API SoSingleReferenceField : public SoSField {
public:
    ~SoSingleReferenceField() override;

    bool isSame(const SoField& other) const override;
    void copyFrom(const SoField& other) override;
    bool readValue(SoInput& in) override;
    void writeValue(SoOutput& out) const override;
    bool holdsReferences() const override { return true; }
    std::vector<SoBase*> getReferences() const override;
    void setReferences(const std::vector<SoBase*>& objects) override;
    void remapReferences(SoCopyMap& copies) override;

protected:
    using SoSField::SoSField;

    /** The class of the objects that the field may refer to. */
    virtual SoType getReferenceType() const = 0;
    SoBase* getBase() const
    {
        evaluate();
        return m_object;
    }
    void setBase(SoBase* object);

private:
    SoBase* m_object = nullptr;
};

/** The same for a list of objects, any of which may be null. */
class VEXEL_API SoMultiReferenceField : public SoMField {
public:
    ~SoMultiReferenceField() override;

    void setNum(int num) override;
    void deleteValues(int start, int num = -1) override;
    void insertSpace(int start, int num) override;
    void replaceValues(int start, int num, const SoMField& from, int fromStart, int fromNum) override;

    bool isSame(const SoField& other) const override;
    void copyFrom(const SoField& other) override;
    bool readValue(SoInput& in) override;
    void writeValue(SoOutput& out) const override;
    bool read1Value(SoInput& in, int index) override;
    void write1Value(SoOutput& out, int index) const override;
    bool holdsReferences() const override { return true; }
    std::vector<SoBase*> getReferences() const override;
    void setReferences(const std::vector<SoBase*>& objects) override;
    void remapReferences(SoCopyMap& copies) override;

protected:
    using SoMField::SoMField;

    int getStoredNum() const override { return static_cast<int>(m_objects.size()); }
    /** The class of the objects that the field may refer to. */
    virtual SoType getReferenceType() const = 0;
    SoBase* getBase(int index) const
    {
        evaluate();
        return m_objects[static_cast<std::size_t>(index)];
    }
    int findBase(const SoBase* object) const;
    void setBases(std::vector<SoBase*> objects);
    void setBase(int index, SoBase* object);

private:
    void hold(SoBase* object);
    void release(SoBase* object);

    std::vector<SoBase*> m_objects;
};

/** Declares a field class that refers to one object of the class Object. */
#define SO_REFERENCE_FIELD(Class, Object)                                                                              \
public:                                                                                                                \
    Class() : Class(nullptr, nullptr) {}                                                                               \
    ~Class() override                                                                                                  \
    {                                                                                                                  \
        giveLastValue();                                                                                               \
    }                                                                                                                  \
    Class(SoFieldContainer* container, const char* name, Object* value = nullptr)                                      \
        : SoSingleReferenceField(container, name)                                                                      \
    {                                                                                                                  \
        if (value) {                                                                                                   \
            setValue(value);                                                                                           \
            setDefault(true);                                                                                          \
        }                                                                                                              \
    }                                                                                                                  \
    Class& operator=(Object* value)                                                                                    \
    {                                                                                                                  \
        setValue(value);                                                                                               \
        return *this;                                                                                                  \
    }                                                                                                                  \
    static SoType getClassTypeId();                                                                                    \
    SoType getTypeId() const override;                                                                                 \
                                                                                                                       \
    Object* getValue() const;                                                                                          \
    void setValue(Object* value);                                                                                      \
                                                                                                                       \
protected:                                                                                                             \
    SoType getReferenceType() const override;                                                                          \
                                                                                                                       \
private:

/** Declares a list field class that refers to objects of the class Object. */
#define SO_REFERENCE_MFIELD(Class, Object)                                                                             \
public:                                                                                                                \
    Class() : Class(nullptr, nullptr) {}                                                                               \
    ~Class() override                                                                                                  \
    {                                                                                                                  \
        giveLastValue();                                                                                               \
    }                                                                                                                  \
    Class(SoFieldContainer* container, const char* name) : SoMultiReferenceField(container, name) {}                   \
    static SoType getClassTypeId();                                                                                    \
    SoType getTypeId() const override;                                                                                 \
                                                                                                                       \
    Object* operator[](int index) const;                                                                               \
    int find(const Object* value) const;                                                                               \
    void setValue(Object* value);                                                                                      \
    void setValues(const std::vector<Object*>& values);                                                                \
    void set1Value(int index, Object* value);                                                                          \
                                                                                                                       \
protected:                                                                                                             \
    SoType getReferenceType() const override;                                                                          \
                                                                                                                       \
private:

/** Defines what SO_REFERENCE_FIELD declared, where the class Object is known. */
#define SO_REFERENCE_FIELD_SOURCE(Class, Object)                                                                       \
    SO_FIELD_SOURCE(Class, SoSField)                                                                                   \
    SoType Class::getReferenceType() const                                                                             \
    {                                                                                                                  \
        return Object::getClassTypeId();                                                                               \
    }                                                                                                                  \
    Object* Class::getValue() const                                                                                    \
    {                                                                                                                  \
        return static_cast<Object*>(getBase());                                                                        \
    }                                                                                                                  \
    void Class::setValue(Object* value)                                                                                \
    {                                                                                                                  \
        setBase(value);                                                                                                \
    }

/** Defines what SO_REFERENCE_MFIELD declared. */
#define SO_REFERENCE_MFIELD_SOURCE(Class, Object)                                                                      \
    SO_FIELD_SOURCE(Class, SoMField)                                                                                   \
    SoType Class::getReferenceType() const                                                                             \
    {                                                                                                                  \
        return Object::getClassTypeId();                                                                               \
    }                                                                                                                  \
    Object* Class::operator[](int index) const                                                                         \
    {                                                                                                                  \
        return static_cast<Object*>(getBase(index));                                                                   \
    }                                                                                                                  \
    int Class::find(const Object* value) const                                                                         \
    {                                                                                                                  \
        return findBase(value);                                                                                        \
    }                                                                                                                  \
    void Class::setValue(Object* value)                                                                                \
    {                                                                                                                  \
        setBases({value});                                                                                             \
    }                                                                                                                  \
    void Class::setValues(const std::vector<Object*>& values)                                                          \
    {                                                                                                                  \
        setBases({values.begin(), values.end()});                                                                      \
    }                                                                                                                  \
    void Class::set1Value(int index, Object* value)                                                                    \
    {                                                                                                                  \
        setBase(index, value);                                                                                         \
    }
