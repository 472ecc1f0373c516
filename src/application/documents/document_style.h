#pragma once

#include <filesystem>
#include <functional>
#include <optional>
#include <string_view>
#include <utility>

#include "elements/setup.h"
#include "elements/studio_profile.h"
#include "foundation/message.h"
#include "presentation/drawing/printed_page.h"
#include "presentation/export/studio_paper.h"
#include "presentation/texts/paper_text.h"

namespace velmar::application {

using elements::DocumentLanguage;

/// Where what documents have in common is found. A path that is empty names nothing.
struct DocumentPlaces {
  std::filesystem::path templates{};          ///< folder of the user's templates
  std::filesystem::path shipped_templates{};  ///< folder of those that came with the program
  std::filesystem::path data_folder{};        ///< whose studio profile stands on documents
  std::filesystem::path catalogue{};          ///< message database
  std::filesystem::path shipped_catalogue{};
};

/// In which words and on whose paper a document is written.
struct DocumentStyle {
  presentation::Words words{};
  presentation::Words english{};  ///< beside `words` in a document of both languages; else none
  DocumentLanguage language = DocumentLanguage::kItalian;  ///< of dates and numbers
  std::optional<DocumentLanguage> asked{};  ///< of the template; none: the one template there was
  presentation::StudioPaper studio{};

  /// The words of captions: of both languages where both stand.
  presentation::Words Captions() const { return english ? presentation::InBoth(words, english) : words; }
};

/// The style of the documents of `places`.
/// @param asked takes the place of the language that the profile names; where neither does, documents are in
/// the words of the program and in the template as it is
/// @param words of the program
/// @param tell hears why a profile, a picture of it or the texts of a language cannot be used; the document
/// is written without
DocumentStyle StyleOf(const DocumentPlaces& places, std::optional<DocumentLanguage> asked,
                      const presentation::Words& words, const std::function<void(const Message&)>& tell);

/// `setup` for a document in `words`: its captions of project information, which are those of the program
/// that wrote the project, in these words.
elements::Setup CaptionedIn(elements::Setup setup, const presentation::Words& words);

/// What `build`, called with `setup`, words and the language of numbers, makes in the languages of `style`.
/// In English the set-up has English captions.
template <typename Build>
auto InLanguages(const DocumentStyle& style, const elements::Setup& setup, const Build& build) {
  if (style.asked == DocumentLanguage::kEnglish)
    return build(CaptionedIn(setup, style.words), style.words, style.language);
  auto document = build(setup, style.words, style.language);
  if (!style.english) return document;
  return InBoth(std::move(document), build(CaptionedIn(setup, style.english), style.english, style.language));
}

/// The template called `name` in the language of `style`: the user's own, else the shipped one; where there
/// is none in that language, the user's in Italian. It need not be there.
std::filesystem::path TemplateFile(const DocumentPlaces& places, std::string_view name,
                                   const DocumentStyle& style);

/// The studio of `style` for printed pages.
presentation::PageStudio PageStudioOf(const DocumentStyle& style);

}  // namespace velmar::application
