#pragma once

#include <string>
#include <string_view>

#include <pugixml.hpp>

namespace velmar::presentation {

/// The deepest nesting of elements that is read.
inline constexpr int kDeepestElement = 256;

/// Reads a part as XML, keeping blanks, comments and declaration.
/// @param name of the part, for the failure's detail
/// @throws TemplateFailure when it is not well-formed, nested too deep, or holds a document type (entities)
pugi::xml_document ParseXml(std::string_view bytes, const std::string& name);

/// `document` as UTF-8, without added white space.
std::string XmlBytes(const pugi::xml_document& document);

/// What stands behind the prefix of an element's name: "p" for "w:p".
std::string_view LocalName(pugi::xml_node node);

/// `text` with only what XML 1.0 allows: broken UTF-8 and control characters other than tab and line feed are
/// left out, CR LF and CR become a line feed.
std::string LegalText(std::string_view text);

}  // namespace velmar::presentation
