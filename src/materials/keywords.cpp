#include "materials/keywords.h"

#include <algorithm>

namespace velmar::materials {
namespace {

using elements::MaterialFamily;

// Literals of the stored data, the same in every language.
constexpr std::string_view kGlazing = "vetrate";
constexpr std::string_view kDoors = "porte";
constexpr std::string_view kNotSpecifiedFibrous = "non specificato";

bool IsOffTheLists(std::string_view keyword, std::string_view filter) {
  return keyword == kOffTheListsKeyword && filter != kOffTheListsKeyword;
}

bool IsNotSpecified(std::string_view keyword, const KeywordTexts& texts) {
  return keyword.empty() || keyword == texts.not_specified;
}

}  // namespace

std::vector<std::string> KeywordFilter(MaterialFamily family,
                                       const std::vector<storage::ListedMaterial>& materials,
                                       const KeywordTexts& texts) {
  const std::string_view not_specified =
      family == MaterialFamily::kFibrous ? kNotSpecifiedFibrous : std::string_view(texts.not_specified);
  std::vector<std::string> filter = {texts.all};
  for (const storage::ListedMaterial& material : materials) {
    if (material.keyword.empty() || material.keyword == not_specified) continue;
    if (material.keyword == kOffTheListsKeyword) continue;
    if (std::ranges::find(filter, material.keyword) == filter.end()) filter.push_back(material.keyword);
  }
  return filter;
}

std::vector<std::string> NamesUnderFilter(MaterialFamily family,
                                          const std::vector<storage::ListedMaterial>& materials,
                                          std::string_view filter, const KeywordTexts& texts) {
  const bool all = filter == texts.all;
  std::vector<std::string> names;
  for (const storage::ListedMaterial& material : materials) {
    if (IsOffTheLists(material.keyword, filter)) continue;
    if (all || material.keyword == filter) names.push_back(material.name);
  }
  const bool closed = family == MaterialFamily::kStructural && filter == kGlazing;
  if (all || closed) return names;
  for (const storage::ListedMaterial& material : materials) {
    // Under the filter of that very keyword they stand in the list already.
    if (IsNotSpecified(material.keyword, texts) && material.keyword != filter) names.push_back(material.name);
  }
  return names;
}

bool JoinsLists(MaterialFamily family, std::string_view keyword, std::string_view filter,
                const KeywordTexts& texts) {
  if (IsOffTheLists(keyword, filter)) return false;
  if (keyword == filter || filter == texts.all) return true;
  const bool closed = family == MaterialFamily::kStructural && (filter == kGlazing || filter == kDoors);
  return !closed && IsNotSpecified(keyword, texts);
}

}  // namespace velmar::materials
