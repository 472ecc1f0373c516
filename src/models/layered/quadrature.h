#pragma once

#include <array>
#include <cmath>
#include <cstddef>
#include <span>
#include <vector>

#include "models/layered/lanes.h"

namespace velmar::models {

// Integrals that refine themselves: Gauss and Gauss-Kronrod rules that share their nodes; an interval on
// which the two disagree is halved. A peak that lies on a cut is found, because the nodes crowd towards both
// ends.

/// How far to go.
struct QuadratureEffort {
  double tolerance = 1e-3;           ///< difference of the two rules on one interval, share of the whole
  std::size_t most_halvings = 2000;  ///< intervals halved before the result is taken as it is
};

/// Gauss 7 and Kronrod 15 on [-1, 1]; the sixteenth lane repeats the middle and weighs nothing.
inline constexpr Lanes kKronrod15Nodes = {
    -0.991455371120812639206854697526329, -0.949107912342758524526189684047851,
    -0.864864423359769072789712788640926, -0.741531185599394439863864773280788,
    -0.586087235467691130294144691258382, -0.405845151377397166906606412076961,
    -0.207784955007898467600689403773245, 0.0,
    0.207784955007898467600689403773245,  0.405845151377397166906606412076961,
    0.586087235467691130294144691258382,  0.741531185599394439863864773280788,
    0.864864423359769072789712788640926,  0.949107912342758524526189684047851,
    0.991455371120812639206854697526329,  0.0};
inline constexpr Lanes kKronrod15Weights = {
    0.022935322010529224963732008058970, 0.063092092629978553290700663189204,
    0.104790010322250183839876322541518, 0.140653259715525918745189590510238,
    0.169004726639267902826583426598550, 0.190350578064785409913256402421014,
    0.204432940075298892414161999234649, 0.209482141084727828012999174891714,
    0.204432940075298892414161999234649, 0.190350578064785409913256402421014,
    0.169004726639267902826583426598550, 0.140653259715525918745189590510238,
    0.104790010322250183839876322541518, 0.063092092629978553290700663189204,
    0.022935322010529224963732008058970, 0.0};
inline constexpr Lanes kGauss7Weights = {
    0.0, 0.129484966168869693270611432679082, 0.0, 0.279705391489276667901467771423780,
    0.0, 0.381830050505118944950369775488975, 0.0, 0.417959183673469387755102040816327,
    0.0, 0.381830050505118944950369775488975, 0.0, 0.279705391489276667901467771423780,
    0.0, 0.129484966168869693270611432679082, 0.0, 0.0};

/// Gauss 3 and Kronrod 7 on [-1, 1].
inline constexpr std::array<double, 7> kKronrod7Nodes = {
    -0.960491268708020283423507092629080, -0.774596669241483377035853079956480,
    -0.434243749346802558002071502844628, 0.0,
    0.434243749346802558002071502844628,  0.774596669241483377035853079956480,
    0.960491268708020283423507092629080};
inline constexpr std::array<double, 7> kKronrod7Weights = {
    0.104656226026467265193823857192073, 0.268488089868333440728569280666710,
    0.401397414775962222905051818618432, 0.450916538658474142345110087045571,
    0.401397414775962222905051818618432, 0.268488089868333440728569280666710,
    0.104656226026467265193823857192073};
inline constexpr std::array<double, 7> kGauss3Weights = {0.0, 5.0 / 9.0, 0.0, 8.0 / 9.0, 0.0, 5.0 / 9.0, 0.0};

/// Halves the intervals between `cuts` until the rules agree.
/// @param cuts ascending, at least two
/// @param rule rule(a, b, error): the integral from a to b by the finer rule, a value that adds and
/// subtracts; `error` receives the size of the difference to the coarser one
/// @param size size(value): the value's size as a double
template <typename Value, typename Rule, typename Size>
Value IntegrateAdaptively(std::span<const double> cuts, const QuadratureEffort& effort, const Rule& rule,
                          const Size& size) {
  struct Interval {
    double begin;
    double end;
    Value value;
    double error;
  };
  std::vector<Interval> open;
  Value total{};
  for (std::size_t i = 0; i + 1 < cuts.size(); ++i) {
    if (!(cuts[i + 1] > cuts[i])) continue;
    double error = 0.0;
    const Value value = rule(cuts[i], cuts[i + 1], error);
    total += value;
    open.push_back({cuts[i], cuts[i + 1], value, error});
  }
  for (std::size_t halvings = 0; !open.empty() && halvings < effort.most_halvings;) {
    const Interval interval = open.back();
    open.pop_back();
    if (!(interval.error > effort.tolerance * size(total))) continue;
    const double middle = 0.5 * (interval.begin + interval.end);
    if (!(interval.begin < middle && middle < interval.end)) continue;
    double left_error = 0.0;
    double right_error = 0.0;
    const Value left = rule(interval.begin, middle, left_error);
    const Value right = rule(middle, interval.end, right_error);
    total += left;
    total += right;
    total -= interval.value;
    open.push_back({interval.begin, middle, left, left_error});
    open.push_back({middle, interval.end, right, right_error});
    ++halvings;
  }
  return total;
}

/// The integral of a function that is evaluated kAngleLanes at a time.
/// @param integrand integrand(points, values), both Lanes
template <typename Integrand>
double IntegrateLanes(std::span<const double> cuts, const QuadratureEffort& effort,
                      const Integrand& integrand) {
  const auto rule = [&](double begin, double end, double& error) {
    const double half = 0.5 * (end - begin);
    Lanes points;
    Lanes values;
    for (std::size_t l = 0; l < kAngleLanes; ++l) points[l] = begin + half * (1.0 + kKronrod15Nodes[l]);
    integrand(points, values);
    double fine = 0.0;
    double coarse = 0.0;
    for (std::size_t l = 0; l < kAngleLanes; ++l) {
      fine += kKronrod15Weights[l] * values[l];
      coarse += kGauss7Weights[l] * values[l];
    }
    error = half * std::abs(fine - coarse);
    return half * fine;
  };
  return IntegrateAdaptively<double>(cuts, effort, rule, [](double value) { return std::abs(value); });
}

/// The integral of a function of one point at a time, whose value adds, subtracts and takes a factor.
/// @param size size(value): the value's size as a double
template <typename Value, typename Integrand, typename Size>
Value IntegratePoints(std::span<const double> cuts, const QuadratureEffort& effort,
                      const Integrand& integrand, const Size& size) {
  const auto rule = [&](double begin, double end, double& error) {
    const double half = 0.5 * (end - begin);
    Value fine{};
    Value coarse{};
    for (std::size_t i = 0; i < kKronrod7Nodes.size(); ++i) {
      const Value value = integrand(begin + half * (1.0 + kKronrod7Nodes[i]));
      fine += value * (half * kKronrod7Weights[i]);
      coarse += value * (half * kGauss3Weights[i]);
    }
    error = std::abs(size(fine) - size(coarse));
    return fine;
  };
  return IntegrateAdaptively<Value>(cuts, effort, rule, size);
}

}  // namespace velmar::models
