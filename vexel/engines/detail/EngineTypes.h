#pragma once

/** Registers all engine classes, so that scenes can name them. */
void registerEngineTypes();
