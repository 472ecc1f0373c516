#pragma once

#include <functional>
#include <optional>
#include <string>

#include "calculation/runs/totals.h"
#include "elements/result_set.h"
#include "elements/setup.h"
#include "elements/studio_profile.h"
#include "foundation/message.h"
#include "presentation/texts/calculation_data.h"
#include "presentation/texts/words.h"

namespace velmar::application {

/// What a report is made of.
struct ReportContent {
  std::string name{};  ///< of the project, without folder and extension; UTF-8
  elements::Setup setup{};
  elements::ResultSet result{};
  calculation::Totals totals{};
  Message confidence{};  ///< what is known of the error of the result
  presentation::Words words{};
  std::string file{};                                    ///< the project's name without its folder; UTF-8
  std::optional<elements::DocumentLanguage> language{};  ///< none: as the studio profile says
  presentation::MaterialSources sources{};               ///< of the layers' materials
  std::function<void(const Message&)> tell{};  ///< what the user is to know of a report that was written
};

}  // namespace velmar::application
