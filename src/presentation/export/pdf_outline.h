#pragma once

#include <QRectF>
#include <string>
#include <vector>

namespace velmar::presentation {

/// A bookmark of a PDF file: leads to the top of a page, counted from 0.
struct PdfBookmark {
  std::string title{};  ///< UTF-8
  int page = 0;
};

/// A place on a page that leads to another, in points from the upper left corner.
struct PdfLink {
  int page = 0;
  QRectF box{};
  int target = 0;
};

/// `pdf`, as Qt writes it, with a list of bookmarks and links: ISO 32000-1, 12.3.3 and 12.5.6.5. The file is
/// added to, as in an incremental update (7.5.6); what stands there stays.
/// @throws std::invalid_argument when `pdf` is not of that make, or a page is not in it
std::string WithOutline(std::string pdf, const std::vector<PdfBookmark>& bookmarks,
                        const std::vector<PdfLink>& links);

}  // namespace velmar::presentation
