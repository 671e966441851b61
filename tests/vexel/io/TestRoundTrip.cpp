#include <gtest/gtest.h>

#include <random>

#include <vexel/fields/SoMFVec3f.h>
#include <vexel/fields/SoSFPlane.h>
#include <vexel/fields/SoSFRotation.h>

#include "SceneText.h"

namespace {

const std::string Header = "#Vexel V2.1 ascii\n\n";

TEST(RoundTrip, SharingNamesAndIgnoredMarksSurvive)
{
    const std::string text = Header + R"(DEF top Separator {
  renderCulling ON ~
  DEF Arm Group {
  }
  DEF Arm+1 Group {
    DEF +1 Separator {
      boundingBoxCaching OFF
    }
  }
  USE Arm
  USE +1
  Separator {
    pickCulling ON = USE top . renderCulling
  }
}
)";
    const ReadErrors errors;
    EXPECT_EQ(rewritten(text), text);
    EXPECT_EQ(rewritten(written(Scene(text).root, true)), text);
    EXPECT_EQ(errors.texts, std::vector<std::string>());
}

TEST(RoundTrip, ConnectionsSurvive)
{
    const std::string text = Header + R"(Separator {
  DEF master Separator {
    renderCulling OFF
  }
  Separator {
    renderCulling OFF = USE master . renderCulling
  }
}
)";
    EXPECT_EQ(rewritten(text), text);
    const Scene scene(text);
    auto* master = static_cast<SoSeparator*>(scene.root->getChild(0));
    auto* follower = static_cast<SoSeparator*>(scene.root->getChild(1));
    EXPECT_EQ(follower->renderCulling.getConnectedField(), &master->renderCulling);
    master->renderCulling = SoSeparator::ON;
    EXPECT_EQ(follower->renderCulling.getValue(), SoSeparator::ON);
    EXPECT_EQ(rewritten(written(scene.root, true)), written(scene.root));
}

TEST(RoundTrip, NamesThatCannotStandInAWordAreWrittenWithUnderscores)
{
    auto* root = new SoSeparator;
    root->ref();
    root->setName("my part {1}+x");
    EXPECT_NE(written(root).find("DEF my_part__1__x Separator"), std::string::npos);
    root->unref();
}

TEST(RoundTrip, RotationsAndPlanesAreWrittenWithDigitsThatComeBack)
{
    std::mt19937 random(7);
    std::uniform_real_distribution<float> component(-1, 1);
    std::uniform_real_distribution<float> small(0, 1e-4f);
    for (int i = 0; i < 20000; ++i) {
        SoSFRotation rotation;
        const SbVec3f axis(component(random), component(random), component(random));
        rotation.setValue(SbRotation(axis, i % 3 == 0 ? small(random) : component(random) * 7));
        const SbString once = rotation.get();
        SoSFRotation again;
        ASSERT_TRUE(again.set(once));
        ASSERT_EQ(again.get(), once);
        ASSERT_TRUE(again.getValue().equals(rotation.getValue(), 1e-5f));

        SoSFPlane plane;
        plane.setValue(SbPlane(axis, component(random) * 100));
        const SbString text = plane.get();
        ASSERT_TRUE(plane.set(text));
        ASSERT_EQ(plane.get(), text);
    }
}

TEST(RoundTrip, ADamagedBinarySceneIsRefusedWithAReason)
{
    const Scene scene(Header + "Separator { DEF a Group { } USE a Separator { renderCulling ON } }");
    const std::string good = written(scene.root, true);
    EXPECT_EQ(good.find('\n') % 16, 15u);
    EXPECT_EQ(rewritten(good), written(scene.root));
    for (std::size_t cut = good.find('\n') + 1; cut < good.size(); ++cut) {
        const ReadErrors errors;
        const Scene damaged(good.substr(0, cut));
        ASSERT_FALSE(errors.texts.empty()) << cut;
    }
    for (std::size_t place = good.find('\n') + 1; place < good.size(); ++place) {
        std::string changed = good;
        changed[place] = static_cast<char>(changed[place] ^ 0x20);
        const ReadErrors errors;
        const Scene damaged(changed);
        // The last bytes of the preamble mean nothing yet.
        const std::size_t inPreamble = place - good.find('\n') - 1;
        EXPECT_EQ(errors.texts.empty(), inPreamble >= 20 && inPreamble < 32) << place;
    }
}

} // namespace
