#include "shell/printing/save_pdf.h"

#include "presentation/export/page_pdf.h"
#include "storage/files/whole_file.h"

namespace velmar::printing {

void SavePdf(const presentation::PaginaDiStampa& page, const std::string& title,
             const std::filesystem::path& path) {
  storage::WriteWhole(path, presentation::PagePdf(page, title));
}

}  // namespace velmar::printing
