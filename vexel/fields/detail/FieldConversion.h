#pragma once

class SoField;
class SoType;

/** True when a field of type @p from can give its value to one of type @p to. */
bool canConvertField(SoType from, SoType to);

/** Gives the value of @p from to @p to, converted when the types differ. */
void convertField(const SoField& from, SoField& to);
