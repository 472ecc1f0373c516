#include "tests/manual_builder/built_pdf.h"

#include <qpdf/QPDF.hh>
#include <qpdf/QPDFObjectHandle.hh>
#include <qpdf/QPDFOutlineDocumentHelper.hh>

namespace velmar::manual {
namespace {

void Collect(QPDFOutlineObjectHelper& bookmark, BuiltPdf& pdf) {
  pdf.bookmarks.push_back(bookmark.getTitle());
  if (bookmark.getDestPage().isNull()) pdf.bookmarks_without_a_page.push_back(pdf.bookmarks.back());
  for (QPDFOutlineObjectHelper& below : bookmark.getKids()) Collect(below, pdf);
}

}  // namespace

BuiltPdf ReadPdf(const std::string& file) {
  QPDF document;
  document.processFile(file.c_str());
  BuiltPdf pdf;
  for (QPDFOutlineObjectHelper& bookmark : QPDFOutlineDocumentHelper(document).getTopLevelOutlines())
    Collect(bookmark, pdf);
  const std::vector<QPDFObjectHandle>& pages = document.getAllPages();
  pdf.page_count = pages.size();
  pdf.links_on_second_page = QPDFObjectHandle(pages.at(1)).getKey("/Annots").getArrayNItems();
  return pdf;
}

}  // namespace velmar::manual
