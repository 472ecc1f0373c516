#pragma once

#include <string>

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
  bool on_new_page = false;  ///< of a chapter
  DataTable table{};
};

/// Puts `content` before the paragraph or table `before`.
void InsertContent(pugi::xml_node before, const WordContent& content);

}  // namespace velmar::presentation
