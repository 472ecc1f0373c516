#pragma once

#include <span>

#include "models/plates/impedance.h"

namespace velmar::models {

// Sound transmission of one, two or three parallel plates in a diffuse field: impedances in series at one
// angle of incidence, integrated up to a limiting angle of 72 degrees. The integral is not divided by that of
// sin 2 theta. With one plate the cavity is not read; with none, or more than three, nothing is transmitted
// and the reduction indices fail.

/// Transmission coefficient at frequency `frequency_hz` (above 0) and angle of incidence `theta` (radians).
/// The air counts twice with one plate, three times with two and with three.
double TauAngle(double frequency_hz, double theta, std::span<const Plate> plates, const Cavity& cavity);

/// Transmission coefficient in a diffuse field at `frequency_hz`: the trapezoidal rule over 20 steps of
/// angle.
double Tau(double frequency_hz, std::span<const Plate> plates, const Cavity& cavity);

/// Reduction index in dB at exactly `frequency_hz`.
/// @throws ArithmeticFailure when nothing is transmitted or the result is not finite
double PointR(double frequency_hz, std::span<const Plate> plates, const Cavity& cavity);

/// Reduction index in dB over the third of an octave around `frequency_hz`: the mean in decibels of PointR()
/// at 21 frequencies, linear in frequency, by the trapezoidal rule.
/// @throws ArithmeticFailure when nothing is transmitted or the result is not finite
double BandR(double frequency_hz, std::span<const Plate> plates, const Cavity& cavity);

/// BandR() of a single plate.
double BandR(double frequency_hz, const Plate& plate);

}  // namespace velmar::models
