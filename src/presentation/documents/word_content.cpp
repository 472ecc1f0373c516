#include "presentation/documents/word_content.h"

#include <algorithm>
#include <cmath>
#include <numeric>
#include <string_view>
#include <vector>

namespace velmar::presentation {
namespace {

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

void AppendRow(pugi::xml_node table, const std::vector<std::string>& cells, const std::vector<int>& widths,
               bool head, const std::vector<bool>& right) {
  pugi::xml_node row = table.append_child("w:tr");
  pugi::xml_node properties = row.append_child("w:trPr");
  properties.append_child("w:cantSplit");
  if (head) properties.append_child("w:tblHeader");
  for (std::size_t i = 0; i < cells.size(); ++i) {
    pugi::xml_node cell = row.append_child("w:tc");
    SetWidth(cell.append_child("w:tcPr").append_child("w:tcW"), widths[i]);
    pugi::xml_node paragraph = cell.append_child("w:p");
    AppendParagraph(paragraph, head ? "RelazioneTestata" : "RelazioneBande", cells[i]);
    if (i < right.size() && right[i] && (head || IsNumber(cells[i])))
      paragraph.child("w:pPr").append_child("w:jc").append_attribute("w:val") = "right";
  }
}

std::vector<int> WidthsOf(const DataTable& table, int width) {
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
      numbers[i] = numbers[i] && (row[i].empty() || row[i] == "–" || IsNumber(row[i]));
  }
  return numbers;
}

void FillTable(pugi::xml_node node, const WordContent& content) {
  const DataTable& table = content.table;
  pugi::xml_node properties = node.append_child("w:tblPr");
  properties.append_child("w:tblStyle").append_attribute("w:val") = "RelazioneTabellaDati";
  SetWidth(properties.append_child("w:tblW"), content.table_width);
  properties.append_child("w:tblLayout").append_attribute("w:type") = "fixed";
  pugi::xml_node look = properties.append_child("w:tblLook");
  look.append_attribute("w:val") = "04A0";
  look.append_attribute("w:firstRow") = 1;
  const std::vector<int> widths = WidthsOf(table, content.table_width);
  pugi::xml_node grid = node.append_child("w:tblGrid");
  for (const int width : widths) grid.append_child("w:gridCol").append_attribute("w:w") = width;
  const std::vector<bool> right = NumberColumns(table);
  if (!table.heads.empty()) AppendRow(node, table.heads, widths, true, right);
  for (std::size_t i = 0; i < table.rows.size(); ++i) {
    std::vector<std::string> cells = table.rows[i];
    if (i < content.placeholders.size() && !content.placeholders[i].empty())
      cells.at(content.placeholder_column) = "[" + content.placeholders[i] + "]";
    AppendRow(node, cells, widths, false, right);
  }
}

}  // namespace

void InsertContent(pugi::xml_node before, const WordContent& content) {
  pugi::xml_node container = before.parent();
  const auto paragraph = [&] { return container.insert_child_before("w:p", before); };
  switch (content.kind) {
    case WordContent::Kind::kChapter: {
      pugi::xml_node node = paragraph();
      AppendParagraph(node, "RelazioneCapitolo", content.text);
      if (content.on_new_page) node.child("w:pPr").append_child("w:pageBreakBefore");
      return;
    }
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
