#include "shell/structures/branches.h"

namespace velmar::structures {
namespace {

constexpr BranchSymbols kReduction{"Rw", "C", "Ctr", "Ri [dB]", true};
constexpr BranchSymbols kImprovement{"DRw", "C", "Ctr", "Ri [dB]", true};
constexpr BranchSymbols kDifference{"Dnew", "C", "Ctr", "Dn [dB]", true};
constexpr BranchSymbols kImpactLevel{"Lnw", "Ci", "Ci 50-5000", "Ln,i [dB]"};
constexpr BranchSymbols kImpactReduction{"DLw", "Ci", "", "DLni [dB]"};

}  // namespace

const BranchSymbols& SymbolsOf(Branch branch) {
  switch (branch) {
    case Branch::kLinings:
    case Branch::kCalculatedLinings:
      return kImprovement;
    case Branch::kSmallElements:
      return kDifference;
    case Branch::kFloors:
    case Branch::kFieldFloors:
    case Branch::kCalculatedFloors:
      return kImpactLevel;
    case Branch::kCoverings:
      return kImpactReduction;
    case Branch::kWalls:
    case Branch::kOpenings:
    case Branch::kFieldWalls:
    case Branch::kCalculatedWalls:
      break;
  }
  return kReduction;
}

}  // namespace velmar::structures
