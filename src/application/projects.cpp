#include "application/projects.h"

#include <memory>
#include <string_view>
#include <utility>

#include "calculation/edits/select_calculation.h"
#include "foundation/failure.h"

namespace velmar::application {
namespace {

using Tell = std::function<void(const Failure&)>;

template <typename Find>
Find Forgiving(Find find, const Tell& tell) {
  return [=](std::string_view name) -> typename Find::result_type {
    try {
      return find(name);
    } catch (const Failure& failure) {
      tell(failure);
      return std::nullopt;
    }
  };
}

elements::MaterialLookup ForgivingEach(const elements::MaterialLookup& materials, const Tell& tell) {
  return {Forgiving(materials.structural, tell), Forgiving(materials.fibrous, tell),
          Forgiving(materials.resilient, tell)};
}

/// Hands the first failure of an operation on to `tell`.
Tell TellingOnce(const Tell& tell) {
  return [tell, told = std::make_shared<bool>(false)](const Failure& failure) {
    if (!std::exchange(*told, true)) tell(failure);
  };
}

}  // namespace

storage::OpenedProject OpenProject(const std::filesystem::path& path, const elements::Setup& current,
                                   const elements::MaterialLookup& materials) {
  return storage::OpenProject(path, {.current = current,
                                     .select_calculation = calculation::SelectCalculation,
                                     .materials = elements::ForOneOperation(materials)});
}

elements::MaterialLookup ForgivingLookup(elements::MaterialLookup materials, const Tell& tell) {
  elements::MaterialLookup forgiving = ForgivingEach(materials, tell);
  forgiving.for_one_operation = [materials = std::move(materials), tell] {
    return ForgivingEach(elements::ForOneOperation(materials), TellingOnce(tell));
  };
  return forgiving;
}

}  // namespace velmar::application
