#pragma once

#include <vexel/base/SbMatrix.h>
#include <vexel/base/SbRotation.h>

#include <random>

/** Repeatable random values for the tests of this folder. */
class Random {
public:
    float real(float from, float to) { return std::uniform_real_distribution<float>(from, to)(m_engine); }
    SbVec3f vec(float limit) { return {real(-limit, limit), real(-limit, limit), real(-limit, limit)}; }
    SbRotation rotation() { return {real(-1, 1), real(-1, 1), real(-1, 1), real(-1, 1)}; }

    /** Factors between 0.1 and 3, each with a random sign. */
    SbVec3f mirroringScale()
    {
        SbVec3f s(real(0.1f, 3), real(0.1f, 3), real(0.1f, 3));
        for (int i = 0; i < 3; ++i)
            s[i] = m_engine() & 1 ? s[i] : -s[i];
        return s;
    }

    SbMatrix transform()
    {
        SbMatrix m;
        m.setTransform(vec(10), rotation(), mirroringScale(), rotation(), vec(5));
        return m;
    }

private:
    std::mt19937 m_engine{20240229};
};
