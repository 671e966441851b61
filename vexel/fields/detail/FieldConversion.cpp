#include <vexel/fields/detail/FieldConversion.h>

#include <cmath>
#include <string>
#include <vector>

#include <vexel/base/SbString.h>
#include <vexel/fields/SoMFInt32.h>
#include <vexel/fields/SoMFShort.h>
#include <vexel/fields/SoMFString.h>
#include <vexel/fields/SoMFUInt32.h>
#include <vexel/fields/SoMFUShort.h>
#include <vexel/fields/SoMField.h>
#include <vexel/fields/SoSFBool.h>
#include <vexel/fields/SoSFEnum.h>
#include <vexel/fields/SoSFInt32.h>
#include <vexel/fields/SoSFShort.h>
#include <vexel/fields/SoSFString.h>
#include <vexel/fields/SoSFTrigger.h>
#include <vexel/fields/SoSFUInt32.h>
#include <vexel/fields/SoSFUShort.h>
#include <vexel/io/detail/TextReader.h>

namespace {

bool isText(SoType type)
{
    return type == SoSFString::getClassTypeId() || type == SoMFString::getClassTypeId();
}

bool holdsWholeNumbers(SoType type)
{
    static const SoType types[] = {
        SoSFShort::getClassTypeId(),  SoSFUShort::getClassTypeId(), SoSFInt32::getClassTypeId(),
        SoSFUInt32::getClassTypeId(), SoMFShort::getClassTypeId(),  SoMFUShort::getClassTypeId(),
        SoMFInt32::getClassTypeId(),  SoMFUInt32::getClassTypeId(), SoSFEnum::getClassTypeId()};
    for (const SoType candidate : types) {
        if (type.isDerivedFrom(candidate))
            return true;
    }
    return false;
}

// All numbers of a value's text; TRUE and FALSE count as 1 and 0.
std::vector<double> numbersOf(const SbString& text)
{
    const QByteArray bytes = text.toUtf8();
    TextReader reader(bytes.constData(), bytes.constData() + bytes.size());
    std::vector<double> numbers;
    while (reader.peek()) {
        double number = 0;
        if (reader.readNumber(number)) {
            numbers.push_back(number);
            continue;
        }
        const std::string_view word = reader.readWord();
        if (word == "TRUE" || word == "FALSE")
            numbers.push_back(word == "TRUE" ? 1 : 0);
        else if (word.empty())
            reader.skipItem();
    }
    return numbers;
}

SbString joined(const std::vector<double>& numbers, SoType to)
{
    const bool whole = holdsWholeNumbers(to);
    const bool truth = to == SoSFBool::getClassTypeId();
    const bool list = to.isDerivedFrom(SoMField::getClassTypeId());
    QString text = list ? QStringLiteral("[ ") : QString();
    for (const double number : numbers) {
        const double value = truth ? (number != 0 ? 1 : 0) : (whole ? std::trunc(number) : number);
        text += QString::number(value, 'g', 17);
        text += ' ';
    }
    return SbString(list ? text + ']' : text);
}

// A value takes the first one of a list of its kind, and other types whatever numbers there are.
bool takeFirst(const SoField& from, SoField& to)
{
    if (to.isOfType(SoMField::getClassTypeId()) || !from.isOfType(SoMField::getClassTypeId()))
        return false;
    const SbString first = static_cast<const SoMField&>(from).get1(0);
    return !first.isEmpty() && to.set(first);
}

} // namespace

bool canConvertField(SoType from, SoType to)
{
    if (from == to || isText(to) || to == SoSFTrigger::getClassTypeId())
        return true;
    // A value and a list of the same kind of value go into one another; so do numbers of any kind. Both are tried on
    // default values, whose text tells whether the other type takes it.
    auto* source = static_cast<SoField*>(from.createInstance());
    auto* target = static_cast<SoField*>(to.createInstance());
    if (!source || !target)
        return false;
    if (from.isDerivedFrom(SoMField::getClassTypeId()))
        static_cast<SoMField*>(source)->setNum(1);
    const SbString text = source->get();
    const bool convertible = target->set(text) || target->set(joined(numbersOf(text), to));
    delete source;
    delete target;
    return convertible;
}

void convertField(const SoField& from, SoField& to)
{
    if (from.getTypeId() == to.getTypeId()) {
        to.copyFrom(from);
        return;
    }
    if (to.isOfType(SoSFTrigger::getClassTypeId())) {
        to.touch();
        return;
    }
    if (!isText(to.getTypeId()) && takeFirst(from, to))
        return;
    const SbString text = from.get();
    if (isText(to.getTypeId())) {
        if (from.isOfType(SoSFString::getClassTypeId()) || from.isOfType(SoMFString::getClassTypeId()))
            to.set(text);
        else if (to.isOfType(SoSFString::getClassTypeId()))
            static_cast<SoSFString&>(to).setValue(text);
        else
            static_cast<SoMFString&>(to).setValue(text);
        return;
    }
    const bool plain = from.isOfType(SoMField::getClassTypeId()) == to.isOfType(SoMField::getClassTypeId());
    if (!plain && to.set(text))
        return;
    const std::vector<double> numbers = numbersOf(text);
    if (!numbers.empty())
        to.set(joined(numbers, to.getTypeId()));
}
