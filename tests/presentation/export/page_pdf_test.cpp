#include "presentation/export/page_pdf.h"

#include <QString>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/presentation/drawing/catalogue_words.h"
#include "tests/presentation/sample_setups.h"

namespace velmar::presentation {
namespace {

using testing::HasSubstr;
using testing::Not;

std::string Pdf(const elements::Setup& setup, const std::string& title) {
  const elements::ResultSet result = samples::Result();
  return PagePdf(PaginaDi(setup, {150.0, 141.0}, &result, CatalogueWords()), title);
}

/// `text` as PDF spells a title: UTF-16 in brackets.
std::string Titled(const std::string& text) {
  std::string spelled = "/Title (\xFE\xFF";
  for (const QChar character : QString::fromStdString(text)) {
    spelled += static_cast<char>(character.row());
    spelled += static_cast<char>(character.cell());
  }
  return spelled + ")";
}

TEST(PagePdf, IsA4PagesOfVectorsWithItsTitle) {
  for (const elements::Setup& setup :
       {samples::PlasteredBrickWall(), samples::FacadeOfNine(), samples::FloatingFloor()}) {
    const std::string pdf = Pdf(setup, "Parete è 1");
    EXPECT_TRUE(pdf.starts_with("%PDF-"));
    EXPECT_TRUE(pdf.ends_with("%%EOF\n"));
    // The result first, the inputs behind it.
    EXPECT_THAT(pdf, HasSubstr("/Count 2\n"));
    EXPECT_THAT(pdf, HasSubstr("/MediaBox [0 0 595"));
    EXPECT_THAT(pdf, Not(HasSubstr("/Subtype /Image")));
    EXPECT_THAT(pdf, HasSubstr(Titled("Parete è 1")));
  }
}

}  // namespace
}  // namespace velmar::presentation
