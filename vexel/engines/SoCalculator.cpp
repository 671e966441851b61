#include <vexel/engines/SoCalculator.h>

#include <algorithm>
#include <string>

#include <vexel/base/SbString.h>
#include <vexel/base/SoDebugError.h>
#include <vexel/engines/detail/CalculatorCompiler.h>
#include <vexel/engines/detail/CalculatorProgram.h>

namespace {

namespace Variables = CalculatorVariables;

/** The values of one input that the program reads. */
struct Input {
    int variable;
    const float* numbers;
    const SbVec3f* vectors;
    int count;
};

void load(const Input& input, int place, CalculatorProgram::Variables& variables)
{
    CalculatorValue& variable = variables[static_cast<std::size_t>(input.variable)];
    const int index = std::min(place, input.count - 1);
    if (input.numbers)
        variable[0] = static_cast<double>(input.numbers[index]);
    else
        variable = CalculatorValue(input.vectors[index]);
}

} // namespace

SoCalculator::SoCalculator() = default;
SoCalculator::~SoCalculator() = default;

bool SoCalculator::inputChanged(const SoField* input)
{
    m_isComputed = false;
    // Without a field, anything may have changed.
    if (input == &expression || !input)
        m_isCompiled = false;
    return true;
}

void SoCalculator::compile()
{
    m_isCompiled = true;
    m_program = std::make_unique<CalculatorProgram>();
    for (int i = 0; i < expression.getNum(); ++i) {
        const std::string text = expression[i].toUtf8().toStdString();
        CalculatorMistake mistake;
        if (compileCalculation(text, *m_program, mistake))
            continue;
        const int place = SbString(std::string_view(text).substr(0, mistake.position)).getLength() + 1;
        SoDebugError::post("SoCalculator::expression",
                           "in \"%s\", at character %d: expected %s; the outputs keep their values", text.c_str(),
                           place, mistake.expected.c_str());
        m_program.reset();
        return;
    }
}

void SoCalculator::compute()
{
    m_isComputed = true;
    const SoMFFloat* const numbers[] = {&a, &b, &c, &d, &e, &f, &g, &h};
    const SoMFVec3f* const vectors[] = {&A, &B, &C, &D, &E, &F, &G, &H};
    std::vector<Input> inputs;
    int count = 1;
    for (int i = 0; i < Variables::Num_inputs; ++i) {
        if (!m_program->reads(i))
            continue;
        const bool isVector = Variables::isVector(i);
        const Input input{i, isVector ? nullptr : numbers[i]->getValues(),
                          isVector ? vectors[i - 8]->getValues() : nullptr,
                          isVector ? vectors[i - 8]->getNum() : numbers[i]->getNum()};
        count = std::max(count, input.count);
        if (input.count > 0)
            inputs.push_back(input);
    }
    std::vector<int> outputs;
    for (int i = 0; i < Variables::Num_outputs; ++i) {
        if (!m_program->writes(Variables::First_output + i))
            continue;
        outputs.push_back(i);
        if (i < 4)
            m_numbers[static_cast<std::size_t>(i)].resize(static_cast<std::size_t>(count));
        else
            m_vectors[static_cast<std::size_t>(i - 4)].resize(static_cast<std::size_t>(count));
    }
    for (int place = 0; place < count; ++place) {
        CalculatorProgram::Variables variables;
        for (const Input& input : inputs)
            load(input, place, variables);
        m_program->run(variables, m_random);
        for (const int i : outputs) {
            const CalculatorValue& value = variables[static_cast<std::size_t>(Variables::First_output + i)];
            if (i < 4)
                m_numbers[static_cast<std::size_t>(i)][static_cast<std::size_t>(place)] = static_cast<float>(value[0]);
            else
                m_vectors[static_cast<std::size_t>(i - 4)][static_cast<std::size_t>(place)] = SbVec3f(value);
        }
    }
}

void SoCalculator::evaluate(const SoEngineOutput& output, SoField& target)
{
    if (!m_isCompiled)
        compile();
    if (m_program && !m_isComputed)
        compute();
    // Empty as long as no expression assigned the output.
    const std::vector<SoEngineOutput*>& outputs = getOutputs();
    const auto index = static_cast<std::size_t>(std::find(outputs.begin(), outputs.end(), &output) - outputs.begin());
    if (index < 4 && !m_numbers[index].empty())
        static_cast<SoMFFloat&>(target).setValues(m_numbers[index].data(), static_cast<int>(m_numbers[index].size()));
    if (index >= 4 && !m_vectors[index - 4].empty())
        static_cast<SoMFVec3f&>(target).setValues(m_vectors[index - 4].data(),
                                                  static_cast<int>(m_vectors[index - 4].size()));
}
