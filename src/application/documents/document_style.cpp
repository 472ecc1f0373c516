#include "application/documents/document_style.h"

#include <QImage>
#include <system_error>

#include "foundation/failure.h"
#include "foundation/message_rows.h"
#include "presentation/reports/word_report.h"
#include "storage/messages/message_table_reader.h"
#include "storage/profile/studio_profile_store.h"

namespace velmar::application {
namespace {

using presentation::Words;

constexpr const char* kItalianColumn = "Italiano";
constexpr const char* kEnglishColumn = "English";

/// @throws Failure when the catalogue lacks the language
Words WordsIn(const DocumentPlaces& places, const char* column) {
  return [table = storage::ReadMessageTable(places.catalogue, column, places.shipped_catalogue)](
             MessageRow row) { return table.Text(row); };
}

/// The profile of the data folder; an empty one, which is told, where it cannot be read.
elements::StudioProfile ReadProfile(const storage::StudioProfileStore& store,
                                    const std::function<void(const Message&)>& tell) {
  try {
    return store.Read();
  } catch (const Failure& failure) {
    if (tell) tell(failure.UserMessage());
    return {};
  }
}

void TakeWords(DocumentStyle& style, const DocumentPlaces& places,
               const std::function<void(const Message&)>& tell) {
  try {
    const bool english = style.asked == DocumentLanguage::kEnglish;
    Words words = WordsIn(places, english ? kEnglishColumn : kItalianColumn);
    if (style.asked == DocumentLanguage::kBoth) style.english = WordsIn(places, kEnglishColumn);
    style.words = std::move(words);
    if (english) style.language = DocumentLanguage::kEnglish;
  } catch (const Failure& failure) {
    style.asked.reset();
    Message told{{kLanguageMissingRow}};
    told.insert(told.end(), failure.UserMessage().begin(), failure.UserMessage().end());
    if (tell) tell(told);
  }
}

bool IsFile(const std::filesystem::path& file) {
  std::error_code error;
  return std::filesystem::is_regular_file(file, error);
}

presentation::PagePicture OnPage(const std::optional<presentation::Picture>& picture) {
  if (!picture) return {};
  constexpr double kEmuPerMillimetre = 36000.0;
  return {.image = QImage::fromData(QByteArray::fromStdString(picture->png)),
          .millimetres = QSizeF(static_cast<double>(picture->width_emu) / kEmuPerMillimetre,
                                static_cast<double>(picture->height_emu) / kEmuPerMillimetre)};
}

}  // namespace

DocumentStyle StyleOf(const DocumentPlaces& places, std::optional<DocumentLanguage> asked, const Words& words,
                      const std::function<void(const Message&)>& tell) {
  DocumentStyle style{.words = words, .asked = asked};
  if (!places.data_folder.empty()) {
    const storage::StudioProfileStore store(places.data_folder);
    const elements::StudioProfile profile = ReadProfile(store, tell);
    if (!style.asked) style.asked = profile.language;
    style.studio = presentation::StudioPaperOf(
        profile, [&store](const std::string& name) { return store.Picture(name); }, tell);
  }
  if (style.asked) TakeWords(style, places, tell);
  return style;
}

elements::Setup CaptionedIn(elements::Setup setup, const Words& words) {
  for (std::size_t row = 0; row < elements::kCaptionedInformationRows; ++row)
    setup.information.at(row).caption = words(elements::kInformationCaptions.at(row));
  return setup;
}

std::filesystem::path TemplateFile(const DocumentPlaces& places, std::string_view name,
                                   const DocumentStyle& style) {
  const std::string in_language = presentation::WithLanguage(name, style.asked);
  if (in_language == name) return places.templates / name;
  for (const std::filesystem::path* folder : {&places.templates, &places.shipped_templates}) {
    if (!folder->empty() && IsFile(*folder / in_language)) return *folder / in_language;
  }
  return places.templates / name;
}

presentation::PageStudio PageStudioOf(const DocumentStyle& style) {
  return {.words = style.studio.words,
          .logo = OnPage(style.studio.logo),
          .signature = OnPage(style.studio.signature)};
}

}  // namespace velmar::application
