#include "Stage.h"

#include <random>

namespace vexel {
namespace {

using DrawListTest = Stage;

const SbVec3f Red(1, 0, 0);
const SbVec3f Green(0, 1, 0);
const SbVec3f Blue(0, 0, 1);

TEST_F(DrawListTest, EmptyListShowsTheBackground)
{
    list.background.color = SbVec4f(0.2f, 0.4f, 0.6f, 1);
    EXPECT_COLOR(at(draw(), 0, 0), 51, 102, 153);
    EXPECT_TRUE(list.bounds().isEmpty());
}

TEST_F(DrawListTest, NearerThingsHideFartherOnesInAnyOrder)
{
    for (const float first : {-0.5f, 0.5f}) {
        DrawList::Packet handles[2];
        handles[0] = list.add(scene, plain(square(0.5f, first), first > 0 ? Red : Green));
        handles[1] = list.add(scene, plain(square(0.5f, -first), first > 0 ? Green : Red));
        EXPECT_COLOR(at(draw(), 0, 0), 255, 0, 0);
        list.remove(handles[0]);
        list.remove(handles[1]);
    }
    EXPECT_EQ(0u, list.size());
}

TEST_F(DrawListTest, PacketsChangeOneByOne)
{
    const auto shape = square(0.2f);
    RenderPacket packet = plain(shape, Red);
    std::vector<DrawList::Packet> handles;
    for (const float x : {-0.6f, 0.0f, 0.6f}) {
        packet.matrix = moved(x, 0, 0);
        packet.tag = handles.size() + 7;
        handles.push_back(list.add(scene, packet));
    }
    draw();
    RenderMaterial material;
    material.diffuse = Green;
    list.setMaterial(handles[1], material);
    QImage picture = draw();
    EXPECT_COLOR(at(picture, -0.6f, 0), 255, 0, 0);
    EXPECT_COLOR(at(picture, 0, 0), 0, 255, 0);
    list.setMatrix(handles[1], moved(0, 0.6f, 0));
    picture = draw();
    EXPECT_COLOR(at(picture, 0, 0), 0, 0, 0);
    EXPECT_COLOR(at(picture, 0, 0.6f), 0, 255, 0);
    list.setGeometry(handles[1], square(0.05f));
    picture = draw();
    EXPECT_COLOR(at(picture, 0, 0.6f), 0, 255, 0);
    EXPECT_COLOR(at(picture, 0.15f, 0.6f), 0, 0, 0);
    list.remove(handles[0]);
    picture = draw();
    EXPECT_COLOR(at(picture, -0.6f, 0), 0, 0, 0);
    EXPECT_COLOR(at(picture, 0.6f, 0), 255, 0, 0);
    EXPECT_EQ(9u, list.tag(handles[2]));
}

TEST_F(DrawListTest, InvisiblePacketsAreNotDrawn)
{
    RenderPacket packet = plain(square(0.5f), Red);
    packet.state.style.draw = RenderStyle::Draw::Invisible;
    list.add(scene, packet);
    EXPECT_COLOR(at(draw(), 0, 0), 0, 0, 0);
}

TEST_F(DrawListTest, BoundsFollowTheMatrices)
{
    RenderPacket packet = plain(square(0.5f), Red);
    packet.matrix = moved(2, 0, 0);
    list.add(scene, packet);
    packet.matrix = moved(-3, 1, 4);
    const DrawList::Packet handle = list.add(scene, packet);
    EXPECT_FLOAT_EQ(-3.5f, list.bounds().lo[0]);
    EXPECT_FLOAT_EQ(2.5f, list.bounds().hi[0]);
    EXPECT_FLOAT_EQ(4, list.bounds().hi[2]);
    list.setMatrix(handle, moved(0, 0, 0));
    draw();
    EXPECT_FLOAT_EQ(-0.5f, list.bounds().lo[0]);
    list.remove(handle);
    EXPECT_FLOAT_EQ(1.5f, list.bounds().lo[0]);
}

/** A list after many random edits must look like one that was made in the final state at once. */
TEST_F(DrawListTest, RandomEditsEqualAFreshList)
{
    std::mt19937 random(20240611);
    const auto number = [&](float low, float high) { return std::uniform_real_distribution<float>(low, high)(random); };
    const auto place = [&] { return moved(number(-3, 3), number(-3, 3), number(-0.9f, 0.9f)); };
    const std::shared_ptr<const RenderGeometry> shapes[] = {square(0.05f), square(0.1f), square(0.15f)};
    struct Entry {
        DrawList::Packet handle;
        RenderPacket packet;
    };
    std::vector<Entry> model;
    for (int step = 0; step < 4000; ++step) {
        const auto what = random() % 10;
        if (what < 4 || model.empty()) {
            RenderPacket packet = plain(shapes[random() % 3], SbVec3f(number(0, 1), number(0, 1), number(0, 1)));
            packet.matrix = place();
            packet.state.style.flat = random() % 2;
            model.push_back({list.add(scene, packet), packet});
            continue;
        }
        Entry& entry = model[random() % model.size()];
        if (what < 6) {
            entry.packet.matrix = place();
            list.setMatrix(entry.handle, entry.packet.matrix);
        } else if (what < 7) {
            entry.packet.geometry = shapes[random() % 3];
            list.setGeometry(entry.handle, entry.packet.geometry);
        } else if (what < 8) {
            entry.packet.state.style.flat = !entry.packet.state.style.flat;
            list.setState(entry.handle, entry.packet.state);
        } else {
            list.remove(entry.handle);
            entry = model.back();
            model.pop_back();
        }
        if (step % 500 == 0)
            draw();
    }
    const QImage edited = draw();
    ASSERT_EQ(model.size(), list.size());
    list.removeSegment(scene);
    ASSERT_EQ(0u, list.size());
    scene = list.addSegment({});
    for (const Entry& entry : model)
        list.add(scene, entry.packet);
    EXPECT_EQ(edited, draw());
}

} // namespace
} // namespace vexel
