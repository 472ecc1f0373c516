#include "storage/project/project_writer.h"

#include <optional>

#include "storage/files/whole_file.h"
#include "storage/project/common_part.h"
#include "storage/project/family_parts.h"
#include "storage/project/keyed_block.h"
#include "storage/project/keyed_fields.h"
#include "storage/project/line_writer.h"

namespace velmar::storage {
namespace {

using elements::Setup;

void WriteFamilyPart(LineWriter& out, const Setup& setup, const PartLayout& layout) {
  switch (layout.part) {
    case FamilyPart::kSingle:
      return WriteSinglePart(out, setup, layout);
    case FamilyPart::kSeaSingle:
      return WriteSeaSinglePart(out, setup, layout);
    case FamilyPart::kSeaDouble:
      return WriteSeaDoublePart(out, setup, layout);
    case FamilyPart::kDoubleWall:
      return WriteDoubleWallPart(out, setup, layout);
    case FamilyPart::kFloor:
      return WriteFloorPart(out, setup, layout);
    case FamilyPart::kLining:
      return WriteLiningPart(out, setup, layout);
    case FamilyPart::kFacade:
      return WriteFacadePart(out, setup, layout);
    case FamilyPart::kMultilayer:
      return WriteMultilayerPart(out, setup, layout);
  }
}

}  // namespace

std::string WriteProject(const Setup& setup, const StoredCalculation& unknown) {
  const StoredCalculation stored = setup.calculation ? TextsOf(*setup.calculation) : unknown;
  LineWriter out;
  out.Text("VELMAR " VELMAR_VERSION);
  WriteInformation(out, setup.information);
  WriteStoredCalculation(out, stored);
  if (const std::optional<PartLayout> layout = FindPartLayout(stored.family, stored.variant))
    WriteFamilyPart(out, setup, *layout);
  WriteKeyedBlock(out, KeyedValuesOf(setup));
  return out.Bytes();
}

void SaveProject(const std::filesystem::path& path, const Setup& setup, const StoredCalculation& unknown) {
  WriteWhole(path, WriteProject(setup, unknown));
}

}  // namespace velmar::storage
