#include <cmath>
#include <vector>

#include "acoustics/fine_grid.h"
#include "foundation/failure.h"
#include "tests/models/walls/plain_walls.h"

namespace velmar::models {
namespace {

double Quotient(double x, double y) {
  if (y == 0.0) throw ArithmeticFailure("division by zero");
  return RequireFinite(x / y, "a quotient");
}

double Lg(double x) {
  if (!(x > 0.0)) throw ArithmeticFailure("logarithm of a non-positive number");
  return RequireFinite(std::log(x) / std::log(10.0), "a logarithm");
}

/// The run of a light wall with its running values under the names of their formulas.
struct PlainLightWall {
  const LightDoubleWallInput& in;
  double m1 = 0.0, m2 = 0.0, eta1 = 0.0, eta2 = 0.0, fd = 0.0, f0 = 0.0;
  double fc_leaf1 = -1.0, fc_leaf2 = -1.0, fc_max = -1.0;
  bool max_in_leaf2 = false;
  acoustics::Spectrum spectrum{};
  std::size_t k = 0;

  void Sum() {
    for (std::size_t i = 0; i < in.leaf1.count; ++i) {
      const int n = in.leaf1.rows[i].multiplicity;
      m1 += in.leaf2.rows[i].thickness_mm * 0.001 * in.leaf1.rows[i].density_kg_m3 * n;
      eta1 += n * in.leaf1.rows[i].loss_factor;
    }
    for (std::size_t i = 0; i < in.leaf2.count; ++i) {
      const int n = in.leaf2.rows[i].multiplicity;
      m2 += in.leaf2.rows[i].thickness_mm * 0.001 * in.leaf2.rows[i].density_kg_m3 * n;
      eta2 += n * in.leaf1.rows[i].loss_factor;
    }
    fd = Quotient(55, in.depth_m);
    const double me = Quotient(2 * m1 * m2, m1 + m2);
    f0 = Quotient(113, std::sqrt(me * in.depth_m));
  }

  std::vector<double> SheetCurve(const PlateLayer& row, double eta, bool second_leaf) {
    const double h = row.thickness_mm * 0.001;
    const double m = row.density_kg_m3 * h;
    const double q =
        Quotient(row.youngs_modulus_gpa * 1e9 * std::pow(h, 2), 1 - std::pow(row.poissons_ratio, 2));
    const double fc = (std::pow(350.9, 2) / 6.2832) * std::pow(Quotient(12 * Quotient(m, h), q), 0.5);
    RequireFinite(fc, "a critical frequency");
    double& fc_leaf = second_leaf ? fc_leaf2 : fc_leaf1;
    if (fc >= fc_leaf) fc_leaf = fc;
    if (fc >= fc_max) {
      fc_max = fc;
      if (second_leaf) max_in_leaf2 = true;
    }
    const double r_half = 20 * Lg(m * fc / 2) - 48;
    const double r_crit = 20 * Lg((6.2832 * m * fc) / 905.322) +
                          10 * Lg((4 * eta * 3.1416 * fc) / (2 * std::pow(3.1416, 2) * fc));
    const double a = (r_crit - r_half) / (fc - fc / 2);
    const double c = r_half - a * (fc / 2);
    std::vector<double> curve;
    for (int f = 50; f <= 4990; f += 10) {
      double r = 0.0;
      if (f < fc / 2) {
        r = 20 * Lg(f * m) - 48;
      } else if (f < fc) {
        r = a * f + c;
      } else {
        r = 20 * Lg((f * 6.2832 * m) / 905.322) +
            10 * Lg((4 * eta * 3.1416 * f) / (2 * std::pow(3.1416, 2) * fc));
      }
      if (r > 20 * Lg(f * m) - 48) r = 20 * Lg(f * m) - 48;
      curve.push_back(r);
    }
    return curve;
  }

