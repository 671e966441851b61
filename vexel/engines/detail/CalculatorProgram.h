#pragma once

#include <array>
#include <cstdint>
#include <vector>

#include <vexel/engines/detail/CalculatorFunctions.h>

/** The variables of expressions: a to h, A to H, ta to th, tA to tH, oa to od, oA to oD, numbered in this order. */
namespace CalculatorVariables {

constexpr int Num_inputs = 16;
constexpr int First_output = 32;
constexpr int Num_outputs = 8;
constexpr int Num_all = First_output + Num_outputs;

/** Number of the variable of that name, or -1. */
int find(std::string_view name);
/** Whether a variable holds a vector: those of the second half of each group. */
constexpr bool isVector(int variable)
{
    return variable < First_output ? variable % 16 >= 8 : variable - First_output >= Num_outputs / 2;
}

} // namespace CalculatorVariables

/** A compiled expression: steps of a machine that keeps its intermediate values on a stack. */
class CalculatorProgram {
public:
    using Variables = std::array<CalculatorValue, CalculatorVariables::Num_all>;

    void addNumber(double number);
    void addLoad(int variable);
    /** Exchanges the vector on top of the stack for one of its components. */
    void addComponent(int component);
    /** Exchanges the operands on top of the stack for the result. */
    void addCall(const CalculatorFunction& function);
    /** Takes the top of the stack as the value of a variable, or of one component of it. */
    void addStore(int variable);
    void addStore(int variable, int component);

    bool reads(int variable) const { return m_reads[static_cast<std::size_t>(variable)]; }
    bool writes(int variable) const { return m_writes[static_cast<std::size_t>(variable)]; }

    void run(Variables& variables, std::minstd_rand& random);

private:
    enum class Operation : std::uint8_t { Number, Load, Component, Call, Store, StoreComponent };
    struct Step {
        Operation operation;
        std::uint8_t variable = 0;
        std::uint8_t component = 0;
        double number = 0;
        const CalculatorFunction* function = nullptr;
    };

    std::vector<Step> m_steps;
    std::vector<CalculatorValue> m_stack;
    std::array<bool, CalculatorVariables::Num_all> m_reads{};
    std::array<bool, CalculatorVariables::Num_all> m_writes{};
};
