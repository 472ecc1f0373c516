#include "storage/project/version_code.h"

#include <algorithm>
#include <optional>

#include "foundation/decimal.h"
#include "foundation/rounding.h"
#include "storage/project/text_rules.h"

namespace velmar::storage {

int VersionCode(std::string_view header) {
  header = LeftTrimmed(header);
  if (header.starts_with("VELMAR 2")) return kCurrentLayout;
  const bool release_15 = header.find("VELMAR 1.5") != std::string_view::npos;
  if (release_15 || header == "VELMAR 1.4") return kRelease14Layout;
  const std::size_t point = header.rfind('.');
  if (point == std::string_view::npos) return kOldestLayout;
  const std::optional<double> number = ParseDecimal(header.substr(point + 1));
  if (!number) return kRelease14Layout;
  return static_cast<int>(RoundToEven(std::clamp(*number, -1000.0, 1000.0)));
}

}  // namespace velmar::storage
