#pragma once

#include <cstddef>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "application/documents/document_style.h"
#include "elements/material_record.h"
#include "foundation/message.h"
#include "presentation/texts/calculation_data.h"
#include "presentation/texts/words.h"
#include "validation/accuracy.h"

namespace velmar::documents {

enum class ScheduleFormat { kWord, kExcel, kPdf };

/// The format whose files end in `extension`, without a point; nothing for any other.
std::optional<ScheduleFormat> ScheduleFormatOf(std::string_view extension);

/// What is asked of a report of several projects.
struct ScheduleOrder {
  std::vector<std::filesystem::path> projects{};  ///< in the order of the chapters
  ScheduleFormat format = ScheduleFormat::kWord;
  std::string title{};                                   ///< empty: the usual one
  std::optional<elements::DocumentLanguage> language{};  ///< none: as the studio profile says
  bool go_on_outside_ranges = false;
};

/// What it is made with; outlives the work.
struct ScheduleTools {
  presentation::Words words{};
  elements::MaterialLookup materials{};
  presentation::MaterialSources sources{};
  application::DocumentPlaces places{};
  validation::Accuracy accuracy{};  ///< of the errors of the models
};

/// A project that has no chapter, and why.
struct FailedProject {
  std::filesystem::path project{};
  Message reason{};
};

/// A report of several projects.
struct MadeSchedule {
  std::string bytes{};
  std::vector<FailedProject> failed{};  ///< named in the document
  std::vector<Message> remarks{};       ///< what the user is to know of the chapters, each once
};

/// Called before each step. @param project the name that it is about; empty for the binding
/// @return whether to go on
using WatchSchedule = std::function<bool(std::size_t done, std::size_t steps, const std::string& project)>;

/// Runs every project of `order` and makes one document of them. A project that fails is named in it with its
/// reason. Touches no widget: it may run in a thread of its own. A QGuiApplication must exist.
/// @return nothing when `watch` said to stop
/// @throws Failure when the order is empty, no project gives a result, or the template around the chapters
/// cannot be used
std::optional<MadeSchedule> MakeSchedule(const ScheduleOrder& order, const ScheduleTools& tools,
                                         const WatchSchedule& watch = {});

}  // namespace velmar::documents
