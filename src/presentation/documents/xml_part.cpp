#include "presentation/documents/xml_part.h"

#include <cstdint>

#include "foundation/message_rows.h"
#include "foundation/utf8.h"
#include "presentation/documents/template_failure.h"

namespace velmar::presentation {
namespace {

struct StringWriter : pugi::xml_writer {
  std::string bytes;
  void write(const void* data, std::size_t size) override {
    bytes.append(static_cast<const char*>(data), size);
  }
};

/// Rejects what no report needs, walking without recursion.
class Inspection : public pugi::xml_tree_walker {
 public:
  std::string objection;

  bool for_each(pugi::xml_node& node) override {
    if (node.type() == pugi::node_doctype) objection = "document type declaration";
    if (depth() > kDeepestElement) objection = "nested too deep";
    return objection.empty();
  }
};

bool IsLegal(char32_t character) {
  return character == '\t' || character == '\n' || (character >= 0x20 && character <= 0xD7FF) ||
         (character >= 0xE000 && character <= 0xFFFD) || (character >= 0x10000 && character <= 0x10FFFF);
}

}  // namespace

pugi::xml_document ParseXml(std::string_view bytes, const std::string& name) {
  pugi::xml_document document;
  const pugi::xml_parse_result result =
      document.load_buffer(bytes.data(), bytes.size(), pugi::parse_full | pugi::parse_ws_pcdata);
  if (!result) throw TemplateFailure(kTemplateDamagedRow, name + ": " + result.description());
  Inspection inspection;
  document.traverse(inspection);
  if (!inspection.objection.empty())
    throw TemplateFailure(kTemplateHostileRow, name + ": " + inspection.objection);
  if (!document.document_element()) throw TemplateFailure(kTemplateDamagedRow, name + ": no element");
  // It is written as UTF-8, whatever it came in.
  const pugi::xml_node declaration = document.first_child();
  if (declaration.type() == pugi::node_declaration && declaration.attribute("encoding")) {
    declaration.attribute("encoding").set_value("UTF-8");
  }
  return document;
}

std::string XmlBytes(const pugi::xml_document& document) {
  StringWriter writer;
  document.save(writer, "", pugi::format_raw | pugi::format_no_declaration, pugi::encoding_utf8);
  return std::move(writer.bytes);
}

std::string_view LocalName(pugi::xml_node node) {
  const std::string_view name = node.name();
  const std::size_t colon = name.find(':');
  return colon == std::string_view::npos ? name : name.substr(colon + 1);
}

std::string LegalText(std::string_view text) {
  std::string legal;
  legal.reserve(text.size());
  while (!text.empty()) {
    const char32_t character = TakeCharacter(text);
    if (character == '\r') {
      if (!text.starts_with('\n')) legal += '\n';
    } else if (IsLegal(character)) {
      AppendCharacter(legal, character);
    }
  }
  return legal;
}

}  // namespace velmar::presentation
