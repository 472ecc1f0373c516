#include "measurements/measurement_entry.h"

#include <tuple>

#include <gtest/gtest.h>

#include "foundation/message_rows.h"
#include "storage/library/library_store.h"

namespace velmar::measurements {
namespace {

const storage::LibraryFolder kWalls = *storage::FindLibraryFolder("Rw");

/// R of the example in ISO 717-1, annex C: Rw (C; Ctr) = 30 (-2; -3) dB.
MeasurementEntry StandardExample() {
  MeasurementEntry entry;
  entry.name = "Esempio";
  entry.thirds = {"",   "",     "",     "20,4", "16,3", "17,7", "22,6", "22,4", "22,7", "24,8", "26,6",
                  "28", "30,5", "31,8", "32,5", "33,4", "33",   "31",   "25,5", "",     ""};
  return entry;
}

MeasurementRefusal Refused(const MeasurementEntry& entry) {
  auto test = TestOf(kWalls, entry);
  EXPECT_TRUE(std::holds_alternative<MeasurementRefusal>(test));
  return std::holds_alternative<MeasurementRefusal>(test) ? std::get<MeasurementRefusal>(test)
                                                          : MeasurementRefusal();
}

TEST(MeasurementEntryTest, TheBandsOfTheStandardsExampleGiveItsRating) {
  const storage::RatingCheck check = CheckEntry(kWalls, StandardExample());
  EXPECT_EQ(check.rating, 30.0);
  EXPECT_EQ(check.adaptation, -2.0);
  EXPECT_EQ(check.other_adaptation, -3.0);
  EXPECT_FALSE(check.differs);
}

TEST(MeasurementEntryTest, APrintedRatingIsComparedAndKept) {
  MeasurementEntry entry = StandardExample();
  entry.rating = "31";
  EXPECT_TRUE(CheckEntry(kWalls, entry).differs);
  const auto test = std::get<storage::MeasuredTest>(TestOf(kWalls, entry));
  EXPECT_EQ(test.rating, 31.0);
  EXPECT_EQ(test.rating_origin, "dichiarato");
  entry.rating = "30";
  EXPECT_FALSE(CheckEntry(kWalls, entry).differs);
}

TEST(MeasurementEntryTest, WithoutAPrintedRatingTheBandsGiveIt) {
  const auto test = std::get<storage::MeasuredTest>(TestOf(kWalls, StandardExample()));
  EXPECT_EQ(test.rating, 30.0);
  EXPECT_EQ(test.adaptation, -2.0);
  EXPECT_EQ(test.rating_origin, "calcolato dalle bande");
  EXPECT_EQ(test.index_kind, "Rw");
  EXPECT_EQ(EntryOf(test).rating, "") << "what follows from the bands is not printed";
}

TEST(MeasurementEntryTest, EverythingTypedComesBack) {
  MeasurementEntry entry = StandardExample();
  entry.description = "Forati 8 cm";
  entry.keyword = "laterizi";
  entry.rating = "30";
  entry.adaptation = "-2";
  entry.other_adaptation = "-3";
  entry.octaves[1] = "17,5";
  entry.area = "10,5";
  entry.mass = "110";
  entry.thickness = "100";
  entry.source_volume = "50";
  entry.receiving_volume = "48,5";
  entry.site = "Cantiere A";
  entry.uncertainty = "1,2";
  entry.certificate = "n. 12/2019";
  entry.date = "12/03/2019";
  entry.laboratory = "Laboratorio B";
  entry.client = "Fornace C";
  entry.notes = "Intonacata";
  entry.source = "Archivio dello studio";
  entry.picture = "forati.jpg";
  EXPECT_EQ(EntryOf(std::get<storage::MeasuredTest>(TestOf(kWalls, entry))), entry);
}

TEST(MeasurementEntryTest, BadFieldsAreNamed) {
  const std::tuple<std::string MeasurementEntry::*, const char*, MeasurementField> bad[] = {
      {&MeasurementEntry::name, "  ", MeasurementField::kName},
      {&MeasurementEntry::rating, "3O", MeasurementField::kRating},
      {&MeasurementEntry::adaptation, "-2-", MeasurementField::kAdaptation},
      {&MeasurementEntry::other_adaptation, "-200", MeasurementField::kOtherAdaptation},
      {&MeasurementEntry::area, "0", MeasurementField::kArea},
      {&MeasurementEntry::mass, "-1", MeasurementField::kMass},
      {&MeasurementEntry::thickness, "-1", MeasurementField::kThickness},
      {&MeasurementEntry::source_volume, "-1", MeasurementField::kSourceVolume},
      {&MeasurementEntry::receiving_volume, "-1", MeasurementField::kReceivingVolume},
      {&MeasurementEntry::uncertainty, "-1", MeasurementField::kUncertainty},
  };
  for (const auto& [text, typed, field] : bad) {
    MeasurementEntry entry = StandardExample();
    entry.*text = typed;
    EXPECT_EQ(Refused(entry).field, field) << typed;
  }
}

TEST(MeasurementEntryTest, BadBandsAreNamed) {
  MeasurementEntry entry = StandardExample();
  entry.octaves[2] = "1o";
  EXPECT_EQ(Refused(entry).field, MeasurementField::kOctave);
  EXPECT_EQ(Refused(entry).band, 2U);
  entry.thirds[4] = "1o";
  EXPECT_EQ(Refused(entry).field, MeasurementField::kThird);
  EXPECT_EQ(Refused(entry).band, 4U);
  EXPECT_EQ(LeadingRow(Refused(entry).message.front()), kNotANumberRow);
  entry.thirds[4] = "400";
  EXPECT_EQ(LeadingRow(Refused(entry).message.front()), kImpossibleMeasurementRow);
}

TEST(MeasurementEntryTest, WithoutValuesTheBandOf100HzIsAskedFor) {
  MeasurementEntry entry;
  entry.name = "vuota";
  EXPECT_EQ(LeadingRow(Refused(entry).message.front()), kMeasurementWithoutValuesRow);
  EXPECT_EQ(Refused(entry).field, MeasurementField::kThird);
  EXPECT_EQ(Refused(entry).band, 3U);
}

TEST(MeasurementEntryTest, ARatingAloneIsAMeasurement) {
  MeasurementEntry entry;
  entry.name = "Solo indice";
  entry.rating = "48";
  EXPECT_EQ(std::get<storage::MeasuredTest>(TestOf(kWalls, entry)).rating, 48.0);
}

}  // namespace
}  // namespace velmar::measurements
