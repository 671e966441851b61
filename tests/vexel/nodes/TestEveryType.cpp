#include <gtest/gtest.h>

#include <map>
#include <string>

#include <vexel/actions/SoWriteAction.h>
#include <vexel/base/SbString.h>
#include <vexel/base/SoDebugError.h>
#include <vexel/base/SoReadError.h>
#include <vexel/fields/SoSFEnum.h>
#include <vexel/fields/SoSFNode.h>
#include <vexel/io/SoDB.h>
#include <vexel/io/SoInput.h>
#include <vexel/io/SoOutput.h>
#include <vexel/nodekits/SoBaseKit.h>
#include <vexel/nodekits/SoNodeKitListPart.h>
#include <vexel/nodes/SoUnknownNode.h>

namespace {

// One value for each field type that no field has as its default. Enumerations and references are set by themselves.
const std::map<std::string, const char*>& sampleValues()
{
    static const std::map<std::string, const char*> Values{
        {"SFShort", "-17"},
        {"SFUShort", "17"},
        {"SFInt32", "-123456"},
        {"SFUInt32", "123456"},
        {"SFFloat", "0.3125"},
        {"SFDouble", "0.1"},
        {"SFString", "\"nothing of that name\""},
        {"SFName", "sample"},
        {"SFTime", "12.5"},
        {"SFColor", "0.25 0.5 0.75"},
        {"SFColorRGBA", "0.25 0.5 0.75 1"},
        {"SFVec2s", "1 -2"},
        {"SFVec2i32", "1 -2"},
        {"SFVec2f", "1.5 -2"},
        {"SFVec2d", "1.5 -2"},
        {"SFVec3s", "1 -2 3"},
        {"SFVec3i32", "1 -2 3"},
        {"SFVec3f", "1.5 -2 3"},
        {"SFVec3d", "1.5 -2 3"},
        {"SFVec4s", "1 -2 3 4"},
        {"SFVec4i32", "1 -2 3 4"},
        {"SFVec4f", "1.5 -2 3 4"},
        {"SFVec4d", "1.5 -2 3 4"},
        {"SFRotation", "0 1 0 0.5"},
        {"SFMatrix", "2 0 0 0 0 3 0 0 0 0 4 0 1 2 3 1"},
        {"SFPlane", "0 1 0 2"},
        {"SFBox2f", "0 1 2 3"},
        {"SFBox3f", "0 1 2 3 4 5"},
        {"SFImage", "2 1 3 0xff0000 0x00ff01"},
        {"SFImage3", "2 1 2 1 1 2 3 0xff"},
        {"SFArray2D", "2 2 SIGNED_SHORT -1 2 3 4"},
        {"SFArray3D", "1 2 2 DOUBLE 0.5 2 3 4"},
        {"SFNode", "Info { string \"held\" }"},
        {"SFPath", "Path { Group { Info { } } 1 0 }"},
        {"SFBufferObject", "BufferObject { values 3 1 FLOAT 1 2 3 }"},
        {"SFFieldContainer", "Info { string \"held\" }"},
        {"MFShort", "[ 1, -2 ]"},
        {"MFUShort", "[ 1, 2 ]"},
        {"MFInt32", "[ 0, 1, -1 ]"},
        {"MFUInt32", "[ 1, 2 ]"},
        {"MFFloat", "[ 0.5, 2 ]"},
        {"MFDouble", "[ 0.5, 2 ]"},
        {"MFString", "[ \"one\", \"t\\\"wo\" ]"},
        {"MFName", "[ one, two ]"},
        {"MFTime", "[ 1, 2.5 ]"},
        {"MFColor", "[ 0.25 0.5 0.75, 1 0 0 ]"},
        {"MFColorRGBA", "[ 0.25 0.5 0.75 1, 1 0 0 1 ]"},
        {"MFVec2f", "[ 1.5 -2, 0 0 ]"},
        {"MFVec3f", "[ 1.5 -2 3, 0 0 0 ]"},
        {"MFVec4f", "[ 1.5 -2 3 4, 0 0 0 1 ]"},
        {"MFRotation", "[ 0 1 0 0.5, 0 0 1 0 ]"},
        {"MFMatrix", "[ 2 0 0 0 0 3 0 0 0 0 4 0 1 2 3 1 ]"},
        {"MFPlane", "[ 0 1 0 2 ]"},
        {"MFNode", "[ Info { string \"held\" }, NULL ]"},
        {"MFInstanceParameter", "[ InstanceColor { diffuseColor 1 0 0 } ]"},
    };
    return Values;
}

// Sets the field to something else than it holds; false for fields that a file does not give or that refer to objects
// no file of these tests holds.
bool setSample(SoField& field)
{
    const std::string type(field.getTypeId().getName().getView());
    if (field.isOfType(SoSFEnum::getClassTypeId())) {
        auto& enumeration = static_cast<SoSFEnum&>(field);
        for (int i = 0; i < enumeration.getEnums().getNum(); ++i) {
            if (enumeration.getEnums()[i].value != enumeration.getValue()) {
                enumeration.setValue(enumeration.getEnums()[i].value);
                return true;
            }
        }
        return false;
    }
    if (type == "SFBool")
        return field.set(field.get() == "TRUE" ? "FALSE" : "TRUE");
    const auto sample = sampleValues().find(type);
    return sample != sampleValues().end() && field.set(sample->second);
}

std::string written(SoNode* node)
{
    SoOutput out;
    SoWriteAction action(&out);
    action.apply(node);
    return out.getText();
}

// Reads without posting errors; null, and a failed test, unless the text is one node and faultless.
SoNode* readBack(const std::string& text)
{
    SoInput in;
    in.setBuffer(text.data(), text.size());
    SoNode* node = nullptr;
    EXPECT_TRUE(SoDB::read(&in, node)) << text;
    EXPECT_EQ(in.getNumErrors(), 0) << text;
    EXPECT_TRUE(in.eof()) << text;
    if (node) {
        node->ref();
        in.closeFile();
        node->unrefNoDelete();
    }
    return node;
}

class EveryType : public testing::Test {
protected:
    static void SetUpTestSuite() { SoDB::init(); }
    void SetUp() override
    {
        // Names of files that are not there are reported, which is not what is tested here.
        SoReadError::setHandlerCallback([](const SoError*, void*) {}, nullptr);
        SoDebugError::setHandlerCallback([](const SoError*, void*) {}, nullptr);
    }
    void TearDown() override
    {
        SoReadError::setHandlerCallback(nullptr, nullptr);
        SoDebugError::setHandlerCallback(nullptr, nullptr);
    }
};

} // namespace

