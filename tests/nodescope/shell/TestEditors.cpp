#include "ShellFixture.h"

#include <vexel/fields/SoMFFloat.h>
#include <vexel/fields/SoMFString.h>
#include <vexel/fields/SoSFFloat.h>

using Extensions = std::vector<NscExtension*>;

TEST_F(ShellTest, AnInheritingEditorServesDerivedTypes)
{
    shell().registerExtension(SoMField::getClassTypeId(), false, &m_extension);
    EXPECT_EQ(shell().getExtensions(SoMFFloat::getClassTypeId()), Extensions{&m_extension});
    EXPECT_EQ(shell().getExtensions(SoMField::getClassTypeId()), Extensions{&m_extension});
    EXPECT_EQ(shell().getExtensions(SoSFFloat::getClassTypeId()), Extensions{});
}

TEST_F(ShellTest, AnExactEditorServesItsTypeOnly)
{
    shell().registerExtension(SoMFFloat::getClassTypeId(), true, &m_extension);
    EXPECT_EQ(shell().getExtensions(SoMFFloat::getClassTypeId()), Extensions{&m_extension});
    EXPECT_EQ(shell().getExtensions(SoMField::getClassTypeId()), Extensions{});
    EXPECT_EQ(shell().getExtensions(SoMFString::getClassTypeId()), Extensions{});
}

TEST_F(ShellTest, InheritingEditorsComeBeforeExactOnesAndDuplicatesCount)
{
    shell().registerExtension(SoMFFloat::getClassTypeId(), true, &m_extension);
    shell().registerExtension(SoMFFloat::getClassTypeId(), false, &m_extension);
    shell().registerExtension(SoMField::getClassTypeId(), false, &m_other);
    shell().registerExtension(SoMFFloat::getClassTypeId(), true, &m_extension);
    EXPECT_EQ(shell().getExtensions(SoMFFloat::getClassTypeId()),
              (Extensions{&m_other, &m_extension, &m_extension, &m_extension}));
}

TEST_F(ShellTest, UnregisteringRemovesEveryEntryOfTheExtension)
{
    shell().registerExtension(SoMFFloat::getClassTypeId(), true, &m_extension);
    shell().registerExtension(SoMField::getClassTypeId(), false, &m_extension);
    shell().registerExtension(SoMField::getClassTypeId(), false, &m_other);
    shell().unregisterExtension(&m_extension);
    shell().unregisterExtension(&m_extension);
    EXPECT_EQ(shell().getExtensions(SoMFFloat::getClassTypeId()), Extensions{&m_other});
}

TEST_F(ShellTest, NobodyServesTheBadType)
{
    shell().registerExtension(SoMField::getClassTypeId(), false, &m_extension);
    EXPECT_EQ(shell().getExtensions(SoType::badType()), Extensions{});
}