  acoustics::Spectrum LeafBands(const LeafRows& leaf, double eta, bool second_leaf) {
    std::vector<std::vector<double>> sheets;
    for (std::size_t i = 0; i < leaf.count; ++i) {
      for (int n = 0; n < leaf.rows[i].multiplicity; ++n) {
        sheets.push_back(SheetCurve(leaf.rows[i], eta, second_leaf));
      }
    }
    std::vector<double> curve;
    for (int f = 50; f <= 4990; f += 10) {
      const auto point = static_cast<std::size_t>((f - 50) / 10);
      double r = sheets.at(0)[point];
      if (sheets.size() >= 2) {
        double sum = 0.0;
        for (const auto& sheet : sheets) sum += std::pow(10, sheet[point] / 10);
        r = 10 * Lg(sum);
      }
      if (in.cavity_kind == CavityKind::kEmpty && f > f0) r -= 2.0;
      curve.push_back(r);
    }
    return acoustics::AverageIntoBands(curve, 50);
  }

  void FindWall() {
    const acoustics::Spectrum leaf1 = LeafBands(in.leaf1, eta1, false);
    const acoustics::Spectrum leaf2 = LeafBands(in.leaf2, eta2, true);
    double peak = -1;
    for (std::size_t i = 0; i <= 20; ++i) {
      const double f = acoustics::BandCentre(i);
      if (f <= f0) spectrum[i] = 20 * Lg((m1 + m2) * f) - 48;
      if (f > f0 && f < fd) spectrum[i] = leaf1[i] + leaf2[i] + 20 * Lg(f * in.depth_m) - 29;
      if (f > f0 && f >= fd) spectrum[i] = leaf1[i] + leaf2[i] + 6.0;
      if (f <= fc_max && spectrum[i] >= peak) {
        peak = spectrum[i];
        k = i;
      }
    }
  }

  double Bridged(double f) const {
    const double x = max_in_leaf2 ? m1 : m2;
    const double b = in.stud_distance_m;
    const double p1 = std::sqrt(f / fc_leaf1) * 350.9 * m1 * 2 * in.dim_b_m;
    const double p2 = std::sqrt(f / fc_leaf2) * 350.9 * m2 * 2 * in.dim_b_m;
    const double a1 = std::pow(350.9, 2) * (4 / 3.1416) * (m1 / fc_leaf1);
    const double a2 = std::pow(350.9, 2) * (4 / 3.1416) * (m2 / fc_leaf2);
    const double t1 = 20 * Lg(Quotient((p1 + p2) * x, (m1 + m2) * p1));
    const double t2 = 20 * Lg(Quotient((a2 + a1) * x, (m1 + m2) * a1));
    const double t3 = 20 * Lg(Quotient((p1 + a2) * x, (m1 + m2) * p1));
    const double m = 20 * Lg((m1 + m2) * f) - 48;
    if (in.form == LightWallForm::kLineLine) return m + 10 * Lg(b * fc_max) + t1 - 18;
    if (in.form == LightWallForm::kLinePoint) return m + 20 * Lg(b * fc_max) + t3 - 45;
    return m + 20 * Lg(b * fc_max) + t2 - 45;
  }

  void Limit() {
    int j = 0;
    bool lowered = false;
    bool restored = false;
    double big_d = 0.0;
    acoustics::Spectrum b{};
    for (std::size_t i = 0; i <= 20; ++i) {
      b[i] = Bridged(acoustics::BandCentre(i));
      if (i >= k) {
        if (i == k) big_d = spectrum[k] - b[k];
        spectrum[i] = spectrum[i] - big_d;
      } else if (b[i] >= spectrum[i]) {
        if (i > 1 && lowered && !restored) {
          spectrum[i - 1] = b[i - 2] + 1.0;
          restored = true;
        }
      } else {
        if (!lowered) j = static_cast<int>(i) - 1;
        lowered = true;
        spectrum[i] = b[i];
      }
    }
    if (j > 0 && j <= 19) {
      const auto at = static_cast<std::size_t>(j);
      spectrum[at] = (spectrum[at - 1] + spectrum[at + 1]) / 2;
    }
  }
};

}  // namespace

acoustics::Spectrum PlainLightDoubleWall(const LightDoubleWallInput& input) {
  PlainLightWall wall{input};
  wall.Sum();
  wall.FindWall();
  if (input.form == LightWallForm::kLineLine || input.form == LightWallForm::kLinePoint ||
      input.form == LightWallForm::kPointPoint) {
    wall.Limit();
  }
  return wall.spectrum;
}

}  // namespace velmar::models