TEST_F(EveryType, IsWrittenAndReadAgainWithAllItsFields)
{
    int numTypes = 0;
    for (const SoType type : SoType::getAllDerivedFrom(SoNode::getClassTypeId())) {
        if (!type.canCreateInstance() || type == SoUnknownNode::getClassTypeId())
            continue;
        SCOPED_TRACE(type.getName().getString());
        ++numTypes;
        auto* node = static_cast<SoNode*>(type.createInstance());
        node->ref();
        // The parts of kits are fields that take nodes of certain types only.
        const bool isKit =
            type.isDerivedFrom(SoBaseKit::getClassTypeId()) || type == SoNodeKitListPart::getClassTypeId();
        for (SoField* field : node->getFields()) {
            if (isKit && field->isOfType(SoSFNode::getClassTypeId()))
                continue;
            EXPECT_TRUE(setSample(*field))
                << field->getName().getString() << " of type " << field->getTypeId().getName().getString();
        }
        const std::string text = written(node);
        SoNode* again = readBack(text);
        ASSERT_NE(again, nullptr);
        again->ref();
        EXPECT_EQ(again->getTypeId(), type);
        EXPECT_EQ(written(again), text);
        const std::vector<SoField*> before = node->getFields();
        const std::vector<SoField*> after = again->getFields();
        ASSERT_EQ(before.size(), after.size());
        for (std::size_t i = 0; i < before.size(); ++i) {
            EXPECT_EQ(after[i]->get(), before[i]->get()) << before[i]->getName().getString();
            EXPECT_EQ(after[i]->isDefault(), before[i]->isDefault()) << before[i]->getName().getString();
        }
        again->unref();
        node->unref();
    }
    EXPECT_GT(numTypes, 100);
}

TEST_F(EveryType, HasNothingToWriteWhenNew)
{
    for (const SoType type : SoType::getAllDerivedFrom(SoNode::getClassTypeId())) {
        if (!type.canCreateInstance() || type == SoUnknownNode::getClassTypeId())
            continue;
        auto* node = static_cast<SoNode*>(type.createInstance());
        node->ref();
        EXPECT_TRUE(node->hasDefaultValues()) << type.getName().getString();
        EXPECT_EQ(node->get(), SbString()) << type.getName().getString();
        node->unref();
    }
}

TEST_F(EveryType, CanBeCopiedAndLeavesNothingBehind)
{
    const std::int64_t living = SoBase::getNumLiving();
    for (const SoType type : SoType::getAllDerivedFrom(SoNode::getClassTypeId())) {
        if (!type.canCreateInstance())
            continue;
        auto* node = static_cast<SoNode*>(type.createInstance());
        node->ref();
        SoNode* copy = node->copy();
        copy->ref();
        EXPECT_EQ(written(copy), written(node));
        copy->unref();
        node->unref();
    }
    EXPECT_EQ(SoBase::getNumLiving(), living);
}
