#include <gtest/gtest.h>

#include <vexel/base/SbString.h>
#include <vexel/io/SoDB.h>

#include "Sample.h"

namespace {

TEST(Container, KnowsItsFieldsInOrderWithInheritedOnesFirst)
{
    const Held<SoSpecialSample> special;
    const Held<SoSample> sample;
    EXPECT_EQ(sample->getFieldData().getNumFields(), 10);
    EXPECT_EQ(special->getFieldData().getNumFields(), 11);
    EXPECT_EQ(special->getFieldData().getFieldName(0), "size");
    EXPECT_EQ(special->getFieldData().getFieldName(10), "note");
    EXPECT_EQ(special->getField("note"), &special->note);
    EXPECT_EQ(special->getField("held"), &special->held);
    EXPECT_EQ(special->getField("nothing"), nullptr);
    EXPECT_EQ(special->getFieldName(&special->place), "place");
    EXPECT_TRUE(special->getFieldName(&sample->place).isEmpty());
}

TEST(Container, TypesFormATree)
{
    const Held<SoSpecialSample> special;
    EXPECT_EQ(special->getTypeId().getName(), "SpecialSample");
    EXPECT_TRUE(special->isOfType(SoSample::getClassTypeId()));
    EXPECT_TRUE(special->isOfType(SoNode::getClassTypeId()));
    EXPECT_FALSE(special->isOfType(SoType()));
    EXPECT_EQ(SoType::fromName("SoSpecialSample"), SoType::fromName("SpecialSample"));
    EXPECT_FALSE(SoNode::getClassTypeId().canCreateInstance());
    auto* made = static_cast<SoNode*>(SoSpecialSample::getClassTypeId().createInstance());
    made->ref();
    EXPECT_EQ(made->getTypeId(), special->getTypeId());
    made->unref();
}

TEST(Container, SetsAndAnswersItsFieldsAsText)
{
    const Held<SoSample> sample;
    EXPECT_TRUE(sample->get().isEmpty());
    EXPECT_TRUE(sample->set("size 3 sides ( LEFT | TOP ) words [ \"a\", b ]"));
    EXPECT_FLOAT_EQ(sample->size.getValue(), 3);
    EXPECT_EQ(sample->sides.getValue(), SoSample::LEFT | SoSample::TOP);
    EXPECT_EQ(sample->words.getNum(), 2);
    EXPECT_FALSE(sample->set("colour 1"));
    const Held<SoSample> other;
    EXPECT_TRUE(other->set(sample->get()));
    EXPECT_TRUE(other->fieldsAreEqual(*sample));
}

TEST(Container, GoesBackToItsDefaults)
{
    const Held<SoSample> sample;
    EXPECT_TRUE(sample->hasDefaultValues());
    sample->size = 9;
    sample->words.setNum(0);
    EXPECT_FALSE(sample->hasDefaultValues());
    sample->setToDefaults();
    EXPECT_TRUE(sample->hasDefaultValues());
    EXPECT_FLOAT_EQ(sample->size.getValue(), 1.5f);
    EXPECT_EQ(sample->words[0], "first");
}

TEST(Container, CopiesAGraphWithItsSharingFieldsAndConnections)
{
    SoDB::init();
    const Held<SoSample> root;
    auto* shared = new SoSample;
    shared->setName("shared");
    root->addChild(shared);
    root->addChild(shared);
    root->held = shared;
    shared->size.connectFrom(&root->size);
    root->size = 4;

    auto* copy = static_cast<SoSample*>(root->copy(true));
    copy->ref();
    ASSERT_EQ(copy->getNumChildren(), 2);
    auto* copied = static_cast<SoSample*>(copy->getChild(0));
    EXPECT_NE(copied, shared);
    EXPECT_EQ(copy->getChild(1), copied);
    EXPECT_EQ(copy->held.getValue(), copied);
    EXPECT_EQ(copied->getName(), "shared");
    EXPECT_EQ(copied->size.getConnectedField(), &copy->size);
    EXPECT_FLOAT_EQ(copied->size.getValue(), 4);
    EXPECT_EQ(copied->getRefCount(), 3);
    copy->unref();
    shared->size.disconnect();
}

TEST(Container, LeavesNothingBehind)
{
    SoDB::init();
    const std::int64_t before = SoBase::getNumLiving();
    {
        const Held<SoSample> root;
        for (int i = 0; i < 100; ++i)
            root->addChild(new SoSample);
        root->held = root->getChild(3);
        root->several.setValues({root->getChild(1), root->getChild(2), root->getChild(1)});
        EXPECT_EQ(SoBase::getNumLiving(), before + 101);
    }
    EXPECT_EQ(SoBase::getNumLiving(), before);
}

} // namespace
