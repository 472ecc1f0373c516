#include "presentation/reports/xml_part.h"

#include <cstdint>

#include "foundation/message_rows.h"
#include "presentation/reports/template_failure.h"

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

std::size_t SequenceLength(unsigned char lead) {
  if (lead < 0x80) return 1;
  if (lead >= 0xC2 && lead < 0xE0) return 2;
  if (lead >= 0xE0 && lead < 0xF0) return 3;
  if (lead >= 0xF0 && lead < 0xF5) return 4;
  return 0;
}

/// The character that begins at `text[at]` and takes `length` bytes; 0 when they are no UTF-8.
std::uint32_t CharacterAt(std::string_view text, std::size_t at, std::size_t length) {
  const auto lead = static_cast<unsigned char>(text[at]);
  if (length == 1) return lead;
  if (length == 0 || at + length > text.size()) return 0;
  std::uint32_t character = lead & (0xFFU >> (length + 1));
  for (std::size_t i = 1; i < length; ++i) {
    const auto byte = static_cast<unsigned char>(text[at + i]);
    if ((byte & 0xC0U) != 0x80U) return 0;
    character = (character << 6U) | (byte & 0x3FU);
  }
  constexpr std::uint32_t kShortest[] = {0, 0, 0x80, 0x800, 0x10000};
  return character < kShortest[length] ? 0 : character;
}

bool IsLegal(std::uint32_t character) {
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
  for (std::size_t at = 0; at < text.size();) {
    const auto lead = static_cast<unsigned char>(text[at]);
    if (lead == '\r') {
      if (at + 1 >= text.size() || text[at + 1] != '\n') legal += '\n';
      ++at;
      continue;
    }
    const std::size_t length = SequenceLength(lead);
    const std::uint32_t character = CharacterAt(text, at, length);
    if (character != 0 && IsLegal(character)) {
      legal.append(text, at, length);
      at += length;
    } else {
      ++at;
    }
  }
  return legal;
}

}  // namespace velmar::presentation
