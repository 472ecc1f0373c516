#pragma once

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "acoustics/bands.h"
#include "storage/tables/cell.h"
#include "storage/tables/schema.h"

namespace velmar::storage {

/// What only a test in a building knows.
struct FieldData {
  std::optional<double> thickness_mm{};         ///< "s (mm)"
  std::optional<double> source_volume_m3{};     ///< "Ve (m³)"
  std::optional<double> receiving_volume_m3{};  ///< "Vr (m³)"
  std::string site{};                           ///< "Cantiere"
};

/// A measured structure of the library. Nothing stands for a null.
struct MeasuredTest {
  std::string name{};
  std::string description{};
  std::string keyword{};
  std::optional<double> rating{};                                    ///< the column LibraryFolder::rating, dB
  std::optional<double> adaptation{};                                ///< C, or Ci
  std::optional<double> other_adaptation{};                          ///< Ctr, or Ci 50-5000
  std::array<std::optional<double>, acoustics::kBandCount> bands{};  ///< dB
  std::optional<double> area_m2{};  ///< of a test in a building: of the separating element
  std::optional<double> mass_kg_m2{};
  FieldData field{};
  std::string certificate{};  ///< "Certificato"
  std::string date{};         ///< "Data Prova", a date column of an Access file as "gg/mm/aaaa"
  std::string laboratory{};   ///< "Ente di prova"
  std::string client{};       ///< "Società richiedente"
  std::string notes{};        ///< "Informazione addizionale"
  std::string picture{};      ///< "Immagine"
};

/// What a measured test hands over to a facade (`CurvaSperimentale`).
struct MeasuredCurve {
  std::string name{};
  std::string description{};
  std::array<std::optional<double>, acoustics::kBandCount> bands{};
  std::optional<double> rating{};
  std::optional<double> c{};
  std::optional<double> ctr{};
  std::optional<double> area_m2{};  ///< 0 for a small element, whatever the test says
  double mass_kg_m2 = 0.0;          ///< 0 when the test has none
};

/// Whether the tests of `folder` are rated by Dn,e, that is, have no area.
bool IsSmallElement(const LibraryFolder& folder);

/// The columns of the two adaptation terms: those between the rating and the bands. Some tables have one; the
/// other is empty then.
std::array<std::string, 2> AdaptationColumns(const LibraryFolder& folder);

/// The test that `cells` hold, in the order of the folder's table.
MeasuredTest TestFromCells(const LibraryFolder& folder, const std::vector<Cell>& cells);

MeasuredCurve CurveOf(const LibraryFolder& folder, const MeasuredTest& test);

}  // namespace velmar::storage
