#pragma once

/** The device for which enhanced metafiles say they are made: a square of even resolution, larger than most sheets. */
namespace EmfDevice {

constexpr int Millimetres = 508;
constexpr int Pixels = 5080;
constexpr double Pixels_per_millimetre = double(Pixels) / Millimetres;

} // namespace EmfDevice
