#include <algorithm>
#include <utility>

#include <vexel/base/SoBase.h>
#include <vexel/base/SoPath.h>
#include <vexel/engines/SoEngine.h>
#include <vexel/fields/SoMFEngine.h>
#include <vexel/fields/SoMFNode.h>
#include <vexel/fields/SoMFPath.h>
#include <vexel/fields/SoSFEngine.h>
#include <vexel/fields/SoSFNode.h>
#include <vexel/fields/SoSFPath.h>
#include <vexel/fields/detail/FieldClass.h>
#include <vexel/fields/detail/ReferenceText.h>
#include <vexel/fields/detail/SpliceValues.h>
#include <vexel/fields/detail/ValueText.h>
#include <vexel/nodes/SoNode.h>
#include <vexel/nodes/detail/SoCopyMap.h>

SO_REFERENCE_FIELD_SOURCE(SoSFNode, SoNode)
SO_REFERENCE_MFIELD_SOURCE(SoMFNode, SoNode)
SO_REFERENCE_FIELD_SOURCE(SoSFPath, SoPath)
SO_REFERENCE_MFIELD_SOURCE(SoMFPath, SoPath)
SO_REFERENCE_FIELD_SOURCE(SoSFEngine, SoEngine)
SO_REFERENCE_MFIELD_SOURCE(SoMFEngine, SoEngine)

SoSingleReferenceField::~SoSingleReferenceField()
{
    if (m_object) {
        m_object->removeAuditor(static_cast<SoField*>(this), SoAuditorType::Field);
        m_object->unref();
    }
}

void SoSingleReferenceField::setBase(SoBase* object)
{
    if (object) {
        object->ref();
        object->addAuditor(static_cast<SoField*>(this), SoAuditorType::Field);
    }
    SoBase* old = std::exchange(m_object, object);
    if (old)
        old->removeAuditor(static_cast<SoField*>(this), SoAuditorType::Field);
    // Listeners may still ask about the old object, so it goes after they were told.
    valueChanged();
    if (old)
        old->unref();
}

bool SoSingleReferenceField::isSame(const SoField& other) const
{
    return other.getTypeId() == getTypeId() && static_cast<const SoSingleReferenceField&>(other).getBase() == getBase();
}

void SoSingleReferenceField::copyFrom(const SoField& other)
{
    if (&other != this && other.getTypeId() == getTypeId())
        setBase(static_cast<const SoSingleReferenceField&>(other).getBase());
}

bool SoSingleReferenceField::readValue(SoInput& in)
{
    SoBase* object = nullptr;
    if (!readReference(in, getReferenceType(), object))
        return false;
    setBase(object);
    return true;
}

void SoSingleReferenceField::writeValue(SoOutput& out) const
{
    writeReference(out, getBase());
}

std::vector<SoBase*> SoSingleReferenceField::getReferences() const
{
    return {getBase()};
}

void SoSingleReferenceField::setReferences(const std::vector<SoBase*>& objects)
{
    SoBase* object = objects.empty() ? nullptr : objects.front();
    setBase(object && object->isOfType(getReferenceType()) ? object : nullptr);
}

void SoSingleReferenceField::remapReferences(SoCopyMap& copies)
{
    if (m_object && m_object->isOfType(SoNode::getClassTypeId()))
        copies.copyOf(static_cast<SoNode*>(m_object));
    const bool wasDefault = isDefault();
    if (SoBase* copy = copies.find(m_object); copy != m_object)
        setBase(copy);
    setDefault(wasDefault);
}

SoMultiReferenceField::~SoMultiReferenceField()
{
    for (SoBase* object : m_objects)
        release(object);
}

void SoMultiReferenceField::hold(SoBase* object)
{
    if (object) {
        object->ref();
        object->addAuditor(static_cast<SoField*>(this), SoAuditorType::Field);
    }
}

void SoMultiReferenceField::release(SoBase* object)
{
    if (object) {
        object->removeAuditor(static_cast<SoField*>(this), SoAuditorType::Field);
        object->unref();
    }
}

void SoMultiReferenceField::setBases(std::vector<SoBase*> objects)
{
    for (SoBase* object : objects)
        hold(object);
    m_objects.swap(objects);
    valueChanged(SO_TRIGGER_MULTIPLE_VALUES);
    for (SoBase* object : objects)
        release(object);
}

