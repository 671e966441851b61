#include "EditorTable.h"

#include <plugins/field_editors/editors/FieldEditor.h>
#include <plugins/field_editors/editors/ListEditor.h>
#include <plugins/field_editors/editors/SingleEditor.h>
#include <plugins/field_editors/lists/FileTextColumns.h>
#include <plugins/field_editors/lists/TypedColumns.h>
#include <plugins/field_editors/values/BitMaskWidget.h>
#include <plugins/field_editors/values/BoolWidget.h>
#include <plugins/field_editors/values/BoxWidget.h>
#include <plugins/field_editors/values/ColorWidget.h>
#include <plugins/field_editors/values/EnumWidget.h>
#include <plugins/field_editors/values/FileTextWidget.h>
#include <plugins/field_editors/values/ImageWidget.h>
#include <plugins/field_editors/values/MatrixWidget.h>
#include <plugins/field_editors/values/NameWidget.h>
#include <plugins/field_editors/values/NumbersWidget.h>
#include <plugins/field_editors/values/PlaneWidget.h>
#include <plugins/field_editors/values/RotationWidget.h>
#include <plugins/field_editors/values/StringWidget.h>
#include <vexel/fields/SoMFColor.h>
#include <vexel/fields/SoMFFloat.h>
#include <vexel/fields/SoMFInt32.h>
#include <vexel/fields/SoMFMatrix.h>
#include <vexel/fields/SoMFPlane.h>
#include <vexel/fields/SoMFRotation.h>
#include <vexel/fields/SoMFShort.h>
#include <vexel/fields/SoMFString.h>
#include <vexel/fields/SoMFUInt32.h>
#include <vexel/fields/SoMFUShort.h>
#include <vexel/fields/SoMFVec2f.h>
#include <vexel/fields/SoMFVec2i32.h>
#include <vexel/fields/SoMFVec2s.h>
#include <vexel/fields/SoMFVec3f.h>
#include <vexel/fields/SoMFVec4f.h>
#include <vexel/fields/SoSFBitMask.h>
#include <vexel/fields/SoSFBool.h>
#include <vexel/fields/SoSFBox2f.h>
#include <vexel/fields/SoSFBox3s.h>
#include <vexel/fields/SoSFColor.h>
#include <vexel/fields/SoSFEnum.h>
#include <vexel/fields/SoSFFloat.h>
#include <vexel/fields/SoSFImage.h>
#include <vexel/fields/SoSFInt32.h>
#include <vexel/fields/SoSFMatrix.h>
#include <vexel/fields/SoSFName.h>
#include <vexel/fields/SoSFPlane.h>
#include <vexel/fields/SoSFRotation.h>
#include <vexel/fields/SoSFShort.h>
#include <vexel/fields/SoSFString.h>
#include <vexel/fields/SoSFUInt32.h>
#include <vexel/fields/SoSFUShort.h>
#include <vexel/fields/SoSFVec2f.h>
#include <vexel/fields/SoSFVec2i32.h>
#include <vexel/fields/SoSFVec2s.h>
#include <vexel/fields/SoSFVec3f.h>
#include <vexel/fields/SoSFVec4f.h>
#include <vexel/fields/SoSField.h>

#include <utility>

