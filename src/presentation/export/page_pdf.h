#pragma once

#include <string>

#include "presentation/drawing/printed_page.h"

namespace velmar::presentation {

/// `page` as the bytes of a PDF file of A4 pages, vectors and embedded fonts. A QGuiApplication must
/// exist.
/// @param title what a viewer shows as the document's title, UTF-8
std::string PagePdf(const PaginaDiStampa& page, const std::string& title);

}  // namespace velmar::presentation
