#include <vexel/fields/SoField.h>

#include <vexel/base/SbString.h>
#include <vexel/fields/SoFieldContainer.h>
#include <vexel/fields/SoMField.h>
#include <vexel/fields/SoSField.h>
#include <vexel/fields/detail/FieldLinks.h>
#include <vexel/io/SoInput.h>
#include <vexel/io/SoOutput.h>
#include <vexel/sensors/SoDataSensor.h>

SoField::SoField(SoFieldContainer* container, const char* name)
    : m_container(container), m_flags(Default | NotifyEnabled | ConnectionEnabled)
{
    if (container)
        container->registerField(name, this);
}

SoField::~SoField()
{
    if (!m_links)
        return;
    for (SoDataSensor* sensor : std::vector<SoDataSensor*>(m_links->sensors))
        sensor->sourceDestroyed();
    cutConnection();
    for (SoField* follower : std::vector<SoField*>(m_links->followers))
        follower->cutConnection();
}

SoType SoField::getClassTypeId()
{
    static const SoType type = SoType::createType(SoType(), "SoField");
    return type;
}

SoType SoSField::getClassTypeId()
{
    static const SoType type = SoType::createType(SoField::getClassTypeId(), "SoSField");
    return type;
}

SoType SoMField::getClassTypeId()
{
    static const SoType type = SoType::createType(SoField::getClassTypeId(), "SoMField");
    return type;
}

SbName SoField::getName() const
{
    return m_container ? m_container->getFieldName(this) : SbName();
}

namespace {

// Runs a reader over a text that must be used up.
template <class Read>
bool readWhole(const SbString& text, Read&& read)
{
    const QByteArray bytes = text.toUtf8();
    SoInput in;
    in.setQuiet(true);
    in.setBuffer(bytes.constData(), static_cast<std::size_t>(bytes.size()));
    return read(in) && in.eof();
}

} // namespace

bool SoField::set(const SbString& text)
{
    // A trial value first, so that a text with a fault in its middle changes nothing.
    std::unique_ptr<SoField> trial(static_cast<SoField*>(getTypeId().createInstance()));
    if (!trial)
        return readWhole(text, [this](SoInput& in) { return readValue(in); });
    trial->copyFrom(*this);
    if (!readWhole(text, [&](SoInput& in) { return trial->readValue(in); }))
        return false;
    copyFrom(*trial);
    return true;
}

bool SoField::set(const char* text)
{
    return set(SbString(text));
}

SbString SoField::get() const
{
    SoOutput out;
    writeValue(out);
    return SbString(std::string_view(out.getText()));
}

void SoField::get(SbString& text) const
{
    text = get();
}

bool SoMField::set1(int index, const SbString& text)
{
    if (index < 0)
        return false;
    std::unique_ptr<SoMField> trial(static_cast<SoMField*>(getTypeId().createInstance()));
    trial->replaceValues(0, 0, *this, 0, 0); // no values, but the mnemonics
    if (!readWhole(text, [&](SoInput& in) { return trial->read1Value(in, 0); }))
        return false;
    return readWhole(text, [&](SoInput& in) { return read1Value(in, index); });
}

SbString SoMField::get1(int index) const
{
    SoOutput out;
    if (index >= 0 && index < getNum())
        write1Value(out, index);
    return SbString(std::string_view(out.getText()));
}

std::vector<SoBase*> SoField::getReferences() const
{
    return {};
}

void SoField::setReferences(const std::vector<SoBase*>&) {}

bool SoField::getRawValues(RawValues&) const
{
    return false;
}

bool SoField::setRawValues(const RawValues&)
{
    return false;
}

void SoField::remapReferences(SoCopyMap&) {}

void SoField::setIgnored(bool on)
{
    setFlag(Ignored, on);
    touch();
}

void SoField::setFieldType(FieldType type)
{
    m_flags = static_cast<std::uint16_t>((m_flags & ((1u << TypeShift) - 1)) | (unsigned(type) << TypeShift));
}

bool SoField::enableNotify(bool on)
{
    const bool before = isNotifyEnabled();
    setFlag(NotifyEnabled, on);
    return before;
}
