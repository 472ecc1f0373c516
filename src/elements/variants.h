#pragma once

#include <optional>
#include <string>
#include <vector>

#include "acoustics/bands.h"
#include "elements/keyed_values.h"
#include "elements/result_set.h"
#include "elements/setup.h"

namespace velmar::elements {

/// What a variant keeps of its result: what a comparison shows. Levels in dB.
struct VariantResult {
  std::optional<acoustics::Spectrum> spectrum{};  ///< R, or Ln for impact sound
  std::optional<double> rw{};
  std::optional<double> c{};
  std::optional<double> ctr{};
  std::optional<double> lnw{};
  std::optional<double> ci{};
  bool outside_ranges = false;  ///< the user went on although a range was left

  bool operator==(const VariantResult&) const = default;
};

/// The same of a result.
VariantResult VariantResultOf(const ResultSet& result);

/// A set-up that was fixed under a name, with the result that it had then, as texts of the project's keyed
/// block: one that this program cannot read, as of a newer one, is kept as it is.
struct Variant {
  std::string name{};
  std::string setup_text{};   ///< see WriteSetupText()
  std::string result_text{};  ///< empty: it was fixed without a result

  /// Nothing when the text is none.
  std::optional<VariantResult> Result() const;

  bool operator==(const Variant&) const = default;
};

/// `result` as the text of a variant.
std::string WriteVariantResult(const VariantResult& result);

/// No project holds more variants.
inline constexpr int kMostVariants = 26;

/// The variants in `values`, in their order: "variante.1.nome", "variante.1.dati", "variante.1.risultato",
/// then those of number 2, up to the first number without "dati".
std::vector<Variant> VariantsOf(const KeyedValues& values);

/// `variants` take the place of those in `values`; other values stay.
void PutVariants(KeyedValues& values, const std::vector<Variant>& variants);

}  // namespace velmar::elements
