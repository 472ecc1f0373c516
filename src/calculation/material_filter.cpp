#include "calculation/material_filter.h"

#include <set>

namespace velmar::calculation {
namespace {

// Stored words, the same in every language.
constexpr const char* kGlazing = "vetrate";
constexpr const char* kFibrousNotSpecified = "non specificato";

}  // namespace

std::vector<std::string> KeywordsOf(std::span<const ListedMaterial> materials,
                                    elements::MaterialFamily family, const FilterWords& words) {
  const bool fibrous = family == elements::MaterialFamily::kFibrous;
  std::set<std::string> known = {words.all, fibrous ? std::string(kFibrousNotSpecified) : words.not_specified};
  std::vector<std::string> keywords = {words.all};
  for (const ListedMaterial& material : materials) {
    if (material.keyword.empty() || !known.insert(material.keyword).second) continue;
    keywords.push_back(material.keyword);
  }
  return keywords;
}

std::vector<std::string> NamesUnder(std::span<const ListedMaterial> materials,
                                    elements::MaterialFamily family, const std::string& keyword,
                                    const FilterWords& words) {
  std::vector<std::string> names;
  const bool all = keyword == words.all;
  for (const ListedMaterial& material : materials) {
    if (all || material.keyword == keyword) names.push_back(material.name);
  }
  const bool glazing = family == elements::MaterialFamily::kStructural && keyword == kGlazing;
  if (all || glazing || keyword == words.not_specified) return names;
  for (const ListedMaterial& material : materials) {
    if (material.keyword == words.not_specified) names.push_back(material.name);
  }
  return names;
}

}  // namespace velmar::calculation
