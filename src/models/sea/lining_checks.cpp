#include "models/sea/lining_checks.h"

#include <string>
#include <utility>

#include "foundation/message_rows.h"
#include "models/sea/wall_assembly.h"

namespace velmar::models {
namespace {

/// The lines of one box; the opening stands only before a first reason.
class Reasons {
 public:
  void Add(MessageLine words) {
    if (message_.empty()) message_.push_back({kCheckCavityRow, ":"});
    words.insert(words.begin(), "- ");
    message_.push_back(std::move(words));
  }
  Message Take() { return std::move(message_); }

 private:
  Message message_;
};

MessageRow ByFamily(const LiningInput& input, MessageRow lining, MessageRow ceiling) {
  return IsCeiling(input.variant) ? ceiling : lining;
}

void CheckEnergyBalance(const LiningInput& input, Reasons& reasons) {
  if (input.base_mass_kg_m2 == 0.0F) {
    reasons.Add(
        {kNoBaseMassRow, " ", ByFamily(input, kOfLiningRow, kOfCeilingRow), " ", "assente o non valida"});
  }
  if (!IsCavityDeepEnough(input.cavity.depth_mm * 0.001)) reasons.Add({kCavityTooThinRow});
  if (!CompleteBaseSpectrum(input.base_spectrum_db).is_complete) reasons.Add({kNoBaseSpectrumRow});
  for (const std::string& name : FillsWithoutAbsorption(input.cavity)) {
    reasons.Add({kNoAbsorptionOfFillRow, " ", name});
  }
  if (!input.base_rw_db) {
    reasons.Add({kNoBaseRatingRow});
  } else if (!(*input.base_rw_db > 0.0F)) {
    reasons.Add({kBaseRatingNotPositiveRow});
  }
  if (!ConnectionCount(input)) {
    reasons.Add({input.variant == LiningVariant::kFramedLining ? kNoSupportDistanceRow : kNoHangerRow});
  }
}

void CheckGeneric(const LiningInput& input, Reasons& reasons) {
  if (input.base_mass_kg_m2 == 0.0F) reasons.Add({kGenericNoBaseMassRow});
  if (!(GenericLiningMass(input) > 0.0)) {
    reasons.Add(
        {kGenericNoMassRow, " ", ByFamily(input, kOfLiningRow, kOfCeilingRow), " ", kGenericNoMassEndRow});
  }
  if (!input.base_rw_db) {
    reasons.Add({kGenericBaseRatingRow, ByFamily(input, kRatingBlankOfWallRow, kRatingBlankOfFloorRow)});
  } else if (!(*input.base_rw_db > 0.0F)) {
    reasons.Add(
        {kGenericBaseRatingRow, ByFamily(input, kRatingNotPositiveOfWallRow, kRatingNotPositiveOfFloorRow)});
  }
}

}  // namespace

Message CheckLiningDepth(std::optional<double> depth_mm) {
  Reasons reasons;
  if (!depth_mm) reasons.Add({kNoDepthRow});
  return reasons.Take();
}

Message CheckLining(const LiningInput& input) {
  Reasons reasons;
  if (IsGeneric(input.variant)) {
    CheckGeneric(input, reasons);
  } else {
    CheckEnergyBalance(input, reasons);
  }
  return reasons.Take();
}

}  // namespace velmar::models
