#include "presentation/schedule/word_binder.h"

#include <algorithm>
#include <array>
#include <initializer_list>
#include <sstream>

#include "foundation/message_rows.h"
#include "presentation/documents/paragraph_text.h"
#include "presentation/documents/placeholders.h"
#include "presentation/documents/relationships.h"
#include "presentation/documents/template_failure.h"
#include "presentation/documents/xml_part.h"
#include "presentation/schedule/bound_notes.h"
#include "presentation/schedule/word_contents.h"

namespace velmar::presentation {
namespace {

constexpr const char* kHeadingStyle = "Heading1";
/// The outline level of what is no heading.
constexpr const char* kNoLevel = "9";
/// A paragraph that only ends a chapter takes next to no room.
constexpr int kEndPoints = 2;

std::string StylesPartOf(const Package& package, const std::string& main_part) {
  const std::vector<std::string> targets = TargetsOf(package, main_part, "styles");
  if (targets.empty()) throw TemplateFailure(kTemplateDamagedRow, main_part + ": no styles");
  return targets.front();
}

pugi::xml_node ParagraphWith(pugi::xml_node body, std::string_view placeholder) {
  for (const pugi::xml_node node : body.children("w:p")) {
    if (HoldsPlaceholder(ParagraphText(node).Text(), placeholder)) return node;
  }
  return {};
}

pugi::xml_node PropertiesOf(pugi::xml_node paragraph) {
  const pugi::xml_node properties = paragraph.child("w:pPr");
  return properties ? properties : paragraph.prepend_child("w:pPr");
}

/// Puts `child` into the properties of a paragraph, which have a fixed order.
pugi::xml_node InsertProperty(pugi::xml_node properties, const char* name,
                              std::initializer_list<std::string_view> later) {
  for (const pugi::xml_node node : properties.children()) {
    if (std::ranges::count(later, std::string_view(node.name())) > 0)
      return properties.insert_child_before(name, node);
  }
  return properties.append_child(name);
}

/// What heads a document is no heading of the whole.
void TakeOffOutline(pugi::xml_node body, const StyleNames& names) {
  for (const pugi::xml_node paragraph : ParagraphsOf(body)) {
    const std::string style = paragraph.child("w:pPr").child("w:pStyle").attribute("w:val").value();
    if (std::ranges::count(names.chapters, style) == 0) continue;
    pugi::xml_node properties = PropertiesOf(paragraph);
    pugi::xml_node level = properties.child("w:outlineLvl");
    if (!level) {
      level = InsertProperty(properties, "w:outlineLvl",
                             {"w:divId", "w:cnfStyle", "w:rPr", "w:sectPr", "w:pPrChange"});
      level.append_attribute("w:val");
    }
    level.attribute("w:val").set_value(kNoLevel);
  }
}

/// Ends the chapter in `body` with its own section, in its last paragraph.
void EndSection(pugi::xml_node body) {
  pugi::xml_node section = body.child("w:sectPr");
  if (!section) return;
  pugi::xml_node last = section.previous_sibling();
  const bool takes = std::string_view(last.name()) == "w:p" && !last.child("w:pPr").child("w:sectPr");
  if (!takes) {
    last = body.insert_child_before("w:p", section);
    pugi::xml_node properties = last.append_child("w:pPr");
    pugi::xml_node spacing = properties.append_child("w:spacing");
    spacing.append_attribute("w:before") = 0;
    spacing.append_attribute("w:after") = 0;
    properties.append_child("w:rPr").append_child("w:sz").append_attribute("w:val") = kEndPoints;
  }
  pugi::xml_node properties = PropertiesOf(last);
  const pugi::xml_node change = properties.child("w:pPrChange");
  if (change) {
    properties.insert_copy_before(section, change);
  } else {
    properties.append_copy(section);
  }
  body.remove_child(section);
}

/// The neighbours of `node` among the elements: blanks between them do not count.
pugi::xml_node NextElement(pugi::xml_node node) {
  do node = node.next_sibling();
  while (node && node.type() != pugi::node_element);
  return node;
}

pugi::xml_node PreviousElement(pugi::xml_node node) {
  do node = node.previous_sibling();
  while (node && node.type() != pugi::node_element);
  return node;
}

/// Whether `section` goes on below what stands before it.
bool IsContinuous(pugi::xml_node section) {
  return std::string_view(section.child("w:type").attribute("w:val").value()) == "continuous";
}

/// Marks of comments, of which a chapter brings none along.
void RemoveComments(pugi::xml_node root) {
  for (pugi::xml_node node = root.first_child(); node;) {
    const pugi::xml_node next = node.next_sibling();
    if (std::string_view(node.name()).starts_with("w:comment")) {
      root.remove_child(node);
    } else {
      RemoveComments(node);
    }
    node = next;
  }
}

/// Calls `visit` with every attribute below `root` that names a link.
template <typename Visit>
void ForEachLink(pugi::xml_node root, const Visit& visit) {
  for (const pugi::xml_node node : root.children()) {
    for (pugi::xml_attribute attribute : node.attributes()) {
      const std::string_view name = attribute.name();
      if (name.starts_with("r:") || name == "o:relid") visit(attribute);
    }
    ForEachLink(node, visit);
  }
}

}  // namespace

WordBinder::WordBinder(std::string_view docx)
    : package_(docx),
      main_part_(MainPart(package_, "wordprocessingml")),
      document_(ParseXml(package_.Part(main_part_), main_part_)),
      body_(document_.document_element().child("w:body")),
      place_(ParagraphWith(body_, "A_CAPITOLI")),
      parts_(package_, main_part_),
      styles_part_(StylesPartOf(package_, main_part_)),
      styles_(package_.Part(styles_part_)) {
  if (!place_) throw TemplateFailure(kTemplateDamagedRow, main_part_ + ": no [A_CAPITOLI]");
  NumberDrawings(body_);
  TakeBookmarks(body_);
}

void WordBinder::Add(const std::string& heading, std::string_view docx) {
  const Package chapter(docx);
  const std::string main_part = MainPart(chapter, "wordprocessingml");
  pugi::xml_document document = ParseXml(chapter.Part(main_part), main_part);
  pugi::xml_node body = document.document_element().child("w:body");
  if (!body) throw TemplateFailure(kTemplateDamagedRow, main_part + ": no body");
  RemoveComments(body);
  TakeStyles(chapter, body);
  TakeNumbers(chapter, main_part, body);
  TakeLinks(chapter, main_part, body);
  TakeBookmarks(body);
  NumberDrawings(body);
  TakeNamespaces(document.document_element());
  EndSection(body);
  pugi::xml_node title = body_.insert_child_before("w:p", place_);
  AppendHeading(title, kHeadingStyle, LegalText(heading));
  for (const pugi::xml_node node : body.children()) body_.insert_copy_before(node, place_);
  ++chapters_;
}

void WordBinder::TakeStyles(const Package& chapter, pugi::xml_node body) {
  const StyleNames& names =
      styles_.Take(chapter.Part(StylesPartOf(chapter, MainPart(chapter, "wordprocessingml"))));
  TakeOffOutline(body, names);
  RenameStyles(body, names);
  if (names.unnamed_paragraphs.empty()) return;
  for (pugi::xml_node paragraph : ParagraphsOf(body)) {
    pugi::xml_node properties = PropertiesOf(paragraph);
    if (properties.child("w:pStyle")) continue;
    properties.prepend_child("w:pStyle").append_attribute("w:val") = names.unnamed_paragraphs.c_str();
  }
}

void WordBinder::TakeLinks(const Package& chapter, const std::string& main_part, pugi::xml_node body) {
  const ContentTypes types(chapter);
  const std::vector<WrittenLink> links = LinksOf(chapter, main_part);
  ForEachLink(body, [&](pugi::xml_attribute& attribute) {
    const auto link = std::ranges::find(links, attribute.value(), &WrittenLink::id);
    if (link != links.end()) attribute.set_value(parts_.Take(chapter, types, *link).c_str());
  });
}

pugi::xml_node WordBinder::PartOfKind(std::string_view kind) {
  const std::vector<std::string> targets = TargetsOf(package_, main_part_, kind);
  if (targets.empty()) return {};
  pugi::xml_document& document = lists_[targets.front()];
  if (!document.document_element()) document = ParseXml(package_.Part(targets.front()), targets.front());
  return document.document_element();
}

void WordBinder::TakeNumbers(const Package& chapter, const std::string& main_part, pugi::xml_node body) {
  struct Kind {
    const char* part;
    const char* element;    ///< of a note; empty for lists
    const char* reference;  ///< in the text
    const char* attribute;
  };
  constexpr std::array kKinds = {Kind{"numbering", "", "w:numId", "w:val"},
                                 Kind{"footnotes", "w:footnote", "w:footnoteReference", "w:id"},
                                 Kind{"endnotes", "w:endnote", "w:endnoteReference", "w:id"}};
  for (const Kind& kind : kKinds) {
    const std::vector<std::string> targets = TargetsOf(chapter, main_part, kind.part);
    if (targets.empty()) continue;
    const pugi::xml_document list = ParseXml(chapter.Part(targets.front()), targets.front());
    const pugi::xml_node own = PartOfKind(kind.part);
    if (!own) {
      // The first of its kind; what it is numbered with is free.
      for (const WrittenLink& link : LinksOf(chapter, main_part)) {
        if (link.target == targets.front()) parts_.Take(chapter, ContentTypes(chapter), link);
      }
      parts_.Finish();
      continue;
    }
    const bool lists = *kind.element == '\0';
    Renumber(body, kind.reference, kind.attribute,
             lists ? TakeLists(own, list.document_element())
                   : TakeNotes(own, list.document_element(), kind.element));
  }
}

void WordBinder::TakeNamespaces(pugi::xml_node chapter_root) {
  pugi::xml_node root = document_.document_element();
  std::string ignorable;
  for (const pugi::xml_attribute attribute : chapter_root.attributes()) {
    const std::string_view name = attribute.name();
    if (name.starts_with("xmlns") && !root.attribute(attribute.name()))
      root.append_attribute(attribute.name()) = attribute.value();
    if (name == "mc:Ignorable") ignorable = attribute.value();
  }
  pugi::xml_attribute own = root.attribute("mc:Ignorable");
  if (!own && !ignorable.empty()) own = root.append_attribute("mc:Ignorable");
  std::istringstream prefixes(ignorable);
  for (std::string prefix; prefixes >> prefix;) {
    const std::string known = own.value();
    if ((" " + known + " ").find(" " + prefix + " ") == std::string::npos)
      own.set_value((known.empty() ? prefix : known + " " + prefix).c_str());
  }
}

void WordBinder::TakeBookmarks(pugi::xml_node body) {
  std::map<std::string, std::string> numbers;
  std::map<std::string, std::string> names;
  const auto visit = [&](auto&& self, pugi::xml_node root) -> void {
    for (pugi::xml_node node : root.children()) {
      const std::string_view kind = node.name();
      if (kind == "w:bookmarkStart") {
        const std::string number = std::to_string(next_bookmark_++);
        numbers[node.attribute("w:id").value()] = number;
        node.attribute("w:id").set_value(number.c_str());
        const std::string name = node.attribute("w:name").value();
        std::string free = name;
        for (int copy = 2; !bookmarks_.insert(free).second; ++copy) free = name + "_" + std::to_string(copy);
        if (free != name) names[name] = free;
        node.attribute("w:name").set_value(free.c_str());
      } else if (kind == "w:bookmarkEnd") {
        const auto found = numbers.find(node.attribute("w:id").value());
        if (found != numbers.end()) node.attribute("w:id").set_value(found->second.c_str());
      } else {
        self(self, node);
      }
    }
  };
  visit(visit, body);
  Renumber(body, "w:hyperlink", "w:anchor", names);
}

void WordBinder::NumberDrawings(pugi::xml_node root) {
  for (pugi::xml_node node : root.children()) {
    if (LocalName(node) == "docPr") node.attribute("id").set_value(next_drawing_++);
    // Marks of single paragraphs that a word processor sets must not meet another chapter's.
    node.remove_attribute("w14:paraId");
    NumberDrawings(node);
  }
}

void WordBinder::CloseLastChapter() {
  const pugi::xml_node section = body_.child("w:sectPr");
  const pugi::xml_node last = PreviousElement(place_);
  pugi::xml_node properties = last.child("w:pPr");
  const pugi::xml_node own = properties.child("w:sectPr");
  const bool nothing_follows = NextElement(place_) == section;
  if (chapters_ == 0 || !section || !own || (!nothing_follows && !IsContinuous(section))) return;
  body_.insert_copy_after(own, section);
  body_.remove_child(section);
  properties.remove_child(own);
}

std::string WordBinder::Bytes() {
  FillContents();
  CloseLastChapter();
  body_.remove_child(place_);
  package_.Put(main_part_, XmlBytes(document_));
  package_.Put(styles_part_, styles_.Bytes());
  for (const auto& [part, xml] : lists_) package_.Put(part, XmlBytes(xml));
  parts_.Finish();
  return package_.Bytes();
}

void WordBinder::FillContents() {
  std::vector<ContentsEntry> entries;
  for (pugi::xml_node paragraph : body_.children("w:p")) {
    if (std::string_view(paragraph.child("w:pPr").child("w:pStyle").attribute("w:val").value()) !=
        kHeadingStyle)
      continue;
    std::string name;
    for (std::size_t number = entries.size() + 1; name.empty() || !bookmarks_.insert(name).second; ++number)
      name = "_Toc" + std::to_string(100000 + number);
    entries.push_back({.text = ParagraphText(paragraph).Text(), .bookmark = name});
    MarkHeading(paragraph, name, next_bookmark_++);
  }
  const pugi::xml_node place = ParagraphWith(body_, "A_INDICE");
  if (!place) return;
  InsertContents(place, entries);
  body_.remove_child(place);
}

}  // namespace velmar::presentation
