#include "FieldValueText.h"

#include <vexel/base/SbString.h>
#include <vexel/base/SoPath.h>
#include <vexel/fields/SoMFInstanceParameter.h>
#include <vexel/fields/SoMFNode.h>
#include <vexel/fields/SoMFPath.h>
#include <vexel/fields/SoMFUniformShaderParameter.h>
#include <vexel/fields/SoSFArray.h>
#include <vexel/fields/SoSFBufferObject.h>
#include <vexel/fields/SoSFFieldContainer.h>
#include <vexel/fields/SoSFImage.h>
#include <vexel/fields/SoSFImage3.h>
#include <vexel/fields/SoSFNode.h>
#include <vexel/fields/SoSFPath.h>
#include <vexel/nodes/SoUniformShaderParameter.h>

#include <QString>

#include <algorithm>

namespace {

constexpr int Most_values = 6;
constexpr std::int64_t Most_array_values = 4096;

template <class Field>
const Field* as(const SoField& field)
{
    return field.isOfType(Field::getClassTypeId()) ? static_cast<const Field*>(&field) : nullptr;
}

QString typeName(const SoBase* object)
{
    return object ? object->getTypeId().getName().toQString() : QString();
}

bool isTooBig(const SoSFArray& array)
{
    const SbVec3i32 size = array.getDimensions();
    return std::int64_t(size[0]) * size[1] * size[2] > Most_array_values;
}

template <class Field>
QString typeNames(const Field& field)
{
    QString text;
    for (int i = 0; i < std::min(field.getNum(), Most_values); ++i) {
        if (field[i])
            text += typeName(field[i]) + ", ";
    }
    return text;
}

QString separatedValues(const SoMField& field)
{
    if (const auto* nodes = as<SoMFNode>(field))
        return typeNames(*nodes);
    if (const auto* parameters = as<SoMFUniformShaderParameter>(field))
        return typeNames(*parameters);
    if (const auto* paths = as<SoMFPath>(field))
        return typeNames(*paths); // the text of one would be all that stands below its nodes
    if (as<SoMFInstanceParameter>(field))
        return QStringLiteral(",");
    QString text;
    for (int i = 0; i < std::min(field.getNum(), Most_values); ++i)
        text += field.get1(i).toQString() + ", ";
    return text;
}

QString textOfMany(const SoMField& field)
{
    QString text = separatedValues(field);
    if (text.isEmpty())
        return text;
    text.chop(2);
    if (field.getNum() > Most_values)
        text += QLatin1String("...");
    return text;
}

} // namespace

QString FieldValueText::of(const SoField& field)
{
    if (const auto* many = as<SoMField>(field))
        return textOfMany(*many);
    if (const auto* node = as<SoSFNode>(field))
        return typeName(node->getValue());
    // The text of these would be all that stands below them.
    if (const auto* path = as<SoSFPath>(field))
        return typeName(path->getValue());
    if (const auto* container = as<SoSFFieldContainer>(field))
        return typeName(container->getValue());
    if (const auto* array = as<SoSFArray>(field); array && isTooBig(*array))
        return QStringLiteral("ARRAY TOO BIG");
    if (const auto* buffer = as<SoSFBufferObject>(field))
        return buffer->getValue() ? QStringLiteral("SoBufferObject") : QString();
    return isPicture(field) ? QString() : field.get().toQString();
}

bool FieldValueText::isPicture(const SoField& field)
{
    return as<SoSFImage>(field) || as<SoSFImage3>(field);
}

bool FieldValueText::isEditable(const SoField& field)
{
    if (field.getFieldType() == SoField::OUTPUT_ONLY || holdsNodes(field) || as<SoSFBufferObject>(field))
        return false;
    const auto* array = as<SoSFArray>(field);
    return !array || !isTooBig(*array);
}

bool FieldValueText::holdsNodes(const SoField& field)
{
    return as<SoSFNode>(field) || as<SoMFNode>(field) || as<SoMFUniformShaderParameter>(field);
}
