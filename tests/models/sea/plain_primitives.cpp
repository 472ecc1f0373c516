#include "tests/models/sea/plain_primitives.h"

#include <algorithm>
#include <cmath>

#include "acoustics/logarithm.h"
#include "foundation/failure.h"
#include "foundation/rounding.h"

namespace velmar::plain {
namespace {

double Level(double x) { return 10.0 * acoustics::Log10(x); }
double Power(double level) { return std::pow(10.0, level / 10.0); }
double Finite(double x) { return RequireFinite(x, "plain value"); }
double Hz(std::size_t f) { return static_cast<double>(f); }

double Resonance(double m1, double m2, double d) {
  const double stiffness = std::pow(350.9, 2) * 1.29 * (m1 + m2);
  return Finite(1 / 6.2832 * std::sqrt(stiffness / (m1 * m2 * d)));
}

std::size_t Whole(double f0) { return static_cast<std::size_t>(RoundToEven(std::min(f0, 6000.0))); }

/// A straight line through two band values, written to every Hz between them.
void Spread(double x0, double y0, double x1, double y1, HzSpectrum& out) {
  const double s = (y1 - y0) / (x1 - x0);
  const double q = y0 - x0 * s;
  for (int f = static_cast<int>(RoundToEven(x0)); f <= static_cast<int>(RoundToEven(x1)) && f < 6001; ++f) {
    out[static_cast<std::size_t>(f)] = s * f + q;
  }
}

}  // namespace

HzSpectrum LeafTransmission(const HzSpectrum& sigma, double cl, double m, double h, double eta_int) {
  HzSpectrum r{};
  const double k = std::pow(350.9, 3) * (std::sqrt(12.0) * 3.1416) * 1.29;
  for (std::size_t i = 1; i <= 6000; ++i) {
    const double omega = 6.2832 * Hz(i);
    const double eta = eta_int + m / (485 * std::sqrt(Hz(i)));
    const double x =
        Finite(std::pow(sigma[i], 2) * k / (2 * std::pow(omega, 3) * std::pow(m, 2) * h * eta * cl));
    const double y = Finite(1422.0797976 / (std::pow(m, 2) * std::pow(omega, 2)));
    r[i] = Level(1 / 1810.644 / (x + y));
    const double r_max = Level(1 + std::pow(omega * m / 905.322, 2)) - 5;
    if (r[i] >= r_max) r[i] = r_max;
    if (r[i] < 0) r[i] = 0;
  }
  return r;
}

HzSpectrum PorousLayerAttenuation(bool present, double thickness, double density, HzSpectrum alpha) {
  HzSpectrum a{};
  const double m = thickness * density;
  for (std::size_t f = 1; f <= 6000; ++f) {
    if (!present) {
      a[f] = -10 * acoustics::Log10(0.98);
      continue;
    }
    if (alpha[f] >= 1) alpha[f] = alpha[f - 1];
    const double ra = Level(Finite(1 / (1 - alpha[f]))) - 10 * acoustics::Log10(0.98);
    const double rm = 20 * acoustics::Log10(Hz(f) * 3.1416 * m / 452.661) - 5.5;
    a[f] = Level(Power(ra) + Power(rm));
  }
  return a;
}

HzSpectrum PointBridgeCoupling(double m, double h, double eta, double cl, const HzSpectrum& sigma, long n) {
  HzSpectrum coupling{};
  if (n == 0) return coupling;
  for (std::size_t f = 1; f <= 6000; ++f) {
    const double omega = 6.2832 * Hz(f);
    const double t1 = sigma[f] * 452.661 / (std::pow(m, 2) * 2.3 * cl * h * omega * eta);
    const double t2 = 1 / 6.2832 * 1.29 / (std::pow(m, 2) * 350.9);
    const double u = 1 / (std::pow(h, 2) * (m * 2.3 * cl));
    coupling[f] = Finite((t1 + t2) / u * static_cast<double>(n));
  }
  return coupling;
}

void LineBridgeCoupling(double m, double eta, double fc, const HzSpectrum& sigma, double n, double b,
                        HzSpectrum& coupling) {
  for (std::size_t f = 1; f <= 6000; ++f) {
    if (n == 0) continue;
    const double omega = 6.2832 * Hz(f);
    const double conductance = std::pow(b, 2) / (std::sqrt(Hz(f) / fc) * (2 * b * m * 350.9));
    const double t = 1.29 / (std::pow(m, 2) * omega) + sigma[f] * 452.661 * conductance / (omega * m * eta);
    coupling[f] = Finite(t / conductance * n);
  }
}

HzSpectrum AbsorptionPerHz(const models::AbsorptionBands& bands) {
  HzSpectrum out{};
  for (std::size_t i = 0; i < bands.size(); ++i) {
    const double x1 = models::AbsorptionBandFrequency(i);
    if (i == 0) {
      Spread(0, 0, x1, bands[0], out);
      continue;
    }
    const double y0 = bands[i - 1] >= 0.99 ? 0.99 : bands[i - 1];
    const double y1 = bands[i] >= 0.99 ? 0.99 : bands[i];
    Spread(models::AbsorptionBandFrequency(i - 1), y0, x1, y1, out);
  }
  return out;
}

HzSpectrum SpectrumPerHz(const acoustics::Spectrum& bands) {
  HzSpectrum out{};
  for (std::size_t i = 0; i < bands.size(); ++i) {
    const double x0 = i == 0 ? 0.0 : acoustics::BandCentre(i - 1);
    Spread(x0, i == 0 ? 0.0 : bands[i - 1], acoustics::BandCentre(i), bands[i], out);
  }
  return out;
}

acoustics::Spectrum BandAverage(BandAverageInput in) {
  const bool is_double = in.m1 > 0 && in.m2 > 0;
  const std::size_t f0 = is_double ? Whole(Resonance(in.m1, in.m2, in.d)) : 0;
  for (std::size_t f = 1; f <= 6000; ++f) {
    if (in.w[f] == 0) continue;
    HzSpectrum& heavier = in.m1 >= in.m2 ? in.r1 : in.r2;
    heavier[f] = Level(Power(heavier[f]) + in.w[f]);
  }
  HzSpectrum total{};
  for (std::size_t f = 1; f <= 6000; ++f) {
    total[f] = f <= f0 ? 20 * acoustics::Log10((in.m1 + in.m2) * Hz(f)) - 48 : in.r1[f] + in.r2[f] + in.r3[f];
  }
  acoustics::Spectrum bands{};
  std::size_t cursor = 44;
  for (std::size_t i = 0; i < bands.size(); ++i) {
    const double limit = i == 20 ? 5600 : acoustics::BandUpperEdge(i);
    for (double count = 0; Hz(cursor) < limit; ++count, ++cursor) {
      bands[i] = (count * bands[i] + total[cursor]) / (count + 1);
    }
    Finite(bands[i]);
  }
  return bands;
}

HzSpectrum CavityCombine(const CavityCombineInput& in) {
  const std::size_t f0 = in.m0 > 0 && in.m1 > 0 ? Whole(Resonance(in.m0, in.m1, in.d)) : 0;
  HzSpectrum rc{};
  for (std::size_t f = 1; f <= 6000; ++f) {
    rc[f] = f <= f0 ? 20 * acoustics::Log10((in.m0 + in.m1) * Hz(f)) - 48 : in.r0[f] + in.r1[f] + in.f[f];
    rc[f] = -10 * acoustics::Log10(std::pow(10.0, -rc[f] / 10) + in.ta[f] + in.tb[f]);
    if (rc[f] < 0) rc[f] = 0;
  }
  return rc;
}

}  // namespace velmar::plain
