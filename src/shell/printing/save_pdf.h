#pragma once

#include <filesystem>
#include <string>

#include "presentation/drawing/printed_page.h"

namespace velmar::printing {

/// Writes `page` as a PDF file, whole or not at all. @param title the document's, UTF-8
/// @throws storage::StoreFailure when the file cannot be written; the old one is untouched then
void SavePdf(const presentation::PaginaDiStampa& page, const std::string& title,
             const std::filesystem::path& path);

}  // namespace velmar::printing
