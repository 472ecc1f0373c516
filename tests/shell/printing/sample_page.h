#pragma once

#include "presentation/drawing/printed_page.h"
#include "tests/presentation/drawing/catalogue_words.h"
#include "tests/presentation/sample_setups.h"

namespace velmar::printing {

inline presentation::PaginaDiStampa SamplePage() {
  const elements::ResultSet result = presentation::samples::Result();
  return presentation::PaginaDi(presentation::samples::PlasteredBrickWall(), {150.0, 141.0}, &result,
                                presentation::CatalogueWords());
}

}  // namespace velmar::printing
