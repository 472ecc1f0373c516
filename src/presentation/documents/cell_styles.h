#pragma once

#include <map>
#include <string>
#include <string_view>
#include <tuple>

#include <pugixml.hpp>

namespace velmar::presentation {

/// What is to be different in a cell's style.
struct StyleChange {
  bool left = false;  ///< a thin border at this edge
  bool right = false;
  bool top = false;
  bool bottom = false;
  std::string horizontal{};  ///< alignment "center", "left"; empty: as it is
  bool wrap = false;         ///< break long texts
  bool at_top = false;       ///< of a tall cell; else an aligned text stands in its middle
  bool bold = false;
  std::string number_format{};  ///< "0.0"; taken only where the style has none of its own

  bool operator<(const StyleChange& other) const {
    return std::tie(left, right, top, bottom, horizontal, wrap, at_top, bold, number_format) <
           std::tie(other.left, other.right, other.top, other.bottom, other.horizontal, other.wrap,
                    other.at_top, other.bold, other.number_format);
  }
};

/// The list of cell styles of a workbook, to which styles derived from those in use are added.
class CellStyles {
 public:
  /// @throws TemplateFailure when `bytes` hold no list of styles
  CellStyles(std::string_view bytes, const std::string& name);

  /// The number of the style that is `base` with `change`.
  int Derived(int base, const StyleChange& change);

  bool Changed() const { return !derived_.empty(); }
  std::string Bytes() const;

 private:
  int BorderWith(int base, const StyleChange& change);
  int FormatOf(const std::string& code);
  int BoldOf(int font);
  pugi::xml_node Style(int number) const;

  pugi::xml_document xml_{};
  std::map<std::pair<int, StyleChange>, int> derived_{};
};

}  // namespace velmar::presentation
