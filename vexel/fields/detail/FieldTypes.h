#pragma once

/** Registers all field classes, so that they are known by name before the first of them is used. */
void registerFieldTypes();
