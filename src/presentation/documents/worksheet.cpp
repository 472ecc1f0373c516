#include "presentation/documents/worksheet.h"

#include <algorithm>
#include <array>
#include <charconv>

#include "foundation/message_rows.h"
#include "foundation/utf8.h"
#include "presentation/documents/template_failure.h"
#include "presentation/documents/xml_part.h"

namespace velmar::presentation {
namespace {

constexpr int kMostColumns = 16384;
constexpr int kMostRows = 1048576;
constexpr double kDefaultWidth = 9.14;

/// Row and column of "B37"; 0 where it names none.
CellPlace PlaceOf(std::string_view name) {
  CellPlace place{0, 0};
  std::size_t at = 0;
  for (; at < name.size() && name[at] >= 'A' && name[at] <= 'Z' && place.column <= kMostColumns; ++at) {
    place.column = place.column * 26 + (name[at] - 'A' + 1);
  }
  std::from_chars(name.data() + at, name.data() + name.size(), place.row);
  return place;
}

struct CellRange {
  CellPlace from{};
  CellPlace to{};
};

/// The range "A1:J1"; one cell alone is a range too.
CellRange RangeOf(std::string_view text) {
  const std::size_t colon = std::min(text.find(':'), text.size());
  const CellPlace from = PlaceOf(text.substr(0, colon));
  return {from, colon < text.size() ? PlaceOf(text.substr(colon + 1)) : from};
}

void Set(pugi::xml_node node, const char* attribute, const std::string& value) {
  pugi::xml_attribute found = node.attribute(attribute);
  (found ? found : node.append_attribute(attribute)) = value.c_str();
}

/// Writes out the places that a sheet may leave to be counted.
void NamePlaces(pugi::xml_node data, const std::string& part) {
  int row_number = 0;
  for (pugi::xml_node row : data.children("row")) {
    const int given = row.attribute("r").as_int();
    if ((given != 0 && given <= row_number) || given > kMostRows) {
      throw TemplateFailure(kTemplateDamagedRow, part + ": rows out of order");
    }
    row_number = given != 0 ? given : row_number + 1;
    if (given == 0) Set(row, "r", std::to_string(row_number));
    row.remove_attribute("spans");
    int column = 0;
    for (pugi::xml_node cell : row.children("c")) {
      const int named = PlaceOf(cell.attribute("r").value()).column;
      if ((named != 0 && named <= column) || named > kMostColumns) {
        throw TemplateFailure(kTemplateDamagedRow, part + ": cells out of order");
      }
      column = named != 0 ? named : column + 1;
      if (named == 0) Set(cell, "r", CellName({row_number, column}));
    }
  }
}

}  // namespace

std::string CellName(CellPlace place) {
  std::string column;
  for (int left = place.column; left > 0; left = (left - 1) / 26) {
    column.insert(column.begin(), static_cast<char>('A' + (left - 1) % 26));
  }
  return column + std::to_string(place.row);
}

Worksheet::Worksheet(std::string_view bytes, const std::string& name) : xml_(ParseXml(bytes, name)) {
  data_ = xml_.child("worksheet").child("sheetData");
  if (!data_) throw TemplateFailure(kTemplateDamagedRow, name + ": no sheet");
  NamePlaces(data_, name);
}

std::string Worksheet::XmlBytesOf() const { return XmlBytes(xml_); }

pugi::xml_node Worksheet::Row(int row) {
  pugi::xml_node next = data_.child("row");
  while (next && next.attribute("r").as_int() < row) next = next.next_sibling("row");
  if (next && next.attribute("r").as_int() == row) return next;
  pugi::xml_node made = next ? data_.insert_child_before("row", next) : data_.append_child("row");
  Set(made, "r", std::to_string(row));
  return made;
}

pugi::xml_node Worksheet::Cell(CellPlace place) {
  pugi::xml_node row = Row(place.row);
  pugi::xml_node next = row.child("c");
  while (next && PlaceOf(next.attribute("r").value()).column < place.column) next = next.next_sibling("c");
  if (next && PlaceOf(next.attribute("r").value()).column == place.column) return next;
  pugi::xml_node made = next ? row.insert_child_before("c", next) : row.append_child("c");
  Set(made, "r", CellName(place));
  return made;
}

pugi::xml_node Worksheet::FindCell(CellPlace place) const {
  const std::string row = std::to_string(place.row);
  return data_.find_child_by_attribute("row", "r", row.c_str())
      .find_child_by_attribute("c", "r", CellName(place).c_str());
}

pugi::xml_node Worksheet::EmptiedCell(CellPlace place) {
  pugi::xml_node cell = Cell(place);
  if (cell.child("f")) lost_formula_ = true;
  cell.remove_children();
  cell.remove_attribute("t");
  return cell;
}

void Worksheet::SetText(CellPlace place, std::string_view text) {
  pugi::xml_node cell = EmptiedCell(place);
  if (text.empty()) return;
  Set(cell, "t", "inlineStr");
  pugi::xml_node node = cell.append_child("is").append_child("t");
  node.append_attribute("xml:space") = "preserve";
  node.append_child(pugi::node_pcdata).set_value(LegalText(text).c_str());
}

void Worksheet::SetNumber(CellPlace place, double value) {
  std::array<char, 32> digits{};
  const auto written = std::to_chars(digits.data(), digits.data() + digits.size(), value);
  EmptiedCell(place)
      .append_child("v")
      .append_child(pugi::node_pcdata)
      .set_value(std::string(digits.data(), written.ptr).c_str());
}

void Worksheet::Clear(CellPlace place) {
  if (FindCell(place)) EmptiedCell(place);
}

int Worksheet::StyleOf(CellPlace place) const { return FindCell(place).attribute("s").as_int(); }

void Worksheet::SetStyle(CellPlace place, int style) { Set(Cell(place), "s", std::to_string(style)); }

void Worksheet::PutFoot(const std::string& text) {
  constexpr std::size_t kMostCharacters = 200;  // of 255 for the whole foot
  pugi::xml_node foot = xml_.child("worksheet").child("headerFooter").child("oddFooter");
  const std::string before = foot.text().get();
  if (!foot || text.empty() || before.find("&L") != std::string::npos) return;
  std::string coded;
  std::string_view rest = text;
  for (std::size_t count = 0; !rest.empty() && count < kMostCharacters; ++count) {
    const char32_t character = TakeCharacter(rest);
    AppendCharacter(coded, character);
    if (character == U'&') coded += '&';
  }
  foot.text().set(("&L&8 " + LegalText(coded) + before).c_str());
}

double Worksheet::HeightOf(int row) const {
  return data_.find_child_by_attribute("row", "r", std::to_string(row).c_str()).attribute("ht").as_double();
}

void Worksheet::SetHeight(int row, double height_points) {
  std::array<char, 32> digits{};
  const auto written = std::to_chars(digits.data(), digits.data() + digits.size(), height_points);
  pugi::xml_node node = Row(row);
  Set(node, "ht", std::string(digits.data(), written.ptr));
  Set(node, "customHeight", "1");
}

double Worksheet::WidthOf(int column) const {
  for (const pugi::xml_node node : xml_.child("worksheet").child("cols").children("col")) {
    if (node.attribute("min").as_int() > column || node.attribute("max").as_int() < column) continue;
    const std::string_view width = node.attribute("width").value();
    double value = kDefaultWidth;
    std::from_chars(width.data(), width.data() + width.size(), value);
    return value;
  }
  return kDefaultWidth;
}

void Worksheet::Merge(int row, int first, int last) {
  for (const pugi::xml_node merged : xml_.child("worksheet").child("mergeCells").children("mergeCell")) {
    const CellRange range = RangeOf(merged.attribute("ref").value());
    if (range.from.row <= row && row <= range.to.row) return;
  }
  MergeRange({row, first}, {row, last});
}

void Worksheet::MergeRange(CellPlace from, CellPlace to) {
  pugi::xml_node sheet = xml_.child("worksheet");
  pugi::xml_node list = sheet.child("mergeCells");
  if (!list) {
    // The parts of a sheet have a fixed order.
    pugi::xml_node before = data_;
    for (const char* name : {"sheetCalcPr", "sheetProtection", "protectedRanges", "scenarios", "autoFilter",
                             "sortState", "dataConsolidate", "customSheetViews"}) {
      if (const pugi::xml_node node = sheet.child(name)) before = node;
    }
    list = sheet.insert_child_after("mergeCells", before);
  }
  list.append_child("mergeCell").append_attribute("ref") = (CellName(from) + ":" + CellName(to)).c_str();
  const auto merged = list.children("mergeCell");
  Set(list, "count", std::to_string(std::distance(merged.begin(), merged.end())));
}

void Worksheet::Unmerge(int first, int last, int left, int right) {
  pugi::xml_node sheet = xml_.child("worksheet");
  pugi::xml_node list = sheet.child("mergeCells");
  for (pugi::xml_node merged = list.child("mergeCell"); merged;) {
    const pugi::xml_node next = merged.next_sibling("mergeCell");
    const CellRange range = RangeOf(merged.attribute("ref").value());
    const bool meets = range.from.row <= last && range.to.row >= first && range.from.column <= right &&
                       range.to.column >= left;
    if (meets) list.remove_child(merged);
    merged = next;
  }
  if (!list) return;
  if (!list.child("mergeCell")) {
    sheet.remove_child(list);
    return;
  }
  const auto merged = list.children("mergeCell");
  Set(list, "count", std::to_string(std::distance(merged.begin(), merged.end())));
}

void Worksheet::AddLink(CellPlace place, const std::string& sheet) {
  pugi::xml_node root = xml_.child("worksheet");
  pugi::xml_node list = root.child("hyperlinks");
  if (!list) {
    // The parts of a sheet have a fixed order.
    pugi::xml_node next;
    for (const char* name :
         {"extLst",    "tableParts",    "webPublishItems", "controls",         "oleObjects",
          "picture",   "drawingHF",     "legacyDrawingHF", "legacyDrawing",    "drawing",
          "smartTags", "ignoredErrors", "cellWatches",     "customProperties", "colBreaks",
          "rowBreaks", "headerFooter",  "pageSetup",       "pageMargins",      "printOptions"}) {
      if (const pugi::xml_node node = root.child(name)) next = node;
    }
    list = next ? root.insert_child_before("hyperlinks", next) : root.append_child("hyperlinks");
  }
  std::string quoted;
  for (const char letter : sheet) quoted += letter == '\'' ? std::string("''") : std::string(1, letter);
  pugi::xml_node link = list.append_child("hyperlink");
  link.append_attribute("ref") = CellName(place).c_str();
  link.append_attribute("location") = ("'" + quoted + "'!A1").c_str();
  link.append_attribute("display") = sheet.c_str();
}

void Worksheet::SetSelected(bool selected) {
  for (pugi::xml_node view : xml_.child("worksheet").child("sheetViews").children("sheetView")) {
    view.remove_attribute("tabSelected");
    if (selected) view.prepend_attribute("tabSelected") = 1;
  }
}

void Worksheet::Freeze(int rows) {
  pugi::xml_node view = xml_.child("worksheet").child("sheetViews").child("sheetView");
  pugi::xml_node pane = view.prepend_child("pane");
  pane.append_attribute("ySplit") = rows;
  pane.append_attribute("topLeftCell") = CellName({rows + 1, 1}).c_str();
  pane.append_attribute("activePane") = "bottomLeft";
  pane.append_attribute("state") = "frozen";
}

void Worksheet::SetDrawing(const std::string& relationship) {
  pugi::xml_node sheet = xml_.child("worksheet");
  // The parts of a sheet have a fixed order.
  pugi::xml_node next;
  for (const char* name : {"extLst", "tableParts", "webPublishItems", "controls", "oleObjects", "picture",
                           "drawingHF", "legacyDrawingHF", "legacyDrawing"}) {
    if (const pugi::xml_node node = sheet.child(name)) next = node;
  }
  pugi::xml_node drawing = next ? sheet.insert_child_before("drawing", next) : sheet.append_child("drawing");
  drawing.append_attribute("xmlns:r") = "http://schemas.openxmlformats.org/officeDocument/2006/relationships";
  drawing.append_attribute("r:id") = relationship.c_str();
}

bool Worksheet::HasFormula() const {
  return static_cast<bool>(
      data_.find_node([](pugi::xml_node node) { return std::string_view(node.name()) == "f"; }));
}

}  // namespace velmar::presentation
