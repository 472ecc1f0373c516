#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

#include <pugixml.hpp>

namespace velmar::presentation {

/// What a document's styles are called in the document into which it is bound.
struct StyleNames {
  std::map<std::string, std::string> new_names{};  ///< of styles that had to be renamed
  std::string unnamed_paragraphs{};     ///< the style that paragraphs without one need; empty: none
  std::vector<std::string> chapters{};  ///< styles (by their old names) that head a whole document
};

/// The styles of a document that is bound of several: what two of them define alike stands there once, what
/// they define differently under two names, so that each chapter keeps its looks.
class BoundStyles {
 public:
  /// @throws TemplateFailure when `bytes` hold no styles
  explicit BoundStyles(std::string_view bytes);

  /// Takes the styles `bytes` of a chapter.
  const StyleNames& Take(const std::string& bytes);

  std::string Bytes() const;

 private:
  StyleNames Merge(pugi::xml_node styles);

  pugi::xml_document xml_{};
  std::map<std::string, StyleNames> taken_{};
};

/// Renames the styles that anything below `root` names.
void RenameStyles(pugi::xml_node root, const StyleNames& names);

}  // namespace velmar::presentation
