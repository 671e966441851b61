#pragma once

/** Registers all draggers and manipulators, so that they are known by name before the first of them is used. */
void registerManipTypes();
