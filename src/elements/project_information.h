#pragma once

#include <array>
#include <cstddef>
#include <string>

#include "foundation/catalogue_rows.h"

namespace velmar::elements {

/// One caption and its value, such as "Cliente" and the client's name.
struct ProjectInformationRow {
  std::string caption{};
  std::string value{};

  bool operator==(const ProjectInformationRow&) const = default;
};

inline constexpr std::size_t kProjectInformationRows = 8;
inline constexpr std::size_t kNotesRow = 5;       ///< the one row whose value may hold line breaks
inline constexpr std::size_t kAttachmentRow = 6;  ///< the attachment's code

/// The project information: project, client, project number, engineer, project data, notes, attachment, and
/// one row without a default caption. A loaded project brings its own captions.
using ProjectInformation = std::array<ProjectInformationRow, kProjectInformationRows>;

/// What stands for a caption that is empty.
inline constexpr std::array<MessageRow, kProjectInformationRows> kInformationCaptions = {
    kInformationProjectRow, kInformationClientRow, kInformationNumberRow, kInformationEngineerRow,
    kInformationDataRow,    kInformationNotesRow,  kInformationAnnexRow,  kInformationOtherRow};

/// As many rows have a caption in a new project.
inline constexpr std::size_t kCaptionedInformationRows = 7;

}  // namespace velmar::elements
