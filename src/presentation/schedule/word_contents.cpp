#include "presentation/schedule/word_contents.h"

#include "presentation/documents/xml_part.h"

namespace velmar::presentation {
namespace {

constexpr const char* kEntryStyle = "TOC1";
/// In place of a page number until a word processor has laid out the pages.
constexpr const char* kNotCounted = "…";

void AppendText(pugi::xml_node parent, const std::string& text) {
  pugi::xml_node node = parent.append_child("w:r").append_child("w:t");
  node.append_attribute("xml:space") = "preserve";
  node.append_child(pugi::node_pcdata).set_value(LegalText(text).c_str());
}

void AppendFieldMark(pugi::xml_node parent, const char* kind) {
  parent.append_child("w:r").append_child("w:fldChar").append_attribute("w:fldCharType") = kind;
}

void AppendInstruction(pugi::xml_node parent, const std::string& instruction) {
  pugi::xml_node node = parent.append_child("w:r").append_child("w:instrText");
  node.append_attribute("xml:space") = "preserve";
  node.append_child(pugi::node_pcdata).set_value((" " + instruction + " ").c_str());
}

}  // namespace

void AppendHeading(pugi::xml_node paragraph, const char* style, const std::string& text) {
  paragraph.append_child("w:pPr").append_child("w:pStyle").append_attribute("w:val") = style;
  AppendText(paragraph, text);
}

void MarkHeading(pugi::xml_node paragraph, const std::string& name, int number) {
  const pugi::xml_node properties = paragraph.child("w:pPr");
  pugi::xml_node start = properties ? paragraph.insert_child_after("w:bookmarkStart", properties)
                                    : paragraph.prepend_child("w:bookmarkStart");
  start.append_attribute("w:id") = number;
  start.append_attribute("w:name") = name.c_str();
  paragraph.append_child("w:bookmarkEnd").append_attribute("w:id") = number;
}

void InsertContents(pugi::xml_node before, const std::vector<ContentsEntry>& entries) {
  pugi::xml_node body = before.parent();
  for (const ContentsEntry& entry : entries) {
    pugi::xml_node paragraph = body.insert_child_before("w:p", before);
    paragraph.append_child("w:pPr").append_child("w:pStyle").append_attribute("w:val") = kEntryStyle;
    pugi::xml_node link = paragraph.append_child("w:hyperlink");
    link.append_attribute("w:anchor") = entry.bookmark.c_str();
    link.append_attribute("w:history") = 1;
    AppendText(link, entry.text);
    link.append_child("w:r").append_child("w:tab");
    AppendFieldMark(link, "begin");
    AppendInstruction(link, "PAGEREF " + entry.bookmark + " \\h");
    AppendFieldMark(link, "separate");
    AppendText(link, kNotCounted);
    AppendFieldMark(link, "end");
  }
}

}  // namespace velmar::presentation
