#include "validation/error_model.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <functional>
#include <limits>
#include <map>
#include <numbers>
#include <numeric>
#include <stdexcept>

namespace velmar::validation {
namespace {

using Matrix = std::vector<std::vector<double>>;

constexpr std::size_t kTrendCount = 3;
constexpr std::size_t kObservationsPerTerm = 6;
constexpr std::size_t kFewestFilled = 4;
constexpr std::size_t kFewestToLearnFrom = 3;
constexpr double kSingular = 1e-9;
constexpr double kSameFeature = 1e-3;
constexpr double kLeastResidual = 1e-9;  // keeps the logarithm of a perfect fit finite

double LogOrZero(double value) { return value > 0.0 ? std::log10(value) : 0.0; }

std::array<double, kTrendCount> TrendsOf(const Features& features) {
  return {LogOrZero(features.mass_kg_m2), LogOrZero(features.depth_mm), features.filled ? 1.0 : 0.0};
}

std::vector<double> RowFor(const Features& features, const std::vector<std::size_t>& trends) {
  std::vector<double> row = {1.0};
  const auto values = TrendsOf(features);
  for (const std::size_t trend : trends) row.push_back(values.at(trend));
  return row;
}

/// The inverse by Gauss and Jordan with pivots; nothing for a singular matrix.
std::optional<Matrix> Inverse(Matrix matrix) {
  const std::size_t size = matrix.size();
  for (std::size_t i = 0; i < size; ++i) {
    matrix[i].resize(2 * size, 0.0);
    matrix[i][size + i] = 1.0;
  }
  for (std::size_t i = 0; i < size; ++i) {
    std::size_t pivot = i;
    for (std::size_t row = i; row < size; ++row) {
      if (std::abs(matrix[row][i]) > std::abs(matrix[pivot][i])) pivot = row;
    }
    if (std::abs(matrix[pivot][i]) < kSingular) return std::nullopt;
    std::swap(matrix[i], matrix[pivot]);
    const double head = matrix[i][i];
    for (double& value : matrix[i]) value /= head;
    for (std::size_t row = 0; row < size; ++row) {
      if (row == i) continue;
      const double factor = matrix[row][i];
      for (std::size_t column = 0; column < 2 * size; ++column)
        matrix[row][column] -= factor * matrix[i][column];
    }
  }
  for (std::vector<double>& row : matrix)
    row.erase(row.begin(), row.begin() + static_cast<std::ptrdiff_t>(size));
  return matrix;
}

double Product(const std::vector<double>& a, const std::vector<double>& b) {
  return std::inner_product(a.begin(), a.end(), b.begin(), 0.0);
}

/// Least squares over a set of trends.
struct Regression {
  std::vector<std::size_t> trends{};
  std::vector<double> coefficients{};
  Matrix inverse{};
  std::vector<double> residuals{};
  double criterion = std::numeric_limits<double>::infinity();
};

std::optional<Regression> Regress(const std::vector<Observation>& observations,
                                  std::vector<std::size_t> trends) {
  const std::size_t size = trends.size() + 1;
  Matrix normal(size, std::vector<double>(size, 0.0));
  std::vector<double> right(size, 0.0);
  for (const Observation& observation : observations) {
    const std::vector<double> row = RowFor(observation.features, trends);
    for (std::size_t i = 0; i < size; ++i) {
      right[i] += row[i] * observation.error_db;
      for (std::size_t j = 0; j < size; ++j) normal[i][j] += row[i] * row[j];
    }
  }
  std::optional<Matrix> inverse = Inverse(std::move(normal));
  if (!inverse) return std::nullopt;
  Regression regression{.trends = std::move(trends), .inverse = std::move(*inverse)};
  for (const std::vector<double>& row : regression.inverse)
    regression.coefficients.push_back(Product(row, right));
  double squares = 0.0;
  for (const Observation& observation : observations) {
    const double residual = observation.error_db -
                            Product(regression.coefficients, RowFor(observation.features, regression.trends));
    regression.residuals.push_back(residual);
    squares += residual * residual;
  }
  const auto n = static_cast<double>(observations.size());
  const auto parameters = static_cast<double>(size + 1);
  regression.criterion = n * std::log(std::max(squares, kLeastResidual) / n) + 2.0 * parameters * std::log(n);
  return regression;
}

/// Whether the data can tell anything of one trend.
bool IsDetermined(const std::vector<Observation>& observations, std::size_t trend) {
  constexpr std::size_t kFill = 2;
  double least = std::numeric_limits<double>::infinity();
  double greatest = -least;
  std::size_t filled = 0;
  for (const Observation& observation : observations) {
    const double value = TrendsOf(observation.features).at(trend);
    least = std::min(least, value);
    greatest = std::max(greatest, value);
    if (observation.features.filled) ++filled;
  }
  if (trend == kFill) return filled >= kFewestFilled && observations.size() - filled >= kFewestFilled;
  return greatest - least > kSameFeature;
}

/// The regression with the least criterion among all sets of trends.
Regression BestRegression(const std::vector<Observation>& observations) {
  std::optional<Regression> best;
  for (unsigned set = 0; set < 1U << kTrendCount; ++set) {
    std::vector<std::size_t> trends;
    bool determined = true;
    for (std::size_t trend = 0; trend < kTrendCount; ++trend) {
      if ((set >> trend & 1U) == 0U) continue;
      trends.push_back(trend);
      determined = determined && IsDetermined(observations, trend);
    }
    if (!trends.empty() && observations.size() < kObservationsPerTerm * (trends.size() + 1)) continue;
    if (!determined) continue;
    std::optional<Regression> regression = Regress(observations, std::move(trends));
    if (regression && (!best || regression->criterion < best->criterion)) best = std::move(regression);
  }
  return best.value();
}

/// Mean and sum of squares of the residuals of one source.
struct SourceResiduals {
  double count = 0.0;
  double sum = 0.0;
  double squares = 0.0;

