#pragma once

#include <vexel/nodes/SoNode.h>
#include <vexel/state/SoState.h>

/** The values of a list field of @p source as the state holds them. */
template <class Field>
auto stateList(const Field& field, const SoNode& source)
{
    return SoStateList<typename Field::ValueType>{field.getValues(), field.getNum(), &source};
}

/** Puts a list field into the state unless it is ignored, empty or overridden from above. */
template <class Field, class Value>
void applyList(SoState& state, const Field& field, const SoNode& source, SoOverrideBit kind, SoStateList<Value>& list)
{
    if (!field.isIgnored() && field.getNum() > 0 && state.mayChange(kind, source.isOverride()))
        list = stateList(field, source);
}

/** Puts a single value into the state unless it is ignored or overridden from above. */
template <class Field, class Value>
void applyValue(SoState& state, const Field& field, const SoNode& source, SoOverrideBit kind, Value& value)
{
    if (!field.isIgnored() && state.mayChange(kind, source.isOverride()))
        value = static_cast<Value>(field.getValue());
}
