#include "presentation/texts/field_texts.h"

#include "foundation/message_rows.h"
#include "presentation/texts/calculation_labels.h"

namespace velmar::presentation {
namespace {

using elements::CalculationRow;
using elements::Field;
using elements::Setup;

std::string Millimetres(const std::string& text) { return text.empty() ? kNoValue : text + " mm"; }

std::string CavityKindText(elements::CavityKind kind, const Words& words) {
  switch (kind) {
    case elements::CavityKind::kEmpty:
      return words(kEmptyCavityRow);
    case elements::CavityKind::kFibrous:
      return words(kFibrousCavityRow);
    case elements::CavityKind::kGenericMaterial:
      return words(kGenericCavityChoiceRow);
  }
  return {};
}

DataField SupportField(const Setup& setup, const CalculationRow& row, const Words& words) {
  const std::string& text = setup.support_distance_text;
  if (IsCount(row.support)) return {WithoutColon(words(kConnectionsRow)), text};
  return {words(kSupportStudsCaptionRow), text.empty() ? kNoValue : text + " cm"};
}

/// What joins the leaves of each cavity of a free list of layers.
std::string ConnectionsOf(const elements::Multilayer& list, const Words& words) {
  std::string texts;
  for (int index = 0; index < list.Count(); ++index) {
    const std::string text = ConnectionText(list, index, words);
    if (!text.empty()) texts += (texts.empty() ? "" : "; ") + std::to_string(index + 1) + ": " + text;
  }
  return texts.empty() ? kNoValue : texts;
}

}  // namespace

MessageRow StepRowOf(Field field) {
  switch (field) {
    case Field::kWidth:
      return kStepWidthRow;
    case Field::kHeight:
      return kStepHeightRow;
    case Field::kMaterial:
      return kStepMaterialRow;
    case Field::kThickness:
      return kStepThicknessRow;
    case Field::kSheets:
      return kStepSheetsRow;
    case Field::kTick:
      return kStepDampingRow;
    case Field::kCavityDepth:
    case Field::kSeaCavityDepth:
      return kStepCavityDepthRow;
    case Field::kCavityKind:
    case Field::kSeaCavityType:
      return kStepCavityKindRow;
    case Field::kFibreThickness:
      return kStepFibreRow;
    case Field::kSupport:
      return kStepSupportRow;
    case Field::kHanger:
      return kStepHangerRow;
    case Field::kDecoupling:
      return kStepDecouplingRow;
    case Field::kArea:
      return kStepAreaRow;
    case Field::kRating:
      return kStepRatingRow;
    case Field::kC:
    case Field::kCtr:
      return kStepTermRow;
    case Field::kBand:
      return kStepBandRow;
    case Field::kMass:
      return kStepMassRow;
    case Field::kTightness:
      return kStepTightnessRow;
    case Field::kBaseThickness:
      return kStepBaseThicknessRow;
    case Field::kSimplified:
      return kStepSimplifiedRow;
    case Field::kStratumKind:
      return kStepStratumKindRow;
    case Field::kStratumThickness:
      return kStepStratumThicknessRow;
    case Field::kConnection:
    case Field::kConnectionNumber:
      return kStepConnectionRow;
    case Field::kProfileHeight:
    case Field::kProfilePitch:
      return kStepProfileRow;
    case Field::kTracks:
      return kStepTracksRow;
    case Field::kDensity:
    case Field::kYoungsModulus:
    case Field::kLossFactor:
    case Field::kPoissonsRatio:
    case Field::kFlowResistance:
    case Field::kDynamicStiffness:
    case Field::kAbsorption:
      break;  // of a material, which changes as a whole
  }
  return kStepSeveralRow;
}

std::optional<DataField> FieldOf(Field field, const Setup& setup, const CalculationRow& row,
                                 const Words& words) {
  switch (field) {
    case Field::kWidth:
      return DataField{WithoutColon(words(kElementWidthRow)), setup.width_text};
    case Field::kHeight:
      return DataField{WithoutColon(words(kElementHeightRow)), setup.height_text};
    case Field::kCavityDepth:
      return DataField{words(kCavityDepthCaptionRow), Millimetres(setup.cavity.depth_text)};
    case Field::kCavityKind:
      return DataField{words(kCavityKindCaptionRow), CavityKindText(setup.cavity.kind, words)};
    case Field::kFibreThickness:
      return DataField{words(kFibreThicknessCaptionRow), Millimetres(setup.cavity.fibre_text)};
    case Field::kSeaCavityDepth:
      return DataField{words(kCavityDepthCaptionRow), Millimetres(setup.sea_cavity.depth_text)};
    case Field::kSeaCavityType:
      return DataField{words(kCavityKindCaptionRow), SeaCavityTypeText(setup.sea_cavity.type, words)};
    case Field::kSupport:
      return SupportField(setup, row, words);
    case Field::kHanger:
      return DataField{WithoutColon(words(kConnectionTypeRow)),
                       setup.hanger < 0 ? words(kNoneSetRow) : HangerText(setup.hanger, words)};
    case Field::kDecoupling:
      return DataField{WithoutColon(words(kDecoupledRow)), setup.decoupled ? words(kTickSetRow) : kNoValue};
    case Field::kSimplified:
      return DataField{words(kSimplifiedCaptionRow),
                       words(setup.facade.simplified ? kByRatingsRow : kByBandsRow)};
    case Field::kConnection:
      return DataField{words(kCavityConnectionRow), ConnectionsOf(setup.multilayer, words)};
    case Field::kTracks:
      return DataField{words(kTracksRow), setup.multilayer.framed ? words(kTickSetRow) : kNoValue};
    case Field::kMaterial:
    case Field::kThickness:
    case Field::kSheets:
    case Field::kStratumKind:
    case Field::kStratumThickness:
    case Field::kConnectionNumber:
    case Field::kProfileHeight:
    case Field::kProfilePitch:
    case Field::kTick:
    case Field::kDensity:
    case Field::kYoungsModulus:
    case Field::kLossFactor:
    case Field::kPoissonsRatio:
    case Field::kFlowResistance:
    case Field::kDynamicStiffness:
    case Field::kAbsorption:
    case Field::kArea:
    case Field::kRating:
    case Field::kC:
    case Field::kCtr:
    case Field::kBand:
    case Field::kMass:
    case Field::kTightness:
    case Field::kBaseThickness:
      return std::nullopt;
  }
  return std::nullopt;
}

std::vector<InputText> ConnectionTexts(const elements::Setup& setup, const Words& words) {
  std::vector<InputText> texts;
  if (!setup.calculation) return texts;
  const elements::CalculationRow& row = elements::RowOf(*setup.calculation);
  const auto add = [&](Field field, MessageRow caption, const std::string& value) {
    if (row.Reads(field)) texts.push_back({field, WithoutColon(words(caption)), value});
  };
  add(Field::kSupport, IsCount(row.support) ? kConnectionsRow : kSupportDistanceRow,
      setup.support_distance_text);
  add(Field::kHanger, kConnectionTypeRow, HangerText(setup.hanger, words));
  if (setup.decoupled) add(Field::kDecoupling, kDecoupledRow, {});
  if (setup.multilayer.framed) add(Field::kTracks, kTracksRow, {});
  return texts;
}

std::string HangerText(int hanger, const Words& words) {
  const auto place = static_cast<std::size_t>(hanger);
  return place < kHangerRows.size() ? words(kHangerRows[place]) : std::string();
}

}  // namespace velmar::presentation
