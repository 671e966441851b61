#pragma once

/** Registers all classes of kits, so that they are known by name before the first of them is used. */
void registerKitTypes();
