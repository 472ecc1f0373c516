#include "manual_builder/lists.h"

#include <algorithm>
#include <iterator>
#include <stdexcept>

#include "elements/catalogue.h"
#include "foundation/message_rows.h"
#include "presentation/texts/references.h"
#include "shell/commands/calculation_captions.h"
#include "shell/commands/command_table.h"
#include "storage/materials/material_store.h"
#include "usage_builder/usage_of_velmar.h"

namespace velmar::manual {
namespace {

using elements::CalculationRow;
using elements::Family;
using elements::Orientation;

bool IsFloor(const CalculationRow& row) {
  return row.orientation == Orientation::kHorizontalSingle ||
         row.orientation == Orientation::kHorizontalDouble;
}

struct Group {
  std::string_view name{};
  bool (*holds)(const CalculationRow&) = nullptr;
};

constexpr Group kGroups[] = {
    {"pareti semplici",
     [](const CalculationRow& row) {
       return row.family == Family::kSingle && !row.glazing && !IsFloor(row);
     }},
    {"pareti doppie",
     [](const CalculationRow& row) {
       return row.family == Family::kDouble && !row.glazing && !IsFloor(row);
     }},
    {"pareti leggere",
     [](const CalculationRow& row) { return row.family == Family::kSharp && !row.glazing; }},
    {"vetri", [](const CalculationRow& row) { return row.glazing; }},
    {"controplaccaggi", [](const CalculationRow& row) { return row.family == Family::kLining; }},
    {"controsoffitti", [](const CalculationRow& row) { return row.family == Family::kCeiling; }},
    {"solai", IsFloor},
    {"facciate", [](const CalculationRow& row) { return row.family == Family::kFacade; }},
    {"sea",
     [](const CalculationRow& row) {
       return row.family == Family::kSea || row.family == Family::kSeaSingle;
     }},
    {"multistrato", [](const CalculationRow& row) { return row.family == Family::kMultilayer; }},
};

std::string CalculationTable(const Arguments& given, const presentation::Words& words) {
  const auto* group = std::ranges::find(kGroups, given.empty() ? std::string() : given.front(), &Group::name);
  if (group == std::end(kGroups)) throw std::runtime_error("no such group of calculations");
  std::vector<std::vector<std::string>> rows;
  for (const elements::Calculation calculation : shell::InMenuOrder()) {
    const CalculationRow& row = elements::RowOf(calculation);
    if (!group->holds(row)) continue;
    const int mark = std::max(row.mark, row.theory.mark);
    rows.push_back({presentation::InWords(shell::MenuCaption(calculation), words),
                    mark > 0 ? presentation::ReferenceText(mark, words)
                             : presentation::ModelReference(calculation, words)});
  }
  return TableText({"Voce del menu", "Da dove viene il risultato"}, rows);
}

std::string ReferenceList(const presentation::Words& words) {
  std::string text;
  for (const presentation::Reference& reference : presentation::AllReferences(words))
    text += "- " + reference.text + '\n';
  for (const MessageRow row : {kMonolithicSourceRow, kFootfallSourceRow}) text += "- " + words(row) + '\n';
  return text;
}

/// "Ctrl+Shift+S" as keyboards here say it.
std::string KeyText(std::string keys) {
  constexpr std::pair<std::string_view, std::string_view> kNames[] = {{"Shift", "Maiusc"}, {"Del", "Canc"}};
  for (const auto& [portable, name] : kNames) {
    const std::size_t place = keys.find(portable);
    if (place != std::string::npos) keys.replace(place, portable.size(), name);
  }
  return keys;
}

std::string KeyTable(const presentation::Words& words) {
  std::vector<std::vector<std::string>> rows;
  for (const shell::Command& command : shell::Commands()) {
    if (*command.shortcut != '\0') rows.push_back({KeyText(command.shortcut), words(command.Caption())});
  }
  return TableText({"Tasti", "Comando"}, rows);
}

std::string OptionText(const usage_builder::UsageOption& option) {
  std::string names;
  for (const std::string& name : option.names) names += (names.empty() ? "" : ", ") + name;
  if (!option.argument && option.takes_value && !option.value.empty()) names += ' ' + option.value;
  return '`' + names + "`: " + option.help;
}

void AddUsage(const usage_builder::UsageCommand& command, const std::string& path, std::string& text) {
  std::string options;
  for (const usage_builder::UsageOption& option : command.options) {
    const bool help = std::ranges::find(option.names, "--help") != option.names.end();
    if (!help) options += "- " + OptionText(option) + '\n';
  }
  text += "**`" + path + "`** " + command.help + "\n\n" + (options.empty() ? "" : options + '\n');
  for (const usage_builder::UsageCommand& below : command.commands)
    AddUsage(below, path + ' ' + below.name, text);
}

}  // namespace

void AddCalculationLists(const presentation::Words& words, Directives& directives) {
  directives["calcoli"] = [words](const Arguments& given) { return CalculationTable(given, words); };
  directives["riferimenti"] = [words](const Arguments&) { return ReferenceList(words); };
}

void AddKeyList(const presentation::Words& words, Directives& directives) {
  directives["tasti"] = [words](const Arguments&) { return KeyTable(words); };
}

void AddCommandList(const std::filesystem::path& share, Directives& directives) {
  directives["comandi"] = [share](const Arguments&) {
    std::string text = "\n";
    AddUsage(usage_builder::UsageOfVelmar("Italiano", share), "velmar", text);
    return text;
  };
}

void AddMaterialCounts(const std::filesystem::path& database, Directives& directives) {
  directives["materiali"] = [database](const Arguments& given) {
    constexpr std::pair<std::string_view, elements::MaterialFamily> kFamilies[] = {
        {"strutturali", elements::MaterialFamily::kStructural},
        {"fibrosi", elements::MaterialFamily::kFibrous},
        {"resilienti", elements::MaterialFamily::kResilient}};
    for (const auto& [name, family] : kFamilies) {
      if (!given.empty() && given.front() == name)
        return std::to_string(storage::MaterialStore(database).List(family).size());
    }
    throw std::runtime_error("no such family of materials");
  };
}

}  // namespace velmar::manual
