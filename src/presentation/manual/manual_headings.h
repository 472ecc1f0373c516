#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace velmar::presentation {

/// A heading of the manual.
struct ManualHeading {
  int level = 0;         ///< 1: the title, 2: a chapter, 3: a section
  std::string title{};   ///< with the chapter's number, without marks of Markdown
  std::string anchor{};  ///< by which links and windows find it

  bool operator==(const ManualHeading&) const = default;
};

/// The anchor of a heading: its words in lower case with hyphens between them, without number and marks. "3.
/// Pareti semplici" is "pareti-semplici".
std::string AnchorOf(std::string_view title);

/// The headings of the manual's text in Markdown, in order; what stands in fences of code is none.
std::vector<ManualHeading> HeadingsIn(std::string_view markdown);

}  // namespace velmar::presentation
