#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>
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

  bool operator==(const FieldData&) const = default;
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

  /// The index that the source states, where it is another than `rating` ("STC", "IIC", "ΔSTC") or the same;
  /// "Indice", one of kIndexKinds or free text, and "Valore indice (dB)".
  std::string index_kind{};
  std::optional<double> index_value{};
  std::string rating_origin{};  ///< "Origine indice": declared, or from which bands
  std::array<std::optional<double>, kOctaveCount> octaves{};  ///< dB, 63 Hz to 8000 Hz
  std::optional<double> uncertainty_db{};                     ///< "Incertezza (dB)", as the source states it
  std::string source{};                                       ///< "Fonte": where the values were published

  /// What proves the values: the certificate, or else the publication.
  const std::string& Proof() const { return certificate.empty() ? source : certificate; }

  bool operator==(const MeasuredTest&) const = default;
};

/// The kinds of index that the column "Indice" names.
inline constexpr std::array<std::string_view, 9> kIndexKinds = {"Rw",  "STC",    "Ln,w", "IIC",   "ΔRw",
                                                                "ΔLw", "Dn,e,w", "ΔSTC", "Rw + C"};

/// Where a rating came from, "Origine indice".
inline constexpr std::string_view kDeclaredOrigin = "dichiarato";
inline constexpr std::string_view kFromThirdsOrigin = "calcolato dalle bande";
inline constexpr std::string_view kFromOctavesOrigin = "calcolato dalle bande d'ottava";

/// The picture of a test that has none.
inline constexpr std::string_view kNoTestPicture = "senza";

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

/// The row of `test`, in the order of the folder's table: TestFromCells() of it is `test` again. What is
/// empty is null; "Immagine" is "senza" without a picture.
std::vector<Cell> CellsFromTest(const LibraryFolder& folder, const MeasuredTest& test);

MeasuredCurve CurveOf(const LibraryFolder& folder, const MeasuredTest& test);

}  // namespace velmar::storage
