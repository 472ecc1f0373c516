#include "application/projects.h"

#include <memory>
#include <string_view>
#include <utility>

#include "calculation/select_calculation.h"
#include "foundation/failure.h"

namespace velmar::application {
namespace {

template <typename Find>
Find Forgiving(Find find, const std::shared_ptr<bool>& told,
               const std::function<void(const Failure&)>& tell) {
  return [=](std::string_view name) -> typename Find::result_type {
    try {
      return find(name);
    } catch (const Failure& failure) {
      if (!std::exchange(*told, true)) tell(failure);
      return std::nullopt;
    }
  };
}

}  // namespace

storage::OpenedProject OpenProject(const std::filesystem::path& path, const elements::Setup& current,
                                   const elements::MaterialLookup& materials) {
  return storage::OpenProject(
      path,
      {.current = current, .select_calculation = calculation::SelectCalculation, .materials = materials});
}

elements::MaterialLookup ForgivingLookup(elements::MaterialLookup materials,
                                         const std::function<void(const Failure&)>& tell) {
  const auto told = std::make_shared<bool>(false);
  elements::MaterialLookup forgiving;
  forgiving.structural = Forgiving(std::move(materials.structural), told, tell);
  forgiving.fibrous = Forgiving(std::move(materials.fibrous), told, tell);
  forgiving.resilient = Forgiving(std::move(materials.resilient), told, tell);
  return forgiving;
}

}  // namespace velmar::application