void SoMultiReferenceField::setBase(int index, SoBase* object)
{
    if (index < 0)
        return;
    evaluate();
    const auto place = static_cast<std::size_t>(index);
    if (place >= m_objects.size())
        m_objects.resize(place + 1, nullptr);
    hold(object);
    SoBase* old = std::exchange(m_objects[place], object);
    valueChanged(SO_TRIGGER_MULTIPLE_VALUES);
    release(old);
}

int SoMultiReferenceField::findBase(const SoBase* object) const
{
    evaluate();
    const auto found = std::find(m_objects.begin(), m_objects.end(), object);
    return found == m_objects.end() ? -1 : static_cast<int>(found - m_objects.begin());
}

void SoMultiReferenceField::setNum(int num)
{
    evaluate();
    std::vector<SoBase*> objects = m_objects;
    objects.resize(static_cast<std::size_t>(std::max(num, 0)), nullptr);
    setBases(std::move(objects));
}

void SoMultiReferenceField::deleteValues(int start, int num)
{
    const int size = getNum();
    const int first = std::clamp(start, 0, size);
    const int last = num < 0 ? size : std::min(first + num, size);
    std::vector<SoBase*> objects = m_objects;
    objects.erase(objects.begin() + first, objects.begin() + std::max(first, last));
    setBases(std::move(objects));
}

void SoMultiReferenceField::insertSpace(int start, int num)
{
    std::vector<SoBase*> objects(m_objects.begin(), m_objects.begin() + getNum());
    objects.insert(objects.begin() + std::clamp(start, 0, getNum()), static_cast<std::size_t>(std::max(num, 0)),
                   nullptr);
    setBases(std::move(objects));
}

void SoMultiReferenceField::replaceValues(int start, int num, const SoMField& from, int fromStart, int fromNum)
{
    if (&from == this || from.getTypeId() != getTypeId())
        return;
    evaluate();
    from.evaluate();
    std::vector<SoBase*> objects = m_objects;
    spliceValues(objects, start, num, static_cast<const SoMultiReferenceField&>(from).m_objects, fromStart, fromNum);
    setBases(std::move(objects));
}

bool SoMultiReferenceField::isSame(const SoField& other) const
{
    if (other.getTypeId() != getTypeId())
        return false;
    evaluate();
    other.evaluate();
    return static_cast<const SoMultiReferenceField&>(other).m_objects == m_objects;
}

void SoMultiReferenceField::copyFrom(const SoField& other)
{
    if (&other == this || other.getTypeId() != getTypeId())
        return;
    other.evaluate();
    setBases(static_cast<const SoMultiReferenceField&>(other).m_objects);
}

bool SoMultiReferenceField::readValue(SoInput& in)
{
    // Held while the list is incomplete, so that an object read for it outlives an error behind it.
    std::vector<SoBase*> objects;
    const bool complete = readList(in, [&] {
        SoBase* object = nullptr;
        if (!readReference(in, getReferenceType(), object))
            return false;
        objects.push_back(object);
        if (object)
            object->ref();
        return true;
    });
    setBases(objects);
    for (SoBase* object : objects) {
        if (object)
            object->unref();
    }
    return complete;
}

void SoMultiReferenceField::writeValue(SoOutput& out) const
{
    writeList(out, getNum(), 1, [&](int i) { write1Value(out, i); });
}

bool SoMultiReferenceField::read1Value(SoInput& in, int index)
{
    SoBase* object = nullptr;
    if (!readReference(in, getReferenceType(), object))
        return false;
    setBase(index, object);
    return true;
}

void SoMultiReferenceField::write1Value(SoOutput& out, int index) const
{
    writeReference(out, m_objects[static_cast<std::size_t>(index)]);
}

std::vector<SoBase*> SoMultiReferenceField::getReferences() const
{
    evaluate();
    return m_objects;
}

void SoMultiReferenceField::setReferences(const std::vector<SoBase*>& objects)
{
    std::vector<SoBase*> fitting = objects;
    for (SoBase*& object : fitting) {
        if (object && !object->isOfType(getReferenceType()))
            object = nullptr;
    }
    setBases(std::move(fitting));
}

void SoMultiReferenceField::remapReferences(SoCopyMap& copies)
{
    std::vector<SoBase*> objects = m_objects;
    for (SoBase*& object : objects) {
        if (object && object->isOfType(SoNode::getClassTypeId()))
            copies.copyOf(static_cast<SoNode*>(object));
        object = copies.find(object);
    }
    const bool wasDefault = isDefault();
    if (objects != m_objects)
        setBases(std::move(objects));
    setDefault(wasDefault);
}
