#pragma once

#include "acoustics/bands.h"
#include "models/sea/hz_spectrum.h"
#include "models/sea/per_hz_spectra.h"
#include "models/sea/plate_radiation.h"

/// The formulas of the energy balances written down one by one, in decibels, each Hz by itself. Slow on
/// purpose: what the models are compared with.
namespace velmar::plain {

using models::HzSpectrum;

struct Plate {
  HzSpectrum sigma{};
  double fc = 0.0;
  double cl = 0.0;
  double m = 0.0;
  double h = 0.0;
};

/// After a numeric failure all outputs are zero.
Plate PlateRadiation(const models::SeaPlateInput& input);
HzSpectrum LeafTransmission(const HzSpectrum& sigma, double cl, double m, double h, double eta_int);
HzSpectrum PorousLayerAttenuation(bool present, double thickness, double density, HzSpectrum alpha);
HzSpectrum PointBridgeCoupling(double m, double h, double eta, double cl, const HzSpectrum& sigma, long n);
void LineBridgeCoupling(double m, double eta, double fc, const HzSpectrum& sigma, double n, double b,
                        HzSpectrum& coupling);
HzSpectrum AbsorptionPerHz(const models::AbsorptionBands& bands);
HzSpectrum SpectrumPerHz(const acoustics::Spectrum& bands);

struct BandAverageInput {
  HzSpectrum r1{};
  HzSpectrum r2{};
  HzSpectrum r3{};
  HzSpectrum w{};
  double m1 = 0.0;
  double m2 = 0.0;
  double d = 0.0;
};
acoustics::Spectrum BandAverage(BandAverageInput input);

struct CavityCombineInput {
  HzSpectrum r0{};
  HzSpectrum r1{};
  HzSpectrum f{};
  HzSpectrum ta{};
  HzSpectrum tb{};
  double m0 = 0.0;
  double m1 = 0.0;
  double d = 0.0;
};
HzSpectrum CavityCombine(const CavityCombineInput& input);

}  // namespace velmar::plain
