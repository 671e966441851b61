#pragma once

class SoBase;
class SoInput;
class SoOutput;
class SoType;

/** Reads a node, path or engine, as the type of the field asks, or NULL. */
bool readReference(SoInput& in, SoType fieldType, SoBase*& object);
void writeReference(SoOutput& out, SoBase* object);
