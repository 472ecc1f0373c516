#include "elements/studio_profile.h"

#include <algorithm>
#include <array>
#include <utility>

#include "foundation/message_rows.h"

namespace velmar::elements {
namespace {

constexpr std::array<std::pair<DocumentLanguage, std::string_view>, 3> kCodes = {
    {{DocumentLanguage::kItalian, "it"},
     {DocumentLanguage::kEnglish, "en"},
     {DocumentLanguage::kBoth, "it+en"}}};

constexpr std::size_t kTyped = 5;
// As much as the head and the foot of a page have room for.
constexpr std::array kFields = {
    StudioField{"name", &StudioProfile::name, kStudioNameRow, 120, 1},
    StudioField{"signer", &StudioProfile::signer, kStudioSignerRow, 120, 1},
    StudioField{"number", &StudioProfile::register_number, kStudioNumberRow, 120, 1},
    StudioField{"address", &StudioProfile::address, kStudioAddressRow, 300, 3},
    StudioField{"footer", &StudioProfile::footer, kStudioFooterRow, 200, 1},
    StudioField{"logo", &StudioProfile::logo, kStudioLogoRow, 120, 1},
    StudioField{"signature", &StudioProfile::signature, kStudioSignatureRow, 120, 1},
};

std::size_t CharactersOf(std::string_view text) {
  return static_cast<std::size_t>(
      std::ranges::count_if(text, [](char c) { return (static_cast<unsigned char>(c) & 0xC0U) != 0x80U; }));
}

}  // namespace

std::string_view CodeOf(DocumentLanguage language) {
  return std::ranges::find(kCodes, language, &decltype(kCodes)::value_type::first)->second;
}

std::optional<DocumentLanguage> LanguageOfCode(std::string_view code) {
  const auto* found = std::ranges::find(kCodes, code, &decltype(kCodes)::value_type::second);
  return found == kCodes.end() ? std::nullopt : std::optional(found->first);
}

std::span<const StudioField> StudioFields() { return kFields; }

std::span<const StudioField> TypedStudioFields() { return std::span(kFields).first(kTyped); }

std::optional<Message> Objection(const StudioField& field, std::string_view text) {
  const auto lines = static_cast<std::size_t>(std::ranges::count(text, '\n')) + 1;
  if (CharactersOf(text) <= field.most_characters && lines <= field.most_lines) return std::nullopt;
  return Message{{kStudioTooLongRow, " ", field.caption}};
}

}  // namespace velmar::elements