namespace {

using Info = NscExtension::Info;

/** An editor for exactly the type of a field. */
template <class Field>
NscExtension* exact(const Info& info, FieldEditor::MakeWidget makeWidget)
{
    return new FieldEditor(info, Field::getClassTypeId(), true, std::move(makeWidget));
}

template <class Field, class Widget>
NscExtension* single(const Info& info)
{
    return exact<Field>(info, [] { return new SingleEditor(new Widget); });
}

template <class Field>
NscExtension* numbers(const Info& info)
{
    return exact<Field>(info, [] { return new SingleEditor(new NumbersWidget(NumberAccess::of<Field>())); });
}

template <class Field>
NscExtension* box(const Info& info)
{
    return exact<Field>(info, [] { return new SingleEditor(new BoxWidget(NumberAccess::of<Field>())); });
}

template <class List, class Single, class Widget>
NscExtension* numberListWith(const Info& info)
{
    return exact<List>(info,
                       [] { return new ListEditor(std::make_unique<NumberColumns<List, Single>>(), new Widget); });
}

template <class List, class Single>
NscExtension* numberList(const Info& info)
{
    return exact<List>(info, [] {
        return new ListEditor(std::make_unique<NumberColumns<List, Single>>(),
                              new NumbersWidget(NumberAccess::of<Single>(), Qt::Horizontal));
    });
}

NscExtension* stringList(const Info& info)
{
    return exact<SoMFString>(info, [] {
        return new ListEditor(std::make_unique<StringColumns<SoMFString, SoSFString>>(), new StringWidget);
    });
}

NscExtension* anySingle(const Info& info)
{
    return new FieldEditor(info, SoSField::getClassTypeId(), false,
                           [] { return new SingleEditor(new FileTextWidget); });
}

NscExtension* anyList(const Info& info)
{
    return new FieldEditor(info, SoMField::getClassTypeId(), false,
                           [] { return new ListEditor(std::make_unique<FileTextColumns>(), nullptr); });
}

struct Row {
    const char* name;
    NscExtension* (*create)(const Info& info);
};

const Row Editors[] = {
    {"MFColor", numberListWith<SoMFColor, SoSFColor, ColorWidget>},
    {"MField", anyList},
    {"MFFloat", numberList<SoMFFloat, SoSFFloat>},
    {"MFInt32", numberList<SoMFInt32, SoSFInt32>},
    {"MFMatrix", numberListWith<SoMFMatrix, SoSFMatrix, MatrixWidget>},
    {"MFPlane", numberListWith<SoMFPlane, SoSFPlane, PlaneWidget>},
    {"MFRotation", numberListWith<SoMFRotation, SoSFRotation, RotationWidget>},
    {"MFShort", numberList<SoMFShort, SoSFShort>},
    {"MFString", stringList},
    {"MFUInt32", numberList<SoMFUInt32, SoSFUInt32>},
    {"MFUShort", numberList<SoMFUShort, SoSFUShort>},
    {"MFVec2f", numberList<SoMFVec2f, SoSFVec2f>},
    {"MFVec2i32", numberList<SoMFVec2i32, SoSFVec2i32>},
    {"MFVec2s", numberList<SoMFVec2s, SoSFVec2s>},
    {"MFVec3f", numberList<SoMFVec3f, SoSFVec3f>},
    {"MFVec4f", numberList<SoMFVec4f, SoSFVec4f>},
    {"SFBitMask", single<SoSFBitMask, BitMaskWidget>},
    {"SFBool", single<SoSFBool, BoolWidget>},
    {"SFBox2f", box<SoSFBox2f>},
    {"SFBox3s", box<SoSFBox3s>},
    {"SFColor", single<SoSFColor, ColorWidget>},
    {"SFEnum", single<SoSFEnum, EnumWidget>},
    {"SFFloat", numbers<SoSFFloat>},
    {"SFImage", single<SoSFImage, ImageWidget>},
    {"SFInt32", numbers<SoSFInt32>},
    {"SField", anySingle},
    {"SFMatrix", single<SoSFMatrix, MatrixWidget>},
    {"SFName", single<SoSFName, NameWidget>},
    {"SFPlane", single<SoSFPlane, PlaneWidget>},
    {"SFRotation", single<SoSFRotation, RotationWidget>},
    {"SFShort", numbers<SoSFShort>},
    {"SFString", single<SoSFString, StringWidget>},
    {"SFUInt32", numbers<SoSFUInt32>},
    {"SFUShort", numbers<SoSFUShort>},
    {"SFVec2f", numbers<SoSFVec2f>},
    {"SFVec2i32", numbers<SoSFVec2i32>},
    {"SFVec2s", numbers<SoSFVec2s>},
    {"SFVec3f", numbers<SoSFVec3f>},
    {"SFVec4f", numbers<SoSFVec4f>},
};

} // namespace

NscExtension* EditorTable::create(const SbString& name)
{
    for (const Row& row : Editors) {
        if (name == row.name)
            return row.create({name});
    }
    return nullptr;
}
