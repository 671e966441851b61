#pragma once

class SoBase;
class SoInput;
class SoOutput;
class SoType;

/** Reads a path, or an object made of fields of the class that is asked for, or NULL. */
bool readReference(SoInput& in, SoType family, SoBase*& object);
void writeReference(SoOutput& out, SoBase* object);
