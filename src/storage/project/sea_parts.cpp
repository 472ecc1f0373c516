#include "storage/project/sea_parts.h"

#include <optional>

#include "foundation/decimal.h"
#include "storage/project/cavity_blocks.h"
#include "storage/project/structural_blocks.h"
#include "storage/project/version_code.h"

namespace velmar::storage {
namespace {

using elements::DampingRow;
using elements::SeaCavity;
using elements::SeaCavityType;
using elements::SeaLeaf;

constexpr std::size_t kFibrePositions = 3;
constexpr std::size_t kMassPositions = 2;

constexpr const char* kFibrePresent = "Fibra_presente";
constexpr const char* kFibreAbsent = "Fibra_assente";
constexpr const char* kMassPresent = "Massa_presente";
constexpr const char* kMassAbsent = "Massa_assente";

/// The two spellings of a check line, as each place has them.
struct CheckWords {
  const char* ticked = "";
  const char* unticked = "";
};
constexpr CheckWords kLeafWords = {"check", "uncheck"};
constexpr CheckWords kCavityWords = {"Check", "Uncheck"};

void WriteDamping(LineWriter& out, const DampingRow& damping, const CheckWords& words) {
  out.Text(damping.ticked ? words.ticked : words.unticked);
  if (damping.ticked) WriteSeaLayer(out, damping.row);
}

/// @param next_words what may follow at once in an older file that leaves the damping layer out
bool DampingPresent(PartInput& in, std::initializer_list<std::string_view> next_words) {
  const bool check_line_due = in.version_code >= kCurrentLayout;
  if (check_line_due || in.lines.NextIsOneOf({kLeafWords.ticked, kLeafWords.unticked}))
    return in.lines.Choice({kLeafWords.ticked, kLeafWords.unticked}) == 0;
  return !in.lines.NextIsOneOf(next_words);
}

void ReadDamping(PartInput& in, DampingRow& damping, std::initializer_list<std::string_view> next_words) {
  damping.ticked = DampingPresent(in, next_words);
  if (damping.ticked) ReadSeaLayer(in, damping.row);
}

void WriteMassPosition(LineWriter& out, const SeaCavity& cavity, std::size_t k) {
  const bool present = k < static_cast<std::size_t>(MassCount(cavity.type));
  out.Text(present ? kMassPresent : kMassAbsent);
  if (present) WriteSeaLayer(out, cavity.masses.at(k));
  WriteDamping(out, cavity.mass_damping.at(k), kCavityWords);
}

// A row that the type of the cavity shows while the file has none of it is emptied: a run must not take the
// material of the project before.

void ReadMassPosition(PartInput& in, SeaCavity& cavity, std::size_t k) {
  if (in.lines.Choice({kMassPresent, kMassAbsent}) == 0) {
    ReadSeaLayer(in, cavity.masses.at(k));
  } else if (k < static_cast<std::size_t>(MassCount(cavity.type))) {
    cavity.masses.at(k) = {};
  }
  ReadDamping(in, cavity.mass_damping.at(k), {kFibrePresent, kFibreAbsent});
}

void ReadFibrePosition(PartInput& in, SeaCavity& cavity, std::size_t j) {
  if (in.lines.Choice({kFibrePresent, kFibreAbsent}) == 0) {
    ReadSeaFibre(in, cavity.fibres.at(j));
  } else if (j < static_cast<std::size_t>(FibreCount(cavity.type))) {
    cavity.fibres.at(j) = {};
  }
}

}  // namespace

int MigraTipoIntercSEA(int version_code, int type) {
  if (version_code != kRelease14Layout) return type;
  return (type + 1) % elements::kSeaCavityTypeCount;
}

void WriteSeaLeaf(LineWriter& out, const SeaLeaf& leaf, CountLine count_line) {
  const int count = HeldCount(leaf.count, 1, SeaLeaf::kCapacity);
  out.Integer(count_line == CountLine::kLessOne ? count - 1 : count);
  for (std::size_t i = 0; i < static_cast<std::size_t>(count); ++i) {
    WriteMaterialLabel(out, static_cast<int>(i) + 1);
    WriteSeaLayer(out, leaf.rows.at(i));
    WriteDamping(out, leaf.damping.at(2 * i), kLeafWords);
    WriteDamping(out, leaf.damping.at(2 * i + 1), kLeafWords);
  }
}

void ReadSeaLeaf(PartInput& in, SeaLeaf& leaf, CountLine count_line) {
  const int less = count_line == CountLine::kLessOne ? 1 : 0;
  leaf.count = in.lines.Integer(1 - less, SeaLeaf::kCapacity - less) + less;
  for (std::size_t i = 0; i < static_cast<std::size_t>(leaf.count); ++i) {
    in.lines.Label(kMaterialLabel);
    ReadSeaLayer(in, leaf.rows.at(i));
    ReadDamping(in, leaf.damping.at(2 * i), {});
    ReadDamping(in, leaf.damping.at(2 * i + 1), {});
  }
}

void WriteSeaCavityContents(LineWriter& out, const SeaCavity& cavity) {
  out.Integer(static_cast<int>(cavity.type));
  for (std::size_t j = 0; j < kFibrePositions; ++j) {
    const bool present = j < static_cast<std::size_t>(FibreCount(cavity.type));
    out.Text(present ? kFibrePresent : kFibreAbsent);
    if (present) WriteSeaFibre(out, cavity.fibres.at(j));
    if (j < kMassPositions) WriteMassPosition(out, cavity, j);
  }
}

void ReadSeaCavityContents(PartInput& in, SeaCavity& cavity) {
  const int type = in.lines.Integer(0, elements::kSeaCavityTypeCount - 1);
  cavity.type = static_cast<SeaCavityType>(MigraTipoIntercSEA(in.version_code, type));
  for (std::size_t j = 0; j < kFibrePositions; ++j) {
    ReadFibrePosition(in, cavity, j);
    if (j < kMassPositions) ReadMassPosition(in, cavity, j);
  }
}

void WriteSeaCavityDepth(LineWriter& out, const SeaCavity& cavity) {
  out.Single(ParseSingle(cavity.depth_text).value_or(0.0F));
}

void ReadSeaCavityDepth(PartInput& in, SeaCavity& cavity) {
  cavity.depth_text = FormatShortest(in.lines.Single());
}

}  // namespace velmar::storage
