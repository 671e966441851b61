#pragma once

#include <array>
#include <memory>
#include <random>
#include <vector>

#include <vexel/engines/SoEngine.h>
#include <vexel/engines/SoEngineOutput.h>
#include <vexel/fields/SoMFFloat.h>
#include <vexel/fields/SoMFString.h>
#include <vexel/fields/SoMFVec3f.h>

class CalculatorProgram;

/**
 * Computes numbers and vectors from others, as an expression says.
 *
 * An expression is a list of assignments, divided by ";" or standing in strings of their own: "oa = 2 * sin(a); oA[1] =
 * oa". Variables are the inputs, the outputs, and ta to th (numbers) and tA to tH (vectors), which are 0 at first.
 * A[0] to A[2] are the components of a vector. Operators: + - * / % < > <= >= == != && || ! ?: and parentheses, in the
 * ranks of C. Functions: cos sin tan acos asin atan atan2 sqrt pow exp log log10 ceil floor fabs fmod; rand(x), a
 * random number from 0 to x, of a series that is the same for every engine; cross dot length normalize vec3f(x, y, z).
 * Constants: MAXFLOAT MINFLOAT M_E M_LOG2E M_LOG10E M_LN2 M_LN10 M_PI M_SQRT2 M_SQRT1_2.
 *
 * It is computed once for each place of the longest input that it reads; a shorter list goes on with its last value, an
 * empty one counts as 0. An expression with a mistake is reported as an SoDebugError, and the outputs keep their
 * values, as those do that are not assigned.
 */
class VEXEL_API SoCalculator : public SoEngine {
    SO_CONTAINER(SoCalculator, SoEngine)
public:
    SoMFFloat a{this, "a", 0.0f};
    SoMFFloat b{this, "b", 0.0f};
    SoMFFloat c{this, "c", 0.0f};
    SoMFFloat d{this, "d", 0.0f};
    SoMFFloat e{this, "e", 0.0f};
    SoMFFloat f{this, "f", 0.0f};
    SoMFFloat g{this, "g", 0.0f};
    SoMFFloat h{this, "h", 0.0f};
    SoMFVec3f A{this, "A", SbVec3f()};
    SoMFVec3f B{this, "B", SbVec3f()};
    SoMFVec3f C{this, "C", SbVec3f()};
    SoMFVec3f D{this, "D", SbVec3f()};
    SoMFVec3f E{this, "E", SbVec3f()};
    SoMFVec3f F{this, "F", SbVec3f()};
    SoMFVec3f G{this, "G", SbVec3f()};
    SoMFVec3f H{this, "H", SbVec3f()};
    SoMFString expression{this, "expression", ""};

    SoEngineOutput oa{this, "oa", SoMFFloat::getClassTypeId()};
    SoEngineOutput ob{this, "ob", SoMFFloat::getClassTypeId()};
    SoEngineOutput oc{this, "oc", SoMFFloat::getClassTypeId()};
    SoEngineOutput od{this, "od", SoMFFloat::getClassTypeId()};
    SoEngineOutput oA{this, "oA", SoMFVec3f::getClassTypeId()};
    SoEngineOutput oB{this, "oB", SoMFVec3f::getClassTypeId()};
    SoEngineOutput oC{this, "oC", SoMFVec3f::getClassTypeId()};
    SoEngineOutput oD{this, "oD", SoMFVec3f::getClassTypeId()};

    SoCalculator();

protected:
    ~SoCalculator() override;

    bool inputChanged(const SoField* input) override;
    void evaluate(const SoEngineOutput& output, SoField& target) override;

private:
    void compile();
    void compute();

    std::unique_ptr<CalculatorProgram> m_program; ///< null for an expression with a mistake
    bool m_isCompiled = false;
    bool m_isComputed = false;
    std::array<std::vector<float>, 4> m_numbers;
    std::array<std::vector<SbVec3f>, 4> m_vectors;
    std::minstd_rand m_random;
};
