#include "presentation/documents/workbook.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <utility>

#include "foundation/message_rows.h"
#include "presentation/documents/outside_links.h"
#include "presentation/documents/picture_parts.h"
#include "presentation/documents/relationships.h"
#include "presentation/documents/template_failure.h"
#include "presentation/documents/word_picture.h"
#include "presentation/documents/xml_part.h"

namespace velmar::presentation {
namespace {

constexpr const char* kSpreadsheet = "http://schemas.openxmlformats.org/spreadsheetml/2006/main";
constexpr const char* kOfficeRelationships =
    "http://schemas.openxmlformats.org/officeDocument/2006/relationships";
constexpr const char* kSheetType =
    "http://schemas.openxmlformats.org/officeDocument/2006/relationships/worksheet";
constexpr const char* kSheetContent =
    "application/vnd.openxmlformats-officedocument.spreadsheetml.worksheet+xml";
constexpr const char* kDrawingType =
    "http://schemas.openxmlformats.org/officeDocument/2006/relationships/drawing";
constexpr const char* kDrawingContent = "application/vnd.openxmlformats-officedocument.drawing+xml";
constexpr const char* kEmptyDrawing =
    "<?xml version=\"1.0\" encoding=\"UTF-8\" standalone=\"yes\"?>"
    "<xdr:wsDr xmlns:xdr=\"http://schemas.openxmlformats.org/drawingml/2006/spreadsheetDrawing\" "
    "xmlns:a=\"http://schemas.openxmlformats.org/drawingml/2006/main\"/>";
/// A picture stands off the edge of its cell, in English Metric Units.
constexpr int kInset = 36000;

std::string FirstSheet(const Package& package, const std::string& main_part) {
  const pugi::xml_document workbook = ParseXml(package.Part(main_part), main_part);
  const pugi::xml_node sheet = workbook.child("workbook").child("sheets").child("sheet");
  for (const pugi::xml_attribute attribute : sheet.attributes()) {
    if (!std::string_view(attribute.name()).ends_with(":id")) continue;
    for (const Relationship& relationship : RelationshipsOf(package, main_part)) {
      if (relationship.id == attribute.value()) return relationship.target;
    }
  }
  throw TemplateFailure(kTemplateDamagedRow, main_part + ": no sheet");
}

std::string StylesPart(const Package& package, const std::string& main_part) {
  const std::vector<std::string> targets = TargetsOf(package, main_part, "styles");
  if (targets.empty()) throw TemplateFailure(kTemplateDamagedRow, main_part + ": no styles");
  return targets.front();
}

/// The folder of a part with its closing slash.
std::string FolderOf(const std::string& part) { return part.substr(0, part.rfind('/') + 1); }

std::string EmptySheet(bool landscape, const std::vector<double>& widths) {
  pugi::xml_document document;
  pugi::xml_node sheet = document.append_child("worksheet");
  sheet.append_attribute("xmlns") = kSpreadsheet;
  sheet.append_attribute("xmlns:r") = kOfficeRelationships;
  sheet.append_child("sheetPr").append_child("pageSetUpPr").append_attribute("fitToPage") = 1;
  pugi::xml_node view = sheet.append_child("sheetViews").append_child("sheetView");
  view.append_attribute("showGridLines") = 0;
  view.append_attribute("workbookViewId") = 0;
  sheet.append_child("sheetFormatPr").append_attribute("defaultRowHeight") = 15;
  pugi::xml_node columns = widths.empty() ? pugi::xml_node() : sheet.append_child("cols");
  for (std::size_t i = 0; i < widths.size(); ++i) {
    pugi::xml_node column = columns.append_child("col");
    column.append_attribute("min") = i + 1;
    column.append_attribute("max") = i + 1;
    column.append_attribute("width") = widths[i];
    column.append_attribute("customWidth") = 1;
  }
  sheet.append_child("sheetData");
  pugi::xml_node margins = sheet.append_child("pageMargins");
  for (const char* side : {"left", "right", "top", "bottom"}) margins.append_attribute(side) = 0.6;
  for (const char* side : {"header", "footer"}) margins.append_attribute(side) = 0.3;
  pugi::xml_node setup = sheet.append_child("pageSetup");
  setup.append_attribute("paperSize") = 9;
  setup.append_attribute("orientation") = landscape ? "landscape" : "portrait";
  setup.append_attribute("fitToWidth") = 1;
  setup.append_attribute("fitToHeight") = 0;
  sheet.append_child("headerFooter")
      .append_child("oddFooter")
      .append_child(pugi::node_pcdata)
      .set_value("&L&A&R&P / &N");
  return XmlBytes(document);
}

void SetText(pugi::xml_node node, long long value) {
  node.append_child(pugi::node_pcdata).set_value(std::to_string(value).c_str());
}

/// A picture that keeps its size and moves with the cell at its corner.
void AppendAnchor(pugi::xml_node drawing, CellPlace corner, const Picture& picture,
                  const PictureLinks& links) {
  int number = 1;
  for (const pugi::xml_node anchor : drawing.children()) {
    for (const pugi::xml_node object : anchor.children()) {
      for (const pugi::xml_node properties : object.first_child().children())
        number = std::max(number, properties.attribute("id").as_int());
    }
  }
  ++number;
  pugi::xml_node anchor = drawing.append_child("xdr:oneCellAnchor");
  pugi::xml_node from = anchor.append_child("xdr:from");
  SetText(from.append_child("xdr:col"), corner.column - 1);
  SetText(from.append_child("xdr:colOff"), kInset);
  SetText(from.append_child("xdr:row"), corner.row - 1);
  SetText(from.append_child("xdr:rowOff"), kInset);
  const auto set_size = [&](pugi::xml_node size) {
    size.append_attribute("cx") = static_cast<long long>(picture.width_emu);
    size.append_attribute("cy") = static_cast<long long>(picture.height_emu);
  };
  set_size(anchor.append_child("xdr:ext"));
  pugi::xml_node node = anchor.append_child("xdr:pic");
  pugi::xml_node names = node.append_child("xdr:nvPicPr");
  pugi::xml_node name = names.append_child("xdr:cNvPr");
  name.append_attribute("id") = number;
  name.append_attribute("name") = ("Immagine " + std::to_string(number)).c_str();
  name.append_attribute("descr") = LegalText(picture.alternative_text).c_str();
  names.append_child("xdr:cNvPicPr");
  pugi::xml_node fill = node.append_child("xdr:blipFill");
  pugi::xml_node blip = fill.append_child("a:blip");
  blip.append_attribute("xmlns:r") = kOfficeRelationships;
  blip.append_attribute("r:embed") = links.png.c_str();
  AddVectors(blip, links.svg);
  fill.append_child("a:stretch").append_child("a:fillRect");
  pugi::xml_node shape = node.append_child("xdr:spPr");
  pugi::xml_node transform = shape.append_child("a:xfrm");
  pugi::xml_node offset = transform.append_child("a:off");
  offset.append_attribute("x") = 0;
  offset.append_attribute("y") = 0;
  set_size(transform.append_child("a:ext"));
  pugi::xml_node geometry = shape.append_child("a:prstGeom");
  geometry.append_attribute("prst") = "rect";
  geometry.append_child("a:avLst");
  anchor.append_child("xdr:clientData");
}

}  // namespace

Workbook::Workbook(std::string_view xlsx)
    : package_(xlsx),
      main_part_(MainPart(package_, "spreadsheetml")),
      sheet_part_(FirstSheet(package_, main_part_)),
      styles_part_(StylesPart(package_, main_part_)),
      sheet_(package_.Part(sheet_part_), sheet_part_),
      styles_(package_.Part(styles_part_), styles_part_) {
  RefuseDoctypes(package_);
  for (const OutsideLink& link : OutsideLinksOf(package_))
    throw TemplateFailure(kTemplateLinksRow, link.part + ": " + link.target);
}

void Workbook::ChangeStyle(Worksheet& sheet, CellPlace place, const StyleChange& change) {
  sheet.SetStyle(place, styles_.Derived(sheet.StyleOf(place), change));
}

Worksheet& Workbook::AddSheet(const std::string& wanted, bool landscape, const std::vector<double>& widths,
                              bool beside) {
  int number = 1;
  const auto part = [&] {
    return FolderOf(main_part_) + "worksheets/velmar" + std::to_string(number) + ".xml";
  };
  while (package_.Has(part())) ++number;
  const std::string bytes = EmptySheet(landscape, widths);
  package_.Put(part(), bytes);
  AddContentType(package_, part(), kSheetContent);
  pugi::xml_document workbook = ParseXml(package_.Part(main_part_), main_part_);
  pugi::xml_node sheets = workbook.child("workbook").child("sheets");
  const std::string free =
      FreeSheetName(copy_prefix_.empty() || !beside ? wanted : copy_prefix_ + " " + wanted);
  int highest = 0;
  for (const pugi::xml_node node : sheets.children("sheet"))
    highest = std::max(highest, node.attribute("sheetId").as_int());
  pugi::xml_node node = sheets.append_child("sheet");
  node.append_attribute("name") = free.c_str();
  node.append_attribute("sheetId") = highest + 1;
  node.append_attribute("xmlns:r") = kOfficeRelationships;
  node.append_attribute("r:id") = AddRelationship(package_, main_part_, kSheetType, part()).c_str();
  package_.Put(main_part_, XmlBytes(workbook));
  return added_.emplace_back(AddedSheet{part(), Worksheet(bytes, part())}).sheet;
}

const std::string& Workbook::PartOf(const Worksheet& sheet) const {
  const auto found =
      std::ranges::find_if(added_, [&](const AddedSheet& one) { return &one.sheet == &sheet; });
  return found == added_.end() ? sheet_part_ : found->part;
}

std::string Workbook::DrawingOf(Worksheet& sheet) {
  const std::vector<std::string> drawings = TargetsOf(package_, PartOf(sheet), "drawing");
  if (!drawings.empty()) return drawings.front();
  int number = 1;
  const auto part = [&] {
    return FolderOf(main_part_) + "drawings/velmar" + std::to_string(number) + ".xml";
  };
  while (package_.Has(part())) ++number;
  package_.Put(part(), kEmptyDrawing);
  AddContentType(package_, part(), kDrawingContent);
  sheet.SetDrawing(AddRelationship(package_, PartOf(sheet), kDrawingType, part()));
  return part();
}

void Workbook::PrintDownTo(int row) {
  pugi::xml_document workbook = ParseXml(package_.Part(main_part_), main_part_);
  const std::string own = SheetName();
  int index = 0;
  for (const pugi::xml_node node : workbook.child("workbook").child("sheets").children("sheet")) {
    if (own == node.attribute("name").value()) break;
    ++index;
  }
  for (const pugi::xml_node name : workbook.child("workbook").child("definedNames").children("definedName")) {
    if (std::string_view(name.attribute("name").value()) != "_xlnm.Print_Area" ||
        name.attribute("localSheetId").as_int() != index)
      continue;
    std::string area = name.text().get();
    const std::size_t last = area.rfind('$');
    if (last == std::string::npos || std::atoi(area.c_str() + last + 1) >= row) return;
    name.text().set((area.substr(0, last + 1) + std::to_string(row)).c_str());
    package_.Put(main_part_, XmlBytes(workbook));
    return;
  }
}

void Workbook::RemoveCharts() {
  for (const std::string& part : TargetsOf(package_, sheet_part_, "drawing")) {
    pugi::xml_document drawing = ParseXml(package_.Part(part), part);
    pugi::xml_node root = drawing.document_element();
    for (pugi::xml_node anchor = root.first_child(); anchor;) {
      const pugi::xml_node next = anchor.next_sibling();
      if (anchor.child("xdr:graphicFrame")) root.remove_child(anchor);
      anchor = next;
    }
    package_.Put(part, XmlBytes(drawing));
    for (const std::string& chart : TargetsOf(package_, part, "chart")) {
      package_.Remove(chart);
      RemoveRelationship(package_, part, chart);
      RemoveContentType(package_, chart);
    }
  }
}

void Workbook::RemoveCurve(const std::string& column) {
  for (const std::string& part : TargetsOf(package_, sheet_part_, "drawing")) {
    for (const std::string& name : TargetsOf(package_, part, "chart")) {
      pugi::xml_document chart = ParseXml(package_.Part(name), name);
      const auto reads_column = [&](pugi::xml_node node) {
        const std::string_view formula = node.child("c:val").child("c:numRef").child("c:f").text().get();
        return std::string_view(node.name()) == "c:ser" &&
               formula.find("!$" + column + "$") != std::string_view::npos;
      };
      bool found = false;
      while (pugi::xml_node curve = chart.find_node(reads_column)) {
        curve.parent().remove_child(curve);
        found = true;
      }
      if (found) package_.Put(name, XmlBytes(chart));
    }
  }
}

void Workbook::AddPicture(Worksheet& sheet, CellPlace corner, const Picture& picture) {
  const std::string part = DrawingOf(sheet);
  const PictureParts media = AddPictureParts(package_, FolderOf(main_part_) + "media", picture);
  const std::string png = AddRelationship(package_, part, kImageRelationship, media.png);
  const std::string svg =
      media.svg.empty() ? std::string() : AddRelationship(package_, part, kImageRelationship, media.svg);
  pugi::xml_document drawing = ParseXml(package_.Part(part), part);
  AppendAnchor(drawing.document_element(), corner, picture, {.png = png, .svg = svg});
  package_.Put(part, XmlBytes(drawing));
}

void Workbook::ForgetOldValues() {
  for (const std::string& chain : TargetsOf(package_, main_part_, "calcChain")) {
    if (!lost_formula_) continue;
    package_.Remove(chain);
    RemoveRelationship(package_, main_part_, chain);
    RemoveContentType(package_, chain);
  }
  pugi::xml_document workbook = ParseXml(package_.Part(main_part_), main_part_);
  pugi::xml_node root = workbook.child("workbook");
  pugi::xml_node calculation = root.child("calcPr");
  if (!calculation) {
    // It has a fixed place.
    pugi::xml_node before;
    for (const char* name : {"fileVersion", "fileSharing", "workbookPr", "workbookProtection", "bookViews",
                             "sheets", "functionGroups", "externalReferences", "definedNames"}) {
      if (const pugi::xml_node node = root.child(name)) before = node;
    }
    calculation = root.insert_child_after("calcPr", before);
  }
  pugi::xml_attribute full = calculation.attribute("fullCalcOnLoad");
  (full ? full : calculation.append_attribute("fullCalcOnLoad")) = 1;
  package_.Put(main_part_, XmlBytes(workbook));
}

void Workbook::Flush() {
  lost_formula_ |= sheet_.LostFormula();
  if (sheet_.LostFormula() || sheet_.HasFormula()) ForgetOldValues();
  package_.Put(sheet_part_, sheet_.Bytes());
  for (const AddedSheet& added : added_) package_.Put(added.part, added.sheet.Bytes());
}

std::string Workbook::Bytes() {
  Flush();
  if (styles_.Changed()) package_.Put(styles_part_, styles_.Bytes());
  return package_.Bytes();
}

}  // namespace velmar::presentation
