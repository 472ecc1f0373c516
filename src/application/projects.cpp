#include "application/projects.h"

#include "calculation/select_calculation.h"

namespace velmar::application {

storage::OpenedProject OpenProject(const std::filesystem::path& path, const elements::Setup& current,
                                   const elements::MaterialLookup& materials) {
  return storage::OpenProject(
      path,
      {.current = current, .select_calculation = calculation::SelectCalculation, .materials = materials});
}

}  // namespace velmar::application
