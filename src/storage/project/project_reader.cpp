#include "storage/project/project_reader.h"

#include <optional>
#include <string>

#include "foundation/message_rows.h"
#include "storage/files/store_failure.h"
#include "storage/files/whole_file.h"
#include "storage/project/common_part.h"
#include "storage/project/family_parts.h"
#include "storage/project/keyed_block.h"
#include "storage/project/keyed_fields.h"
#include "storage/project/line_cursor.h"
#include "storage/project/project_failure.h"
#include "storage/project/version_code.h"

namespace velmar::storage {
namespace {

using elements::Calculation;
using elements::Setup;

void ReadFamilyPart(PartInput& in, Setup& setup) {
  switch (in.layout.part) {
    case FamilyPart::kSingle:
      return ReadSinglePart(in, setup);
    case FamilyPart::kSeaSingle:
      return ReadSeaSinglePart(in, setup);
    case FamilyPart::kSeaDouble:
      return ReadSeaDoublePart(in, setup);
    case FamilyPart::kDoubleWall:
      return ReadDoubleWallPart(in, setup);
    case FamilyPart::kFloor:
      return ReadFloorPart(in, setup);
    case FamilyPart::kLining:
      return ReadLiningPart(in, setup);
    case FamilyPart::kFacade:
      return ReadFacadePart(in, setup);
    case FamilyPart::kMultilayer:
      return ReadMultilayerPart(in, setup);
  }
}

/// Chooses the calculation that the file names, if it is known.
/// @throws ProjectFileFailure when its family has other lines than the file's: the layers would not be its
/// own
void Select(const ProjectReadContext& context, const LineCursor& lines, const StoredCalculation& stored,
            FamilyPart part, Setup& setup) {
  const std::optional<Calculation> calculation = elements::FindCalculation(stored.variant);
  if (!calculation) return;
  const StoredCalculation known = TextsOf(*calculation);
  if (FindPartLayout(known.family, known.variant)->part != part)
    throw ProjectFileFailure(lines.LineNumber() - 1, {kForeignVariantRow},
                             "the variant is not one of this family");
  setup.calculation = calculation;
  if (context.select_calculation) context.select_calculation(setup, *calculation);
}

}  // namespace

OpenedProject ReadProject(std::string_view bytes, const ProjectReadContext& context) {
  LineCursor lines(bytes);
  const int version_code = VersionCode(lines.Text());
  OpenedProject opened{.setup = context.current};
  ReadInformation(lines, version_code, opened.setup.information);
  opened.stored = ReadStoredCalculation(lines);
  opened.setup.calculation.reset();

  const std::optional<PartLayout> layout = FindPartLayout(opened.stored.family, opened.stored.variant);
  if (layout) {
    Select(context, lines, opened.stored, layout->part, opened.setup);
    PartInput in{
        .lines = lines, .materials = context.materials, .version_code = version_code, .layout = *layout};
    ReadFamilyPart(in, opened.setup);
  }
  if (!TakeKeyedValues(ReadKeyedBlock(lines), opened.setup))
    lines.Fail({kNamedValueExpectedRow}, "the text of a field is none of it");
  return opened;
}

OpenedProject OpenProject(const std::filesystem::path& path, const ProjectReadContext& context) {
  std::string bytes;
  try {
    bytes = ReadWhole(path, kProjectSizeLimit);
  } catch (const StoreFailure& failure) {
    if (failure.Reason() == StoreReason::kNotFound)
      throw ProjectFileFailure({{std::string(kProjectMissing)}}, failure.what());
    throw ProjectFileFailure(failure.UserMessage(), failure.what());
  }
  try {
    return ReadProject(bytes, context);
  } catch (const ProjectFileFailure& failure) {
    throw failure.In(path);
  }
}

}  // namespace velmar::storage
