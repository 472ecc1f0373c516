#include "models/relations/relation_table.h"

#include <array>
#include <cmath>
#include <cstddef>
#include <string>

#include "acoustics/logarithm.h"
#include "foundation/failure.h"
#include "foundation/message_rows.h"
#include "models/relations/relation_quantities.h"

namespace velmar::models {
namespace {

using In = const RelationInput&;

/// Log10() of what the user can mend when it is not positive.
double Lg(double x, MessageRow cause) {
  if (!(x > 0.0)) throw ArithmeticFailure(cause, "logarithm of " + std::to_string(x) + " in a relation");
  return acoustics::Log10(x);
}

double LgM(In in) { return Lg(PlateMass(in), kZeroMassRow); }
double LgBoth(In in) { return Lg(BothLeavesMass(in), kZeroMassRow); }
double LgDepth(In in) { return Lg(CavityDepthInCentimetres(in), kZeroCavityDepthRow); }
double LgDepth1(In in) { return acoustics::Log10(CavityDepthInCentimetres(in) + 1.0); }
double LgFibre1(In in) { return acoustics::Log10(FibreInCentimetres(in) + 1.0); }

constexpr RangeMeasure kMass = {kRangeMassRow, "kg/m²"};
constexpr RangeMeasure kDensity = {kRangeDensityRow, "kg/m³"};
constexpr RangeMeasure kThickness = {kRangeThicknessRow, "m"};
constexpr RangeMeasure kThicknessInCentimetres = {kRangeThicknessRow, "cm"};
constexpr RangeMeasure kCavity = {kRangeCavityRow, "cm"};
constexpr RangeMeasure kFibre = {kRangeFibreRow, "cm"};
constexpr RangeMeasure kResonance = {kRangeResonanceRow, "Hz"};
constexpr RangeMeasure kBareRating = {kRangeBareRatingRow, "dB"};
constexpr RangeMeasure kNoFibre = {kRangeNoFibreRow, {}};
constexpr RangeMeasure kNotEmpty = {kRangeCavityNotEmptyRow, {}};
constexpr double kNoLimit = std::numeric_limits<double>::infinity();

constexpr RelationRange kBrick[] = {{PlateMass, 80, 400, kBrickMassRangeRow, kMass}};
constexpr RelationRange kBrickFerrara[] = {{PlateMass, 80, 500, kBrickFerraraMassRangeRow, kMass}};
constexpr RelationRange kPlasterboard[] = {{PlateMass, -kNoLimit, 150, kPlasterboardMassRangeRow, kMass}};
constexpr RelationRange kConcrete[] = {
    {PlateMass, 115, 450, kConcreteMassRangeRow, kMass},
    {PlateDensity, 750, 1600, kConcreteDensityRangeRow, kDensity},
    {ThicknessInMetres, 0.11, 0.33, kConcreteThicknessRangeRow, kThickness}};
constexpr RelationRange kHBlocks[] = {{PlateMass, 300, 500, kHBlocksMassRangeRow, kMass}};
constexpr RelationRange kConcreteBlocks[] = {
    {PlateMass, 60, 200, kConcreteBlocksMassRangeRow, kMass},
    {ThicknessInMetres, 0.08, 0.33, kConcreteBlocksThicknessRangeRow, kThickness}};
constexpr RelationRange kGypsumBlocks[] = {
    {PlateMass, 70, 110, kGypsumBlocksMassRangeRow, kMass},
    {ThicknessInMetres, 0.08, 0.1, kGypsumBlocksThicknessRangeRow, kThickness}};
constexpr RelationRange kAeratedConcrete[] = {{PlateMass, 70, 150, kAeratedConcreteMassRangeRow, kMass}};
constexpr RelationRange kHollowBlockFloor[] = {{PlateMass, 250, 500, kFloorMassRangeRow, kMass}};
constexpr RelationRange kDoubleBrick[] = {
    {BothLeavesMass, 80, 400, kDoubleBrickMassRangeRow, kMass},
    {CavityDepthInCentimetres, 5, kNoLimit, kDoubleBrickCavityRangeRow, kCavity},
    {HasFibrousCavity, 1, 1, kLeavesOrCavityRangeRow, kNoFibre}};
constexpr RelationRange kDoubleBrickFibre[] = {
    {BothLeavesMass, 80, 400, kDoubleBrickMassRangeRow, kMass},
    {CavityDepthInCentimetres, 5, kNoLimit, kTorvalleCavityRangeRow, kCavity}};
constexpr RelationRange kBoards[] = {
    {BothLeavesMass, -kNoLimit, 80, kLeavesOrCavityRangeRow, kMass},
    {ThicknessInCentimetres, -kNoLimit, 30, kPlasterboardThicknessRangeRow, kThicknessInCentimetres},
    {FibreInCentimetres, -kNoLimit, 8, kFibreThicknessRangeRow, kFibre}};
constexpr RelationRange kDoubleConcrete[] = {
    {BothLeavesMass, 115, 450, kConcreteMassRangeRow, kMass},
    {BothLeavesDensity, 750, 1600, kConcreteDensityRangeRow, kDensity},
    {ThicknessInMetres, 0.11, 0.33, kConcreteThicknessRangeRow, kThickness},
    {HasEmptyCavity,
     1,
     1,
     {},
     kNotEmpty,
     "La formula empirica si riferisce a pareti doppie con l'intercapedine vuota"}};
constexpr RelationRange kFloatingScreed[] = {
    {[](In in) { return FindFloatingScreed(in).mass_kg_m2; }, 250, 500, kSlabAndScreedMassRangeRow, kMass},
    {[](In in) { return FindFloatingScreed(in).resonance_hz; }, 40, 200, kScreedResonanceRangeRow,
     kResonance},
    {[](In in) { return FindFloatingScreed(in).bare_rating_db; }, 20, 50, kBareRatingRangeRow, kBareRating}};
constexpr RelationRange kPane[] = {{PlateMass, -kNoLimit, 60, kGlassMassRangeRow, kMass}};
constexpr RelationRange kInsulatingUnit[] = {{BothLeavesMass, -kNoLimit, 60, kGlassMassRangeRow, kMass}};

double RateFloatingScreed(In in) {
  const FloatingScreed screed = FindFloatingScreed(in);
  return screed.bare_rating_db + FloatingScreedImprovement(screed);
}

/// In the order of RelationId.
const std::array kRelations = {
    Relation{kBrick, [](In in) { return 16.0 * LgM(in) + 7.0; }},
    Relation{kBrickFerrara, [](In in) { return 18.1 * LgM(in) + 2.9; }},
    Relation{kPlasterboard, [](In in) { return 13.3 * LgM(in) + 12.0; }},
    Relation{kConcrete, [](In in) { return 26.0 * LgM(in) - 11.0; }},
    Relation{kHBlocks, [](In in) { return 28.4 * LgM(in) - 19.3; }},
    Relation{kConcrete, [](In in) { return 27.4 * LgM(in) - 14.5; }},
    Relation{kConcreteBlocks, [](In in) { return 25.1 * LgM(in) - 7.0; }},
    Relation{kGypsumBlocks, [](In in) { return 21.4 * LgM(in) - 2.0; }},
    Relation{kAeratedConcrete, [](In in) { return 21.5 * LgM(in) + 2.6; }},
    Relation{kHollowBlockFloor, [](In in) { return 23.0 * LgM(in) - 8.0; }},
    Relation{kDoubleBrick, [](In in) { return 16.0 * LgBoth(in) + 10.0; }},
    Relation{kDoubleBrickFibre, [](In in) { return 23.7 * LgBoth(in) + 6.2 * LgFibre1(in) - 9.5; }},
    Relation{kBoards,
             [](In in) { return 20.0 * LgBoth(in) + 10.0 * LgDepth(in) + FibreInCentimetres(in) + 5.0; }},
    Relation{kBoards,
             [](In in) { return 20.0 * LgBoth(in) + 10.0 * LgDepth(in) + FibreInCentimetres(in) + 10.0; }},
    Relation{{}, [](In in) { return 11.0 + 14.0 * LgBoth(in) + 10.0 * LgDepth1(in) + 10.0 * LgFibre1(in); }},
    Relation{{}, [](In in) { return 1.0 + 16.5 * LgBoth(in) + 14.8 * LgDepth1(in) + 13.9 * LgFibre1(in); }},
    Relation{{}, [](In in) { return 20.4 + 6.42 * LgBoth(in) + 21.3 * LgDepth1(in) + 8.27 * LgFibre1(in); }},
    Relation{kDoubleConcrete, [](In in) { return 26.0 * LgBoth(in) - 11.0; }},
    Relation{kFloatingScreed, RateFloatingScreed},
    Relation{kPane, [](In in) { return 12.0 * LgM(in) + 17.0; }},
    Relation{kPane, [](In in) { return 12.0 * LgM(in) + 19.0; }},
    Relation{kInsulatingUnit, [](In in) { return 12.0 * LgBoth(in) + 17.0; }},
    Relation{kInsulatingUnit, [](In in) { return 12.0 * LgBoth(in) + 20.0; }},
    Relation{kInsulatingUnit, [](In in) { return 12.0 * LgBoth(in) + 22.0; }},
};
static_assert(kRelations.size() == static_cast<std::size_t>(RelationId::kInsulatingUnitTwoLaminated) + 1);

}  // namespace

const Relation& FindRelation(RelationId id) { return kRelations.at(static_cast<std::size_t>(id)); }

}  // namespace velmar::models
