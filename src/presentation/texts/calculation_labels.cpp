#include "presentation/texts/calculation_labels.h"

#include "acoustics/constructions.h"
#include "foundation/message_rows.h"

namespace velmar::presentation {
namespace {

using acoustics::SeaCavityContent;
using elements::Stack;

MessageRow FirstLeafRow(const elements::CalculationRow& row) {
  if (IsHorizontal(row.orientation)) return kFloorRow;
  return row.glazing ? kPane1Row : kLeaf1Row;
}

MessageRow SecondLeafRow(const elements::CalculationRow& row) {
  if (row.stacks.Has(Stack::kBase)) return kLiningRow;
  if (row.stacks.Has(Stack::kResilient)) return kScreedRow;
  return row.glazing ? kPane2Row : kLeaf2Row;
}

MessageRow BaseRow(const elements::CalculationRow& row) {
  if (row.stacks.Has(Stack::kComponents)) return kOpaquePartTabRow;
  return row.orientation == elements::Orientation::kCeiling ? kBaseFloorRow : kBaseWallRow;
}

MessageRow StackRow(const elements::CalculationRow& row, Stack stack) {
  switch (stack) {
    case Stack::kLeaf1:
    case Stack::kSeaLeaf1:
      return FirstLeafRow(row);
    case Stack::kLeaf2:
    case Stack::kSeaLeaf2:
      return SecondLeafRow(row);
    case Stack::kCavity:
    case Stack::kSeaCavity:
      return kCavityRow;
    case Stack::kResilient:
      return kResilientMaterialTabRow;
    case Stack::kBase:
      return BaseRow(row);
    case Stack::kComponents:
      return kComponentsTabRow;
    case Stack::kMultilayer:
      return kMultilayerLeafRow;
  }
  return {};
}

}  // namespace

std::string WithoutColon(std::string caption) {
  while (!caption.empty() && (caption.back() == ':' || caption.back() == ' ')) caption.pop_back();
  return caption;
}

std::string TheoryText(elements::Calculation calculation, const Words& words) {
  return InWords(elements::RowOf(calculation).theory.Line(), words);
}

std::string ElementTypeText(elements::Calculation calculation, const Words& words) {
  return WithoutColon(InWords(elements::RowOf(calculation).element_type.Line(), words));
}

std::string TitleOf(elements::Family family, const Words& words) {
  if (family == elements::Family::kFacade) return words(kFacadeTitleRow);
  return words(family == elements::Family::kImpact ? kImpactTitleRow : kAirborneTitleRow);
}

std::string SeaCavityTypeText(elements::SeaCavityType type, const Words& words) {
  if (type == elements::SeaCavityType::kEmpty) return words(kEmptySeaCavityRow);
  std::string text;
  for (const SeaCavityContent content : acoustics::ContentsOf(type)) {
    if (!text.empty()) text += "+ ";
    text += words(content == SeaCavityContent::kFibre ? kFibreLayerRow : kMassLayerRow);
  }
  return text;
}

std::string StackName(elements::Calculation calculation, Stack stack, const Words& words) {
  return words(StackRow(elements::RowOf(calculation), stack));
}

std::string PartName(elements::Calculation calculation, const elements::Part& part, const Words& words) {
  const std::string name = StackName(calculation, part.stack, words);
  return part.leaf > 0 ? name + " " + std::to_string(part.leaf) : name;
}

std::string LayerName(const elements::Setup& setup, const elements::Layer& layer, const Words& words) {
  using elements::StratumKind;
  if (!layer.stratum || *layer.stratum == StratumKind::kPlate || *layer.stratum == StratumKind::kFibre)
    return layer.name;
  const std::string kind = words({kPlateStratumRow.number + static_cast<int>(*layer.stratum)});
  if (!elements::TakesSolid(*layer.stratum)) return kind;
  const std::string name = layer.name + " (" + kind;
  if (*layer.stratum != StratumKind::kProfiledSheet) return name + ")";
  const elements::Stratum& row = setup.multilayer.strata.at(static_cast<std::size_t>(layer.row));
  return name + ", " + words(kProfileHeightRow) + " " + row.profile_height_text + ", " +
         words(kProfilePitchRow) + " " + row.profile_pitch_text + ")";
}

std::string ConnectionText(const elements::Multilayer& list, int index, const Words& words) {
  const elements::Stratum& row = list.strata.at(static_cast<std::size_t>(index));
  if (!list.BeginsCavity(index) || row.connection == elements::CavityConnection::kNone) return {};
  const bool points = row.connection == elements::CavityConnection::kPoints;
  return words({kNoConnectionRow.number + static_cast<int>(row.connection)}) + ", " +
         words(points ? kConnectionsPerSquareMetreRow : kConnectionSpacingRow) + " " + row.connection_text;
}

}  // namespace velmar::presentation
