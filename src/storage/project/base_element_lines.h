#pragma once

#include "elements/setup.h"
#include "storage/project/line_cursor.h"
#include "storage/project/line_writer.h"

namespace velmar::storage {

// The lines that the base of a lining and the opaque part of a facade share.

/// Name, description, rating, area: `Combo14`, `Text11`, `Text25`, `Text7`.
inline void WriteBaseHead(LineWriter& out, const elements::BaseElement& base) {
  out.Text(base.name);
  out.Text(base.description);
  out.Text(base.rating_text);
  out.Text(base.area_text);
}
inline void ReadBaseHead(LineCursor& lines, elements::BaseElement& base) {
  base.name = lines.Text();
  base.description = lines.Text();
  base.rating_text = lines.Text();
  base.area_text = lines.Text();
}

/// Surface mass (single), 21 bands, C, Ctr. Works on a facade's component as well.
template <typename Element>
void WriteRatedElement(LineWriter& out, const Element& element) {
  out.Single(element.mass_kg_m2);
  for (const std::string& band : element.band_texts) out.Text(band);
  out.Text(element.c_text);
  out.Text(element.ctr_text);
}
template <typename Element>
void ReadRatedElement(LineCursor& lines, Element& element) {
  element.mass_kg_m2 = lines.Single();
  for (std::string& band : element.band_texts) band = lines.Text();
  element.c_text = lines.Text();
  element.ctr_text = lines.Text();
}

}  // namespace velmar::storage
