#include "measurements/measurement_entry.h"

#include <algorithm>

#include "foundation/decimal.h"
#include "foundation/message_rows.h"
#include "foundation/utf8.h"

namespace velmar::measurements {
namespace {

using storage::MeasuredTest;

std::string Trimmed(const std::string& text) {
  constexpr const char* kBlanks = " \t\r\n";
  const std::size_t first = text.find_first_not_of(kBlanks);
  if (first == std::string::npos) return {};
  return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

std::string TextOf(const std::optional<double>& value) {
  return value ? FormatShortest(*value) : std::string();
}

/// What a number may be.
enum class Kind { kAny, kNotNegative, kPositive, kLevel };

bool IsPossible(Kind kind, double value) {
  switch (kind) {
    case Kind::kAny:
      return true;
    case Kind::kNotNegative:
      return value >= 0.0;
    case Kind::kPositive:
      return value > 0.0;
    case Kind::kLevel:
      return IsPossibleLevel(value);
  }
  return false;
}

/// Reads the numbers of an entry and keeps the first refusal.
class Numbers {
 public:
  std::optional<double> Take(const std::string& text, Kind kind, MeasurementField field,
                             std::size_t band = 0) {
    if (Trimmed(text).empty()) return std::nullopt;
    const auto value = ParseDecimal(text);
    if (!value) {
      Refuse({{kNotANumberRow, " " + text}}, field, band);
    } else if (!IsPossible(kind, *value)) {
      Refuse({{kImpossibleMeasurementRow, " " + text}}, field, band);
    }
    return value;
  }
  const std::optional<MeasurementRefusal>& Refusal() const { return refusal_; }

 private:
  void Refuse(Message message, MeasurementField field, std::size_t band) {
    if (!refusal_) refusal_ = MeasurementRefusal{std::move(message), field, band};
  }

  std::optional<MeasurementRefusal> refusal_;
};

void TakeNumbers(const MeasurementEntry& entry, Numbers& numbers, MeasuredTest& test) {
  using enum MeasurementField;
  test.rating = numbers.Take(entry.rating, Kind::kLevel, kRating);
  test.adaptation = numbers.Take(entry.adaptation, Kind::kLevel, kAdaptation);
  test.other_adaptation = numbers.Take(entry.other_adaptation, Kind::kLevel, kOtherAdaptation);
  for (std::size_t i = 0; i < test.bands.size(); ++i)
    test.bands.at(i) = numbers.Take(entry.thirds.at(i), Kind::kLevel, kThird, i);
  for (std::size_t i = 0; i < test.octaves.size(); ++i)
    test.octaves.at(i) = numbers.Take(entry.octaves.at(i), Kind::kLevel, kOctave, i);
  test.area_m2 = numbers.Take(entry.area, Kind::kPositive, kArea);
  test.mass_kg_m2 = numbers.Take(entry.mass, Kind::kNotNegative, kMass);
  test.field.thickness_mm = numbers.Take(entry.thickness, Kind::kNotNegative, kThickness);
  test.field.source_volume_m3 = numbers.Take(entry.source_volume, Kind::kNotNegative, kSourceVolume);
  test.field.receiving_volume_m3 = numbers.Take(entry.receiving_volume, Kind::kNotNegative, kReceivingVolume);
  test.uncertainty_db = numbers.Take(entry.uncertainty, Kind::kNotNegative, kUncertainty);
}

MeasuredTest WithTexts(const MeasurementEntry& entry) {
  MeasuredTest test;
  test.name = Trimmed(entry.name);
  test.description = Trimmed(entry.description);
  test.keyword = Trimmed(entry.keyword);
  test.field.site = Trimmed(entry.site);
  test.certificate = Trimmed(entry.certificate);
  test.date = Trimmed(entry.date);
  test.laboratory = Trimmed(entry.laboratory);
  test.client = Trimmed(entry.client);
  test.notes = Trimmed(entry.notes);
  test.source = Trimmed(entry.source);
  test.picture = entry.picture;
  return test;
}

bool HasBands(const MeasuredTest& test) {
  const auto is_set = [](const std::optional<double>& value) { return value.has_value(); };
  return std::ranges::any_of(test.bands, is_set) || std::ranges::any_of(test.octaves, is_set);
}

/// The rating's kind, and where it comes from.
void NameRating(const storage::LibraryFolder& folder, MeasuredTest& test) {
  constexpr std::string_view kUnit = " (dB)";
  if (test.rating) {
    test.rating_origin = storage::kDeclaredOrigin;
  } else {
    const storage::RatingCheck check = storage::CheckRating(folder, test);
    if (!check.rating) return;
    test.rating = check.rating;
    test.adaptation = check.adaptation;
    test.other_adaptation = check.other_adaptation;
    test.rating_origin = check.basis == storage::RatingBasis::kThirds ? storage::kFromThirdsOrigin
                                                                      : storage::kFromOctavesOrigin;
  }
  const std::string& column = folder.rating;
  const std::string plain = column.substr(0, column.size() - kUnit.size());
  const auto as_named = [&](std::string_view kind) {
    std::string bare(kind);
    std::erase(bare, ',');
    return bare == plain || (plain == "DRw" && kind == "ΔRw") || (plain == "DLw" && kind == "ΔLw");
  };
  const auto* kind = std::ranges::find_if(storage::kIndexKinds, as_named);
  if (kind != storage::kIndexKinds.end()) test.index_kind = *kind;
}

}  // namespace

std::variant<MeasuredTest, MeasurementRefusal> TestOf(const storage::LibraryFolder& folder,
                                                      const MeasurementEntry& entry) {
  MeasuredTest test = WithTexts(entry);
  if (IsBlank(test.name)) return MeasurementRefusal{{{kMeasurementWithoutNameRow}}, MeasurementField::kName};
  Numbers numbers;
  TakeNumbers(entry, numbers, test);
  if (numbers.Refusal()) return *numbers.Refusal();
  if (!test.rating && !HasBands(test))
    return MeasurementRefusal{
        {{kMeasurementWithoutValuesRow}}, MeasurementField::kThird, acoustics::kFirstRatedBand};
  NameRating(folder, test);
  return test;
}

MeasurementEntry EntryOf(const MeasuredTest& test) {
  MeasurementEntry entry;
  entry.name = test.name;
  entry.description = test.description;
  entry.keyword = test.keyword;
  const bool declared = test.rating_origin.empty() || test.rating_origin == storage::kDeclaredOrigin;
  if (declared) {
    entry.rating = TextOf(test.rating);
    entry.adaptation = TextOf(test.adaptation);
    entry.other_adaptation = TextOf(test.other_adaptation);
  }
  for (std::size_t i = 0; i < test.bands.size(); ++i) entry.thirds.at(i) = TextOf(test.bands.at(i));
  for (std::size_t i = 0; i < test.octaves.size(); ++i) entry.octaves.at(i) = TextOf(test.octaves.at(i));
  entry.area = TextOf(test.area_m2);
  entry.mass = TextOf(test.mass_kg_m2);
  entry.thickness = TextOf(test.field.thickness_mm);
  entry.source_volume = TextOf(test.field.source_volume_m3);
  entry.receiving_volume = TextOf(test.field.receiving_volume_m3);
  entry.site = test.field.site;
  entry.uncertainty = TextOf(test.uncertainty_db);
  entry.certificate = test.certificate;
  entry.date = test.date;
  entry.laboratory = test.laboratory;
  entry.client = test.client;
  entry.notes = test.notes;
  entry.source = test.source;
  entry.picture = test.picture;
  return entry;
}

MeasurementEntry WithBands(MeasurementEntry entry, const BandText& text) {
  for (std::size_t i = 0; i < text.thirds.size(); ++i) entry.thirds.at(i) = TextOf(text.thirds.at(i));
  for (std::size_t i = 0; i < text.octaves.size(); ++i) entry.octaves.at(i) = TextOf(text.octaves.at(i));
  return entry;
}

storage::RatingCheck CheckEntry(const storage::LibraryFolder& folder, const MeasurementEntry& entry) {
  MeasuredTest test;
  Numbers numbers;
  TakeNumbers(entry, numbers, test);
  return storage::CheckRating(folder, test);
}

}  // namespace velmar::measurements
