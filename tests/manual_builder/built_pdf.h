#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace velmar::manual {

/// What a PDF holds for those who look for something in it.
struct BuiltPdf {
  std::vector<std::string> bookmarks{};  ///< their titles, in the order of the pages
  std::vector<std::string> bookmarks_without_a_page{};
  std::size_t page_count = 0;
  int links_on_second_page = 0;  ///< that of the contents
};

/// Reads `file`.
/// @throws std::exception when it is no PDF, or has no second page with links
BuiltPdf ReadPdf(const std::string& file);

}  // namespace velmar::manual
