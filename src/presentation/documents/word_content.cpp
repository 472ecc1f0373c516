#include "presentation/documents/word_content.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <iterator>
#include <numeric>
#include <string_view>
#include <vector>

#include "presentation/texts/words.h"

namespace velmar::presentation {
namespace {

constexpr int kTableHalfPoints = 15;
/// At the sides of a cell, in twentieths of a point: narrow, so that a unit stands in one line.
constexpr int kLeftMargin = 80;
constexpr int kRightMargin = 50;
constexpr int kNumberColumn = 1200;
constexpr int kAbovePicture = 50;

pugi::xml_node AppendParagraph(pugi::xml_node paragraph, const char* style, const std::string& text) {
  paragraph.append_child("w:pPr").append_child("w:pStyle").append_attribute("w:val") = style;
  pugi::xml_node run = paragraph.append_child("w:r");
  for (std::size_t begin = 0; begin <= text.size();) {
    const std::size_t end = std::min(text.find('\n', begin), text.size());
    if (begin > 0) run.append_child("w:br");
    pugi::xml_node node = run.append_child("w:t");
    node.append_attribute("xml:space") = "preserve";
    node.append_child(pugi::node_pcdata).set_value(text.substr(begin, end - begin).c_str());
    begin = end + 1;
  }
  return run;
}

void SetWidth(pugi::xml_node node, int width) {
  node.append_attribute("w:w") = width;
  node.append_attribute("w:type") = "dxa";
}

/// The size of what a table of the program tells: larger than that of the bands, whose style it has.
void SetSize(pugi::xml_node run) {
  pugi::xml_node properties = run.prepend_child("w:rPr");
  for (const char* name : {"w:sz", "w:szCs"})
    properties.append_child(name).append_attribute("w:val") = kTableHalfPoints;
}

/// Numbers stand right, words left.
bool IsNumber(std::string_view cell) {
  constexpr std::string_view kMinus = "\u2212";
  constexpr std::string_view kOfNumbers = "0123456789,.-+ x*";
  if (cell.empty()) return false;
  while (!cell.empty()) {
    const bool minus = cell.starts_with(kMinus);
    if (!minus && kOfNumbers.find(cell.front()) == std::string_view::npos) return false;
    cell.remove_prefix(minus ? kMinus.size() : 1);
  }
  return true;
}

/// How the rows of a table are set.
struct RowLook {
  std::vector<int> widths{};
  std::vector<bool> right{};  ///< columns of numbers
  bool keeps_with_next = false;
};

/// Keeps a picture in a cell apart from those of the rows above and below.
void SetApart(pugi::xml_node cell) {
  pugi::xml_node spacing = cell.child("w:p").child("w:pPr").append_child("w:spacing");
  spacing.append_attribute("w:before") = kAbovePicture;
  spacing.append_attribute("w:after") = kAbovePicture;
}

/// @return the row
pugi::xml_node AppendRow(pugi::xml_node table, const std::vector<std::string>& cells, const RowLook& look,
                         bool head) {
  pugi::xml_node row = table.append_child("w:tr");
  pugi::xml_node properties = row.append_child("w:trPr");
  properties.append_child("w:cantSplit");
  if (head) properties.append_child("w:tblHeader");
  for (std::size_t i = 0; i < cells.size(); ++i) {
    pugi::xml_node cell = row.append_child("w:tc");
    SetWidth(cell.append_child("w:tcPr").append_child("w:tcW"), look.widths[i]);
    pugi::xml_node paragraph = cell.append_child("w:p");
    pugi::xml_node run = AppendParagraph(paragraph, head ? "RelazioneTestata" : "RelazioneBande", cells[i]);
    SetSize(run);
    if (look.keeps_with_next) paragraph.child("w:pPr").append_child("w:keepNext");
    if (i < look.right.size() && look.right[i] && (head || IsNumber(cells[i]) || cells[i] == kNoValue))
      paragraph.child("w:pPr").append_child("w:jc").append_attribute("w:val") = "right";
  }
  return row;
}

/// @param width all that there is; columns of numbers alone take no more than they need
std::vector<int> WidthsOf(const DataTable& table, int width, const std::vector<bool>& numbers) {
  if (!numbers.empty() && std::ranges::all_of(numbers, std::identity()))
    width = std::min(width, kNumberColumn * static_cast<int>(numbers.size()));
  std::vector<double> weights = table.weights;
  if (!table.heads.empty()) weights.resize(table.heads.size(), 1.0);
  const double sum = std::accumulate(weights.begin(), weights.end(), 0.0);
  std::vector<int> widths;
  for (const double weight : weights) widths.push_back(static_cast<int>(std::lround(weight / sum * width)));
  return widths;
}

/// Whether a column holds numbers alone; a table without heads has none.
std::vector<bool> NumberColumns(const DataTable& table) {
  std::vector<bool> numbers(table.heads.size(), true);
  for (const auto& row : table.rows) {
    for (std::size_t i = 0; i < numbers.size(); ++i)
      numbers[i] = numbers[i] && (row[i].empty() || row[i] == kNoValue || IsNumber(row[i]));
  }
  return numbers;
}

void FillTable(pugi::xml_node node, const WordContent& content) {
  const DataTable& table = content.table;
  pugi::xml_node properties = node.append_child("w:tblPr");
  properties.append_child("w:tblStyle").append_attribute("w:val") = "RelazioneTabellaDati";
  const std::vector<bool> numbers = NumberColumns(table);
  const std::vector<int> widths = WidthsOf(table, content.table_width, numbers);
  SetWidth(properties.append_child("w:tblW"), std::accumulate(widths.begin(), widths.end(), 0));
  properties.append_child("w:tblLayout").append_attribute("w:type") = "fixed";
  pugi::xml_node margins = properties.append_child("w:tblCellMar");
  SetWidth(margins.append_child("w:left"), kLeftMargin);
  SetWidth(margins.append_child("w:right"), kRightMargin);
  // A table without heads has no first row that differs.
  pugi::xml_node shown = properties.append_child("w:tblLook");
  shown.append_attribute("w:val") = table.heads.empty() ? "0480" : "04A0";
  shown.append_attribute("w:firstRow") = table.heads.empty() ? 0 : 1;
  const RowLook look{.widths = widths, .right = numbers, .keeps_with_next = content.keeps_with_next};
  pugi::xml_node grid = node.append_child("w:tblGrid");
  for (const int width : look.widths) grid.append_child("w:gridCol").append_attribute("w:w") = width;
  if (!table.heads.empty()) AppendRow(node, table.heads, look, true);
  for (std::size_t i = 0; i < table.rows.size(); ++i) {
    std::vector<std::string> cells = table.rows[i];
    const bool picture = i < content.placeholders.size() && !content.placeholders[i].empty();
    if (picture) cells.at(content.placeholder_column) = "[" + content.placeholders[i] + "]";
    const pugi::xml_node row = AppendRow(node, cells, look, false);
    if (picture)
      SetApart(
          *std::next(row.children("w:tc").begin(), static_cast<std::ptrdiff_t>(content.placeholder_column)));
  }
}

}  // namespace

void InsertContent(pugi::xml_node before, const WordContent& content) {
  pugi::xml_node container = before.parent();
  const auto paragraph = [&] { return container.insert_child_before("w:p", before); };
  switch (content.kind) {
    case WordContent::Kind::kChapter:
      AppendParagraph(paragraph(), "RelazioneCapitolo", content.text);
      return;
    case WordContent::Kind::kHeading: {
      pugi::xml_node node = paragraph();
      AppendParagraph(node, "RelazioneGruppo", content.text);
      pugi::xml_node properties = node.child("w:pPr");
      properties.append_child("w:keepNext");
      properties.append_child("w:spacing").append_attribute("w:before") = 160;
      return;
    }
    case WordContent::Kind::kText:
      AppendParagraph(paragraph(), "RelazioneNota", content.text);
      return;
    case WordContent::Kind::kTable:
      FillTable(container.insert_child_before("w:tbl", before), content);
      return;
  }
}

}  // namespace velmar::presentation
