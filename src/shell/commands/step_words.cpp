#include "shell/commands/step_words.h"

#include "elements/parts.h"
#include "foundation/message_rows.h"
#include "presentation/texts/field_texts.h"
#include "shell/windows/phrases.h"

namespace velmar::shell {
namespace {

using calculation::StepKind;
using elements::FieldId;

/// The number of a layer row in its element; counted within its group where it is not in use any longer. A
/// row of a free list that is no layer, as air is none, has no number.
int NumberOf(const FieldId& field, const elements::Setup& setup) {
  for (const elements::Part& part : PartsOf(setup)) {
    for (const elements::Layer& layer : part.layers) {
      if (layer.group == field.group && layer.row == field.index) return layer.number;
    }
  }
  return field.group == elements::LayerGroup::kStratumSolid ? 0 : field.index + 1;
}

}  // namespace

QString StepWords(const calculation::Step& step, const elements::Setup& setup,
                  const presentation::Words& words) {
  const auto of_element = [&](MessageRow row) {
    QString text = Text(words, row);
    if (step.field.index > 0)
      text += ' ' + Text(words, kStepOfComponentRow) + ' ' + QString::number(step.field.index);
    return text;
  };
  const auto of_layer = [&](MessageRow row) {
    const int number = NumberOf(step.field, setup);
    return number > 0 ? Text(words, row) + ' ' + QString::number(number) : Text(words, row);
  };
  const auto of_component = [&](MessageRow row) {
    return Text(words, row) + ' ' + QString::number(step.field.index);
  };
  switch (step.kind) {
    case StepKind::kField: {
      const MessageRow row = presentation::StepRowOf(step.field.field);
      return step.field.group ? of_layer(row) : of_element(row);
    }
    case StepKind::kCount:
      return Text(words, step.field.group ? kStepLayerCountRow : kStepComponentCountRow);
    case StepKind::kCalculation:
      return Text(words, kStepCalculationRow);
    case StepKind::kName:
      return of_element(kStepNameRow);
    case StepKind::kDescription:
      return of_element(kStepDescriptionRow);
    case StepKind::kBands:
      return of_element(kStepBandsRow);
    case StepKind::kInformation:
      return Text(words, kStepInformationRow);
    case StepKind::kLayerInserted:
      return of_layer(kStepLayerInsertedRow);
    case StepKind::kLayerDuplicated:
      return of_layer(kStepLayerDuplicatedRow);
    case StepKind::kLayerRemoved:
      return Text(words, kStepLayerRemovedRow);
    case StepKind::kLayerMoved:
      return of_layer(kStepLayerMovedRow);
    case StepKind::kLayersPasted:
      return Text(words, kStepLayersPastedRow);
    case StepKind::kLeafMirrored:
      return Text(words, kStepMirroredRow);
    case StepKind::kElementTurned:
      return Text(words, kStepTurnedRow);
    case StepKind::kComponentAdded:
      return of_component(kStepComponentAddedRow);
    case StepKind::kComponentDuplicated:
      return of_component(kStepComponentDuplicatedRow);
    case StepKind::kComponentRemoved:
      return Text(words, kStepComponentRemovedRow);
    case StepKind::kComponentMoved:
      return of_component(kStepComponentMovedRow);
    case StepKind::kVariantFixed:
      return Text(words, kStepVariantFixedRow);
    case StepKind::kVariantRenamed:
      return Text(words, kStepVariantRenamedRow);
    case StepKind::kVariantMoved:
      return Text(words, kStepVariantMovedRow);
    case StepKind::kVariantRemoved:
      return Text(words, kStepVariantRemovedRow);
    case StepKind::kVariantTaken:
      return Text(words, kStepVariantTakenRow);
    case StepKind::kRequirement:
      return Text(words, kStepRequirementRow);
    case StepKind::kSeveral:
      return Text(words, kStepSeveralRow);
  }
  return {};
}

}  // namespace velmar::shell
