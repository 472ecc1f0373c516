#include "validation/model_choice.h"

#include <algorithm>
#include <array>

#include "foundation/message_rows.h"
#include "validation/footfall_prediction.h"
#include "validation/model_prediction.h"

namespace velmar::validation {
namespace {

using enum ElementKind;

constexpr std::array kRules = {
    ModelRule{kBrickAndClay, "Parete singola in laterizio UniveFerrara", kClayReasonRow},
    ModelRule{kConcrete, "Parete singola Generica", kHeavyReasonRow},
    ModelRule{kAeratedConcrete, kLayeredModel, kTransferMatrixReasonRow},
    ModelRule{kCalciumSilicate, kLayeredModel, kTransferMatrixReasonRow},
    ModelRule{kConcreteBlock, kLayeredModel, kTransferMatrixReasonRow},
    ModelRule{kSheet, kLayeredModel, kTransferMatrixReasonRow},
    ModelRule{kSinglePane, kLayeredModel, kTransferMatrixReasonRow},
    ModelRule{kLaminatedPane, kLayeredModel, kTransferMatrixReasonRow},
    ModelRule{kInsulatingUnit, kLayeredModel, kTransferMatrixReasonRow},
    ModelRule{kDoubleWindow, kLayeredModel, kTransferMatrixReasonRow},
    ModelRule{kWoodStuds, kLayeredModel, kTransferMatrixReasonRow},
    ModelRule{kSteelStuds, kLayeredModel, kTransferMatrixReasonRow},
    ModelRule{kResilientStuds, kLayeredModel, kTransferMatrixReasonRow},
    ModelRule{kResilientChannels, kLayeredModel, kTransferMatrixReasonRow},
    ModelRule{kSeparateFrames, "Parete leggera doppia pannelli completamente isolati", kSeparateReasonRow},
    ModelRule{kStuds, kLayeredModel, kTransferMatrixReasonRow},
    ModelRule{kConnectedBoards, kLayeredModel, kTransferMatrixReasonRow},
    ModelRule{kUnconnectedBoards, "Parete leggera doppia pannelli completamente isolati", kSeparateReasonRow},
    ModelRule{kBoards, kLayeredModel, kTransferMatrixReasonRow},
    ModelRule{kImpactCovering, kFootfallModel, kCoveringReasonRow},
};

}  // namespace

std::span<const ModelRule> ModelRules() { return kRules; }

std::optional<ModelRule> RuleFor(ElementKind kind) {
  const auto at = std::ranges::find(kRules, kind, &ModelRule::kind);
  return at == kRules.end() ? std::nullopt : std::optional(*at);
}

}  // namespace velmar::validation
