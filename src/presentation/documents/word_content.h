#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include <pugixml.hpp>

#include "presentation/texts/calculation_data.h"

namespace velmar::presentation {

/// A piece of a document that is made by the program rather than by a template, in the template's styles.
struct WordContent {
  enum class Kind {
    kChapter,  ///< "RelazioneCapitolo"
    kHeading,  ///< "RelazioneGruppo"
    kText,     ///< "RelazioneNota"
    kTable,    ///< "RelazioneTabellaDati", as wide as the text, its head repeated on every page
  };
  Kind kind = Kind::kText;
  std::string text{};
  DataTable table{};
  bool keeps_with_next = false;  ///< of a table: it stands on one page, with what follows
  int table_width = 9638;  ///< in twentieths of a point; as it stands, of the text on an A4 page upright
  /// The placeholders that stand in column `placeholder_column` of the table's rows; fewer than rows: in none
  /// of the others.
  std::vector<std::string> placeholders{};
  std::size_t placeholder_column = 0;
};

/// Puts `content` before the paragraph or table `before`.
void InsertContent(pugi::xml_node before, const WordContent& content);

}  // namespace velmar::presentation
