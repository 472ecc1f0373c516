#include "elements/variants.h"

#include <array>
#include <utility>

#include "elements/named_texts.h"
#include "foundation/decimal.h"

namespace velmar::elements {
namespace {

constexpr const char* kSpectrum = "spettro";
constexpr const char* kOutside = "fuori";
constexpr std::array<std::pair<const char*, std::optional<double> VariantResult::*>, 5> kNumbers = {
    {{"Rw", &VariantResult::rw},
     {"C", &VariantResult::c},
     {"Ctr", &VariantResult::ctr},
     {"Lnw", &VariantResult::lnw},
     {"Ci", &VariantResult::ci}}};

using TextKey = ValueKey<std::string>;

TextKey Key(int number, const char* of) { return {"variante." + std::to_string(number) + '.' + of}; }
TextKey NameKey(int number) { return Key(number, "nome"); }
TextKey SetupKey(int number) { return Key(number, "dati"); }
TextKey ResultKey(int number) { return Key(number, "risultato"); }

std::optional<acoustics::Spectrum> ReadSpectrum(const std::string& text) {
  const auto bands = PartTexts(text);
  acoustics::Spectrum spectrum{};
  if (!bands || bands->size() != spectrum.size()) return std::nullopt;
  for (std::size_t i = 0; i < spectrum.size(); ++i) {
    const std::optional<double> level = ParseDecimal(bands->at(i));
    if (!level) return std::nullopt;
    spectrum[i] = *level;
  }
  return spectrum;
}

void SetOrRemove(KeyedValues& values, const TextKey& key, const std::string& text) {
  values.Set(key, text.empty() ? std::nullopt : std::optional(text));
}

}  // namespace

VariantResult VariantResultOf(const ResultSet& result) {
  return {.spectrum = result.spectrum,
          .rw = result.rw,
          .c = result.c,
          .ctr = result.ctr,
          .lnw = result.lnw,
          .ci = result.ci,
          .outside_ranges = !result.ranges_left.empty()};
}

std::string WriteVariantResult(const VariantResult& result) {
  NamedTexts texts;
  for (const auto& [name, number] : kNumbers) {
    if (result.*number) texts.emplace_back(name, FormatShortest(*(result.*number)));
  }
  if (result.spectrum) {
    std::vector<std::string> bands;
    for (const double level : *result.spectrum) bands.push_back(FormatShortest(level));
    texts.emplace_back(kSpectrum, JoinTexts(bands));
  }
  if (result.outside_ranges) texts.emplace_back(kOutside, "1");
  return WriteNamedTexts(texts);
}

std::optional<VariantResult> Variant::Result() const {
  const auto texts = ReadNamedTexts(result_text);
  if (!texts || texts->empty()) return std::nullopt;
  VariantResult result;
  for (const auto& [key, text] : *texts) {
    if (key == kSpectrum) {
      result.spectrum = ReadSpectrum(text);
      if (!result.spectrum) return std::nullopt;
    }
    if (key == kOutside) result.outside_ranges = text == "1";
    for (const auto& [of, number] : kNumbers) {
      if (key != of) continue;
      result.*number = ParseDecimal(text);
      if (!(result.*number)) return std::nullopt;
    }
  }
  return result;
}

std::vector<Variant> VariantsOf(const KeyedValues& values) {
  std::vector<Variant> variants;
  for (int number = 1;; ++number) {
    const auto setup = values.Get(SetupKey(number));
    if (!setup) return variants;
    variants.push_back({.name = values.Get(NameKey(number)).value_or(""),
                        .setup_text = *setup,
                        .result_text = values.Get(ResultKey(number)).value_or("")});
  }
}

void PutVariants(KeyedValues& values, const std::vector<Variant>& variants) {
  int number = 1;
  for (const Variant& variant : variants) {
    SetOrRemove(values, NameKey(number), variant.name);
    values.Set(SetupKey(number), std::optional(variant.setup_text));
    SetOrRemove(values, ResultKey(number), variant.result_text);
    ++number;
  }
  for (; values.Get(SetupKey(number)); ++number) {
    for (const TextKey& key : {NameKey(number), SetupKey(number), ResultKey(number)})
      values.Set(key, std::optional<std::string>());
  }
}

}  // namespace velmar::elements
