#include <vexel/fields/SoFieldContainer.h>

#include <vexel/base/SbString.h>
#include <vexel/fields/SoField.h>
#include <vexel/io/SoInput.h>
#include <vexel/io/SoOutput.h>
#include <vexel/nodes/SoNode.h>

namespace {

// Fills the table of a class whose own constructor added nothing, from the nearest base class that has fields.
const SoFieldData& completed(SoFieldClass& fieldClass)
{
    if (!fieldClass.fields.hasInherited() && fieldClass.base)
        fieldClass.fields.inherit(completed(*fieldClass.base));
    return fieldClass.fields;
}

} // namespace

SoFieldClass& SoFieldContainer::getFieldClass()
{
    static SoFieldClass fieldClass(nullptr, "SoFieldContainer", nullptr, SoBase::getClassTypeId());
    return fieldClass;
}

void SoFieldContainer::registerField(const char* name, const SoField* field)
{
    SoFieldClass& owner = fieldClass();
    completed(owner);
    owner.fields.addField(this, name, field);
}

const SoFieldData& SoFieldContainer::getFieldData() const
{
    return completed(fieldClass());
}

std::vector<SoField*> SoFieldContainer::getFields() const
{
    const SoFieldData& data = getFieldData();
    std::vector<SoField*> fields;
    fields.reserve(static_cast<std::size_t>(data.getNumFields()));
    for (int i = 0; i < data.getNumFields(); ++i)
        fields.push_back(data.getField(this, i));
    return fields;
}

SoField* SoFieldContainer::getField(const SbName& name) const
{
    const SoFieldData& data = getFieldData();
    const int index = data.getIndex(name);
    return index < 0 ? nullptr : data.getField(this, index);
}

SbName SoFieldContainer::getFieldName(const SoField* field) const
{
    const SoFieldData& data = getFieldData();
    const int index = data.getIndex(this, field);
    return index < 0 ? SbName() : data.getFieldName(index);
}

bool SoFieldContainer::set(const SbString& text)
{
    const QByteArray bytes = text.toUtf8();
    SoInput in;
    in.setQuiet(true);
    in.setBuffer(bytes.constData(), static_cast<std::size_t>(bytes.size()));
    return in.readFields(*this);
}

SbString SoFieldContainer::get() const
{
    SoOutput out;
    out.writeFields(*this);
    return SbString(std::string_view(out.getText()));
}

bool SoFieldContainer::hasDefaultValues() const
{
    const SoFieldData& data = getFieldData();
    for (int i = 0; i < data.getNumFields(); ++i) {
        if (!data.getField(this, i)->isDefault())
            return false;
    }
    return true;
}

void SoFieldContainer::setToDefaults()
{
    auto* fresh = static_cast<SoFieldContainer*>(getTypeId().createInstance());
    if (!fresh)
        return;
    fresh->ref();
    copyFieldValues(*fresh);
    fresh->unref();
}

bool SoFieldContainer::fieldsAreEqual(const SoFieldContainer& other) const
{
    if (getTypeId() != other.getTypeId())
        return false;
    const std::vector<SoField*> mine = getFields();
    const std::vector<SoField*> theirs = other.getFields();
    if (mine.size() != theirs.size())
        return false;
    for (std::size_t i = 0; i < mine.size(); ++i) {
        if (!mine[i]->isSame(*theirs[i]))
            return false;
    }
    return true;
}

void SoFieldContainer::copyFieldValues(const SoFieldContainer& from)
{
    const std::vector<SoField*> mine = getFields();
    const std::vector<SoField*> theirs = from.getFields();
    for (std::size_t i = 0; i < mine.size() && i < theirs.size(); ++i) {
        if (!mine[i]->isDefault() || !theirs[i]->isDefault())
            mine[i]->copyFrom(*theirs[i]);
        mine[i]->setDefault(theirs[i]->isDefault());
        if (mine[i]->isIgnored() != theirs[i]->isIgnored())
            mine[i]->setIgnored(theirs[i]->isIgnored());
    }
}

bool SoFieldContainer::shouldWriteField(const SoField& field) const
{
    if (field.getFieldType() == SoField::OUTPUT_ONLY || field.getFieldType() >= SoField::INTERNAL_PART)
        return false;
    return shouldWriteValue(field) || field.isIgnored() || field.isConnected();
}

bool SoFieldContainer::shouldWriteValue(const SoField& field) const
{
    return !field.isDefault();
}

bool SoFieldContainer::enableNotify(bool on)
{
    const bool before = m_notifyEnabled;
    m_notifyEnabled = on;
    return before;
}

void SoFieldContainer::notify(SoNotList& list)
{
    if (m_notifyEnabled)
        SoBase::notify(list);
}
