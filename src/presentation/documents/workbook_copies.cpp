#include <algorithm>
#include <array>
#include <cctype>
#include <sstream>

#include "foundation/message_rows.h"
#include "foundation/utf8.h"
#include "presentation/documents/relationships.h"
#include "presentation/documents/template_failure.h"
#include "presentation/documents/workbook.h"
#include "presentation/documents/xml_part.h"

namespace velmar::presentation {
namespace {

constexpr std::size_t kLongestSheetName = 31;
constexpr const char* kSheetType =
    "http://schemas.openxmlformats.org/officeDocument/2006/relationships/worksheet";
constexpr const char* kOfficeRelationships =
    "http://schemas.openxmlformats.org/officeDocument/2006/relationships";

std::string Quoted(const std::string& name) {
  std::string quoted = "'";
  for (const char letter : name) quoted += letter == '\'' ? std::string("''") : std::string(1, letter);
  return quoted + "'";
}

void ReplaceAll(std::string& text, const std::string& from, const std::string& to) {
  for (std::size_t at = text.find(from); at != std::string::npos; at = text.find(from, at + to.size())) {
    // The end of a longer name is none.
    const bool within = from.front() != '\'' && at > 0 &&
                        (std::isalnum(static_cast<unsigned char>(text[at - 1])) != 0 || text[at - 1] == '_');
    if (!within) text.replace(at, from.size(), to);
  }
}

/// A formula that names the sheet `from` names `to` instead.
std::string Renamed(std::string formula, const std::string& from, const std::string& to) {
  ReplaceAll(formula, Quoted(from) + "!", Quoted(to) + "!");
  ReplaceAll(formula, from + "!", Quoted(to) + "!");
  return formula;
}

/// Renames the sheet in every formula of a chart.
void RenameInFormulas(pugi::xml_node root, const std::string& from, const std::string& to) {
  for (pugi::xml_node node : root.children()) {
    if (LocalName(node) == "f") {
      node.text().set(Renamed(node.text().get(), from, to).c_str());
    } else {
      RenameInFormulas(node, from, to);
    }
  }
}

std::string TextOf(pugi::xml_node node) {
  std::ostringstream text;
  node.print(text, "", pugi::format_raw);
  return text.str();
}

pugi::xml_node SheetNode(pugi::xml_node sheets, const std::string& link) {
  return sheets.find_child([&](pugi::xml_node node) { return link == node.attribute("r:id").value(); });
}

bool IsMedia(const std::string& part) { return part.find("/media/") != std::string::npos; }

std::string FreePart(const Package& package, const std::string& part) {
  const std::size_t dot = std::min(part.rfind('.'), part.size());
  for (int number = 2;; ++number) {
    std::string name = part.substr(0, dot) + "_" + std::to_string(number) + part.substr(dot);
    if (!package.Has(name)) return name;
  }
}

}  // namespace

std::string Workbook::FreeSheetName(const std::string& wanted) const {
  std::string allowed;
  // A caption in two languages gives its first.
  for (const char letter : wanted.substr(0, wanted.find(" / ")))
    allowed += std::string_view("[]:*?/\\").find(letter) != std::string_view::npos ? '-' : letter;
  while (!allowed.empty() && (allowed.front() == '\'' || allowed.front() == ' ')) allowed.erase(0, 1);
  if (allowed.empty()) allowed = "1";
  const pugi::xml_document workbook = ParseXml(package_.Part(main_part_), main_part_);
  const auto taken = [&](const std::string& name) {
    return static_cast<bool>(workbook.child("workbook").child("sheets").find_child([&](pugi::xml_node node) {
      // They are the same in either case of letters.
      return SameName(node.attribute("name").value(), name);
    }));
  };
  const auto cut = [&](const std::string& ending) {
    std::string name = FirstCharacters(allowed, kLongestSheetName - ending.size());
    while (!name.empty() && (name.back() == '\'' || name.back() == ' ')) name.pop_back();
    return name + ending;
  };
  std::string name = cut({});
  for (int number = 2; taken(name); ++number) name = cut(" " + std::to_string(number));
  return name;
}

std::string Workbook::SheetName() const {
  const pugi::xml_document workbook = ParseXml(package_.Part(main_part_), main_part_);
  for (const Relationship& link : RelationshipsOf(package_, main_part_)) {
    if (link.target == sheet_part_)
      return SheetNode(workbook.child("workbook").child("sheets"), link.id).attribute("name").value();
  }
  return {};
}

/// Copies `part` and, below it, what it links to. @return the name of the copy
std::string Workbook::CopyPart(const std::string& part, const std::string& old_name,
                               const std::string& new_name) {
  const std::string copy = FreePart(package_, part);
  std::string bytes = package_.Part(part);
  if (part.ends_with(".xml")) {
    pugi::xml_document formulas = ParseXml(bytes, part);
    RenameInFormulas(formulas, old_name, new_name);
    bytes = XmlBytes(formulas);
  }
  package_.Put(copy, std::move(bytes));
  if (const std::string type = ContentTypeOf(package_, part); !type.empty())
    AddContentType(package_, copy, type);
  std::vector<WrittenLink> links = LinksOf(package_, part);
  if (links.empty()) return copy;
  for (WrittenLink& link : links) {
    // A bitmap may be shown by many.
    if (!link.external && !IsMedia(link.target)) link.target = CopyPart(link.target, old_name, new_name);
  }
  PutLinks(package_, copy, links);
  return copy;
}

void Workbook::RemovePart(const std::string& part) {
  for (const WrittenLink& link : LinksOf(package_, part)) {
    if (!link.external && !IsMedia(link.target)) RemovePart(link.target);
  }
  PutLinks(package_, part, {});
  const std::size_t slash = part.rfind('/') + 1;
  package_.Remove(part.substr(0, slash) + "_rels/" + part.substr(slash) + ".rels");
  package_.Remove(part);
  RemoveContentType(package_, part);
}

void Workbook::ReplacePattern(const Worksheet& front) {
  if (!original_) return;
  pugi::xml_document workbook = ParseXml(package_.Part(main_part_), main_part_);
  pugi::xml_node root = workbook.child("workbook");
  pugi::xml_node sheets = root.child("sheets");
  std::string front_link;
  std::string pattern_link;
  for (const Relationship& link : RelationshipsOf(package_, main_part_)) {
    if (link.target == PartOf(front)) front_link = link.id;
    if (link.target == original_->sheet) pattern_link = link.id;
  }
  // The one takes the place of the other, so that every other sheet keeps its number.
  sheets.insert_move_before(SheetNode(sheets, front_link), SheetNode(sheets, pattern_link));
  sheets.remove_child(SheetNode(sheets, pattern_link));
  pugi::xml_node names = root.child("definedNames");
  for (pugi::xml_node name = names.first_child(); name;) {
    const pugi::xml_node next = name.next_sibling();
    if (std::string_view(name.attribute("localSheetId").value()) == "0") names.remove_child(name);
    name = next;
  }
  if (names && !names.first_child()) root.remove_child(names);
  package_.Put(main_part_, XmlBytes(workbook));
  RemoveRelationship(package_, main_part_, original_->sheet);
  RemovePart(original_->sheet);
}

void Workbook::RepeatOnPages(int row) {
  pugi::xml_document workbook = ParseXml(package_.Part(main_part_), main_part_);
  pugi::xml_node root = workbook.child("workbook");
  const std::string sheet = root.child("sheets").child("sheet").attribute("name").value();
  pugi::xml_node names = root.child("definedNames");
  if (!names) names = root.insert_child_after("definedNames", root.child("sheets"));
  pugi::xml_node name = names.append_child("definedName");
  name.append_attribute("name") = "_xlnm.Print_Titles";
  name.append_attribute("localSheetId") = 0;
  const std::string rows = "$" + std::to_string(row);
  name.text().set((Quoted(sheet) + "!" + rows + ":" + rows).c_str());
  package_.Put(main_part_, XmlBytes(workbook));
}

void Workbook::AddDefinedNames(std::size_t sheet, const std::string& new_name) {
  pugi::xml_document names;
  names.load_string(("<n>" + original_->defined_names + "</n>").c_str());
  pugi::xml_document workbook = ParseXml(package_.Part(main_part_), main_part_);
  pugi::xml_node list = workbook.child("workbook").child("definedNames");
  for (const pugi::xml_node name : names.document_element().children()) {
    pugi::xml_node copy = list.append_copy(name);
    copy.attribute("localSheetId").set_value(static_cast<unsigned int>(sheet));
    copy.text().set(Renamed(name.text().get(), original_->name, new_name).c_str());
  }
  package_.Put(main_part_, XmlBytes(workbook));
}

void Workbook::BeginCopy(const std::string& wanted) {
  copy_prefix_.clear();
  if (!original_) {
    // The sheet itself becomes a pattern, which goes when the first copy stands.
    original_ = Original{.name = SheetName(), .sheet = sheet_part_};
    sheet_.SetSelected(false);
    package_.Put(sheet_part_, sheet_.Bytes());
    const pugi::xml_document workbook = ParseXml(package_.Part(main_part_), main_part_);
    for (const pugi::xml_node name : workbook.child("workbook").child("definedNames").children()) {
      if (std::string_view(name.attribute("localSheetId").value()) == "0")
        original_->defined_names += TextOf(name);
    }
  } else {
    Flush();
  }
  added_.clear();
  const std::string name = FreeSheetName(wanted);
  const std::string part = CopyPart(original_->sheet, original_->name, name);
  pugi::xml_document workbook = ParseXml(package_.Part(main_part_), main_part_);
  pugi::xml_node sheets = workbook.child("workbook").child("sheets");
  int highest = 0;
  std::size_t place = 0;
  for (const pugi::xml_node node : sheets.children("sheet")) {
    highest = std::max(highest, node.attribute("sheetId").as_int());
    ++place;
  }
  pugi::xml_node node = sheets.append_child("sheet");
  node.append_attribute("name") = name.c_str();
  node.append_attribute("sheetId") = highest + 1;
  node.append_attribute("xmlns:r") = kOfficeRelationships;
  node.append_attribute("r:id") = AddRelationship(package_, main_part_, kSheetType, part).c_str();
  package_.Put(main_part_, XmlBytes(workbook));
  AddDefinedNames(place, name);
  sheet_part_ = part;
  sheet_ = Worksheet(package_.Part(part), part);
  copy_prefix_ = name;
}

}  // namespace velmar::presentation
