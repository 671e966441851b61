#pragma once

class SoField;
class SoOutput;

/** True for a field that SoDB::createGlobalField() made. */
bool isGlobalField(const SoField& field);
/** Writes a global field with its value. */
void writeGlobalField(SoOutput& out, const SoField& field);
