#include <vexel/fields/SoSFFloat.h>
#include <vexel/io/SoDB.h>
#include <vexel/nodes/SoCube.h>
#include <vexel/sensors/SoWeakPtr.h>

#include <gtest/gtest.h>

#include <memory>

namespace {

TEST(WeakPtr, answersNullAfterTheEndOfAnObject)
{
    SoDB::init();
    auto* cube = new SoCube;
    cube->ref();
    SoWeakPtr<SoCube> weak(cube);
    const SoWeakPtr<SoCube> copy(weak);
    EXPECT_EQ(1, cube->getRefCount());
    EXPECT_EQ(cube, copy.get());
    SoCube* atEnd = cube;
    struct Told {
        SoWeakPtr<SoCube>& weak;
        SoCube*& atEnd;
    } told{weak, atEnd};
    weak.setDeleteCallback(
        [](void* data, SoSensor*) {
            auto& told = *static_cast<Told*>(data);
            told.atEnd = told.weak.get();
        },
        &told);
    cube->unref();
    EXPECT_EQ(nullptr, atEnd);
    EXPECT_EQ(nullptr, weak.get());
    EXPECT_EQ(nullptr, copy.get());
}

TEST(WeakPtr, answersNullAfterTheEndOfAField)
{
    SoDB::init();
    auto field = std::make_unique<SoSFFloat>();
    SoWeakPtr<SoField> weak(field.get());
    EXPECT_EQ(field.get(), weak.get());
    field.reset();
    EXPECT_EQ(nullptr, weak.get());
}

TEST(WeakPtr, letsGoOfWhatItNoLongerRefersTo)
{
    SoDB::init();
    SoSFFloat kept;
    auto left = std::make_unique<SoSFFloat>();
    SoWeakPtr<SoField> weak(left.get());
    weak.set(&kept);
    left.reset();
    EXPECT_EQ(&kept, weak.get());
}

} // namespace
