#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "foundation/message.h"

namespace velmar::elements {

/// The language of a document's fixed texts, dates and numbers.
enum class DocumentLanguage {
  kItalian,
  kEnglish,
  kBoth,  ///< Italian with English beside it; dates and numbers are Italian
};

/// "it", "en", "it+en".
std::string_view CodeOf(DocumentLanguage language);
/// Nothing for a code that is none.
std::optional<DocumentLanguage> LanguageOfCode(std::string_view code);

/// What a studio puts on every document. Texts are UTF-8; an empty one does not show.
struct StudioProfile {
  std::string name{};
  std::string signer{};           ///< who signs where the project names nobody
  std::string register_number{};  ///< of who signs
  std::string address{};          ///< may hold line breaks
  std::string footer{};
  std::string logo{};       ///< name of a picture file that the profile keeps; empty for none
  std::string signature{};  ///< the same
  std::optional<DocumentLanguage> language{};  ///< none: that of the program

  bool operator==(const StudioProfile&) const = default;
};

/// A text of the profile under the name that files and commands call it by.
struct StudioField {
  const char* key = "";
  std::string StudioProfile::*text = nullptr;
  MessageRow caption{};
  std::size_t most_characters = 0;
  std::size_t most_lines = 1;
};

/// The texts of the profile: those that are typed, then the names of the two pictures.
std::span<const StudioField> StudioFields();
/// The typed ones alone.
std::span<const StudioField> TypedStudioFields();

/// The name of the language among the keys.
inline constexpr const char* kStudioLanguageKey = "language";

/// Why `text` cannot stand in `field`; nothing when it can. Blanks at the ends do not count.
std::optional<Message> Objection(const StudioField& field, std::string_view text);

}  // namespace velmar::elements
