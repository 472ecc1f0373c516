#include "models/sea/lining_checks.h"

#include <string>
#include <utility>

#include "models/sea/wall_assembly.h"

namespace velmar::models {
namespace {

constexpr MessageRow kOpening{231};
constexpr MessageRow kNoDepth{233};
constexpr MessageRow kGenericNoBaseMass{234};
constexpr MessageRow kGenericNoMass{235};
constexpr MessageRow kGenericBaseRating{236};
constexpr MessageRow kOfLining{237};
constexpr MessageRow kOfCeiling{238};
constexpr MessageRow kRatingBlankOfWall{239};
constexpr MessageRow kRatingBlankOfFloor{240};
constexpr MessageRow kRatingNotPositiveOfWall{241};
constexpr MessageRow kRatingNotPositiveOfFloor{242};
constexpr MessageRow kGenericNoMassEnd{243};
constexpr MessageRow kNoBaseMass{244};
constexpr MessageRow kCavityTooThin{245};
constexpr MessageRow kNoBaseSpectrum{246};
constexpr MessageRow kNoAbsorption{247};
constexpr MessageRow kNoBaseRating{248};
constexpr MessageRow kBaseRatingNotPositive{249};
constexpr MessageRow kNoHanger{250};
constexpr MessageRow kNoSupportDistance{251};

/// The lines of one box; the opening stands only before a first reason.
class Reasons {
 public:
  void Add(MessageLine words) {
    if (message_.empty()) message_.push_back({kOpening, ":"});
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
    reasons.Add({kNoBaseMass, " ", ByFamily(input, kOfLining, kOfCeiling), " ", "assente o non valida"});
  }
  if (!IsCavityDeepEnough(input.cavity.depth_mm * 0.001)) reasons.Add({kCavityTooThin});
  if (!CompleteBaseSpectrum(input.base_spectrum_db).is_complete) reasons.Add({kNoBaseSpectrum});
  for (const std::string& name : FillsWithoutAbsorption(input.cavity)) {
    reasons.Add({kNoAbsorption, " ", name});
  }
  if (!input.base_rw_db) {
    reasons.Add({kNoBaseRating});
  } else if (!(*input.base_rw_db > 0.0F)) {
    reasons.Add({kBaseRatingNotPositive});
  }
  if (!ConnectionCount(input)) {
    reasons.Add({input.variant == LiningVariant::kFramedLining ? kNoSupportDistance : kNoHanger});
  }
}

void CheckGeneric(const LiningInput& input, Reasons& reasons) {
  if (input.base_mass_kg_m2 == 0.0F) reasons.Add({kGenericNoBaseMass});
  if (!(GenericLiningMass(input) > 0.0)) {
    reasons.Add({kGenericNoMass, " ", ByFamily(input, kOfLining, kOfCeiling), " ", kGenericNoMassEnd});
  }
  if (!input.base_rw_db) {
    reasons.Add({kGenericBaseRating, ByFamily(input, kRatingBlankOfWall, kRatingBlankOfFloor)});
  } else if (!(*input.base_rw_db > 0.0F)) {
    reasons.Add({kGenericBaseRating, ByFamily(input, kRatingNotPositiveOfWall, kRatingNotPositiveOfFloor)});
  }
}

}  // namespace

Message CheckLiningDepth(std::optional<double> depth_mm) {
  Reasons reasons;
  if (!depth_mm) reasons.Add({kNoDepth});
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
