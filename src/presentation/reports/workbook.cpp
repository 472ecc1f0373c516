#include "presentation/reports/workbook.h"

#include <array>

#include "foundation/message_rows.h"
#include "presentation/reports/relationships.h"
#include "presentation/reports/template_failure.h"
#include "presentation/reports/xml_part.h"

namespace velmar::presentation {
namespace {

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

}  // namespace

Workbook::Workbook(std::string_view xlsx)
    : package_(xlsx),
      main_part_(MainPart(package_, "spreadsheetml")),
      sheet_part_(FirstSheet(package_, main_part_)),
      styles_part_(StylesPart(package_, main_part_)),
      sheet_(package_.Part(sheet_part_), sheet_part_),
      styles_(package_.Part(styles_part_), styles_part_) {}

void Workbook::ChangeStyle(CellPlace place, const StyleChange& change) {
  sheet_.SetStyle(place, styles_.Derived(sheet_.StyleOf(place), change));
}

void Workbook::ForgetOldValues() {
  for (const std::string& chain : TargetsOf(package_, main_part_, "calcChain")) {
    if (!sheet_.LostFormula()) continue;
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

std::string Workbook::Bytes() {
  if (sheet_.LostFormula() || sheet_.HasFormula()) ForgetOldValues();
  package_.Put(sheet_part_, sheet_.Bytes());
  if (styles_.Changed()) package_.Put(styles_part_, styles_.Bytes());
  return package_.Bytes();
}

}  // namespace velmar::presentation
