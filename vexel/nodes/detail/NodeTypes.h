#pragma once

/** Registers all node classes, so that they are known by name before the first of them is used. */
void registerNodeTypes();
