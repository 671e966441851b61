#pragma once

/** Depth by which lines, points and texts are nearer than surfaces on which they lie. */
constexpr double Line_lead = 2e-5;
