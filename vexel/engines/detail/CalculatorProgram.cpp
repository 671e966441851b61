#include <vexel/engines/detail/CalculatorProgram.h>

int CalculatorVariables::find(std::string_view name)
{
    const char group = name.size() == 2 ? name[0] : (name.size() == 1 ? ' ' : '\0');
    const bool isOutput = group == 'o';
    if (group != ' ' && group != 't' && !isOutput)
        return -1;
    const int size = isOutput ? Num_outputs / 2 : 8;
    const int first = isOutput ? First_output : (group == 't' ? Num_inputs : 0);
    const char letter = name.back();
    if (letter >= 'a' && letter < 'a' + size)
        return first + letter - 'a';
    if (letter >= 'A' && letter < 'A' + size)
        return first + size + letter - 'A';
    return -1;
}

void CalculatorProgram::addNumber(double number)
{
    Step step{Operation::Number};
    step.number = number;
    m_steps.push_back(step);
}

void CalculatorProgram::addLoad(int variable)
{
    m_steps.push_back({Operation::Load, static_cast<std::uint8_t>(variable)});
    m_reads[static_cast<std::size_t>(variable)] = true;
}

void CalculatorProgram::addComponent(int component)
{
    m_steps.push_back({Operation::Component, 0, static_cast<std::uint8_t>(component)});
}

void CalculatorProgram::addCall(const CalculatorFunction& function)
{
    Step step{Operation::Call};
    step.function = &function;
    m_steps.push_back(step);
}

void CalculatorProgram::addStore(int variable)
{
    m_steps.push_back({Operation::Store, static_cast<std::uint8_t>(variable)});
    m_writes[static_cast<std::size_t>(variable)] = true;
}

void CalculatorProgram::addStore(int variable, int component)
{
    m_steps.push_back(
        {Operation::StoreComponent, static_cast<std::uint8_t>(variable), static_cast<std::uint8_t>(component)});
    m_writes[static_cast<std::size_t>(variable)] = true;
}

void CalculatorProgram::run(Variables& variables, std::minstd_rand& random)
{
    m_stack.clear();
    for (const Step& step : m_steps) {
        switch (step.operation) {
        case Operation::Number:
            m_stack.emplace_back(step.number, 0.0, 0.0);
            break;
        case Operation::Load:
            m_stack.push_back(variables[step.variable]);
            break;
        case Operation::Component:
            m_stack.back() = CalculatorValue(m_stack.back()[step.component], 0.0, 0.0);
            break;
        case Operation::Call: {
            const std::size_t base = m_stack.size() - step.function->operands.size();
            m_stack[base] = step.function->call(&m_stack[base], random);
            m_stack.resize(base + 1);
            break;
        }
        case Operation::Store:
            variables[step.variable] = m_stack.back();
            m_stack.pop_back();
            break;
        case Operation::StoreComponent:
            variables[step.variable][step.component] = m_stack.back()[0];
            m_stack.pop_back();
            break;
        }
    }
}