  double Mean() const { return sum / count; }
  double Within() const { return std::max(0.0, squares - sum * sum / count); }
};

Coverage Try(const std::vector<Observation>& observations,
             const std::function<bool(const Observation&, const Observation&)>& learns_from) {
  Coverage coverage;
  for (const Observation& tried : observations) {
    std::vector<Observation> others;
    for (const Observation& other : observations) {
      if (&other != &tried && learns_from(tried, other)) others.push_back(other);
    }
    if (others.size() < kFewestToLearnFrom) continue;
    const ErrorEstimate estimate = ErrorModel(others).At(tried.features);
    ++coverage.tried;
    if (std::abs(tried.error_db - estimate.bias_db) <= estimate.half_width_db) ++coverage.held;
  }
  return coverage;
}

}  // namespace

ErrorModel::ErrorModel(const std::vector<Observation>& observations)
    : observation_count_(observations.size()) {
  if (observations.size() < kFewestToLearnFrom)
    throw std::invalid_argument("too few observations of an error");
  Regression regression = BestRegression(observations);
  std::map<std::string, SourceResiduals> sources;
  for (std::size_t i = 0; i < observations.size(); ++i) {
    SourceResiduals& source = sources[observations[i].source];
    source.count += 1.0;
    source.sum += regression.residuals[i];
    source.squares += regression.residuals[i] * regression.residuals[i];
  }
  source_count_ = sources.size();
  const auto n = static_cast<double>(observations.size());
  const auto k = static_cast<double>(regression.trends.size());
  const auto source_count = static_cast<double>(sources.size());
  double within = 0.0;
  double between = 0.0;
  double squared_counts = 0.0;
  for (const auto& [name, source] : sources) {
    within += source.Within();
    between += source.count * source.Mean() * source.Mean();
    squared_counts += source.count * source.count;
  }
  within /= std::max(1.0, n - source_count - k);
  double between_sources = 0.0;
  if (source_count_ > 1) {
    const double effective_count = (n - squared_counts / n) / (source_count - 1.0);
    between_sources = std::max(0.0, (between / (source_count - 1.0) - within) / effective_count);
  }
  double weights = 0.0;
  for (const auto& [name, source] : sources) {
    const double weight = 1.0 / std::max(kLeastResidual, between_sources + within / source.count);
    weights += weight;
    mean_of_sources_db_ += weight * source.Mean();
  }
  mean_of_sources_db_ /= weights;
  variance_ = std::max(between_sources + within, kLeastSpreadDb * kLeastSpreadDb);
  variance_of_mean_ = 1.0 / weights;
  trends_ = std::move(regression.trends);
  coefficients_ = std::move(regression.coefficients);
  inverse_ = std::move(regression.inverse);
}

ErrorEstimate ErrorModel::At(const Features& features) const {
  const std::vector<double> row = RowFor(features, trends_);
  double leverage = -1.0 / static_cast<double>(observation_count_);  // the mean's own share is counted apart
  for (std::size_t i = 0; i < row.size(); ++i) leverage += row[i] * Product(inverse_[i], row);
  const double variance = variance_ * (1.0 + std::max(0.0, leverage)) + variance_of_mean_;
  const std::size_t used = 1 + trends_.size();
  const std::size_t freedom = observation_count_ > used + 1 ? observation_count_ - used : 1;
  return {.bias_db = mean_of_sources_db_ + Product(coefficients_, row),
          .half_width_db = StudentQuantile95(freedom) * std::sqrt(variance)};
}

bool ErrorModel::HasTrend(std::size_t trend) const {
  return std::ranges::find(trends_, trend) != trends_.end();
}

bool IsWithinMeasured(const std::vector<Observation>& observations, const Features& features,
                      double predicted_db) {
  constexpr double kBeyond = 0.1;
  constexpr double kBeyondDb = 5.0;
  const auto within = [&](const auto& value_of, double value, double below, double above) {
    const auto [least, greatest] = std::ranges::minmax_element(
        observations, {}, [&](const Observation& observation) { return value_of(observation); });
    return value >= value_of(*least) * below && value <= value_of(*greatest) * above;
  };
  const auto mass = [](const Observation& observation) { return observation.features.mass_kg_m2; };
  const auto depth = [](const Observation& observation) { return observation.features.depth_mm; };
  if (observations.empty()) return false;
  if (!within(mass, features.mass_kg_m2, 1.0 - kBeyond, 1.0 + kBeyond)) return false;
  if (!within(depth, features.depth_mm, 1.0 - kBeyond, 1.0 + kBeyond)) return false;
  if (std::ranges::none_of(observations, [&](const Observation& observation) {
        return observation.features.filled == features.filled;
      })) {
    return false;
  }
  const auto [least, greatest] = std::ranges::minmax_element(observations, {}, &Observation::predicted_db);
  return predicted_db >= least->predicted_db - kBeyondDb &&
         predicted_db <= greatest->predicted_db + kBeyondDb;
}

Coverage LeaveOneOut(const std::vector<Observation>& observations) {
  return Try(observations, [](const Observation&, const Observation&) { return true; });
}

Coverage LeaveOneSourceOut(const std::vector<Observation>& observations) {
  return Try(observations,
             [](const Observation& tried, const Observation& other) { return tried.source != other.source; });
}

// The distribution function for whole degrees of freedom: Abramowitz and Stegun, 26.7.3 and 26.7.4.
double StudentQuantile95(std::size_t degrees_of_freedom) {
  const auto within = [&](double t) {
    const auto n = static_cast<double>(degrees_of_freedom);
    const double theta = std::atan(t / std::sqrt(n));
    const double cosine = std::cos(theta);
    const bool odd = degrees_of_freedom % 2 == 1;
    double term = odd ? cosine : 1.0;
    double sum = degrees_of_freedom == 1 ? 0.0 : term;
    for (double i = odd ? 3.0 : 2.0; i < n - 1.0; i += 2.0) {
      term *= cosine * cosine * (i - 1.0) / i;
      sum += term;
    }
    if (!odd) return std::sin(theta) * sum;
    return 2.0 / std::numbers::pi * (theta + std::sin(theta) * sum);
  };
  double low = 0.0;
  double high = 10.0;
  for (int step = 0; step < 60; ++step) {
    const double middle = (low + high) / 2.0;
    (within(middle) < kIntervalCoverage ? low : high) = middle;
  }
  return low;
}

}  // namespace velmar::validation
