#include "cli/commands/profile_command.h"

#include <algorithm>
#include <optional>
#include <ostream>
#include <string_view>
#include <utility>
#include <vector>

#include <nlohmann/json.hpp>

#include "cli/output/failure_report.h"
#include "cli/output/outcome_json.h"
#include "cli/output/outcome_table.h"
#include "elements/studio_profile.h"
#include "foundation/failure.h"
#include "foundation/message_rows.h"
#include "storage/files/whole_file.h"
#include "storage/profile/studio_profile_store.h"

namespace velmar::cli {
namespace {

using elements::StudioField;
using elements::StudioProfile;

bool IsPicture(const StudioField& field) {
  return field.text == &StudioProfile::logo || field.text == &StudioProfile::signature;
}

/// What is set, in the order of the fields.
std::vector<std::pair<std::string, std::string>> EntriesOf(const StudioProfile& profile) {
  std::vector<std::pair<std::string, std::string>> entries;
  for (const StudioField& field : elements::StudioFields()) {
    if (!(profile.*field.text).empty()) entries.emplace_back(field.key, profile.*field.text);
  }
  if (profile.language)
    entries.emplace_back(elements::kStudioLanguageKey, elements::CodeOf(*profile.language));
  return entries;
}

void Show(const StudioProfile& profile, bool json, const Services& services, std::ostream& out) {
  const auto entries = EntriesOf(profile);
  if (json) {
    nlohmann::json object = nlohmann::json::object();
    for (const auto& [key, text] : entries) object[key] = text;
    WriteJson(object, out);
    return;
  }
  if (entries.empty()) out << services.words(kStudioEmptyRow) << '\n';
  for (const auto& [key, text] : entries) {
    std::string line = text;
    std::ranges::replace(line, '\n', '|');
    out << key << ": " << line << '\n';
  }
}

/// A value as typed: without blanks at its ends, "\n" for a line break.
std::string Typed(std::string_view value) {
  constexpr std::string_view kBlanks = " \t\r\n";
  const std::size_t begin = value.find_first_not_of(kBlanks);
  if (begin == std::string_view::npos) return {};
  std::string text(value.substr(begin, value.find_last_not_of(kBlanks) - begin + 1));
  for (std::size_t at = text.find("\\n"); at != std::string::npos; at = text.find("\\n", at))
    text.replace(at, 2, "\n");
  return text;
}

Message UnknownKey() {
  std::string keys;
  for (const StudioField& field : elements::StudioFields()) keys += std::string(" ") + field.key;
  return {{kStudioUnknownKeyRow, keys + " " + elements::kStudioLanguageKey}};
}

/// Sets an entry of `profile`. @return why it cannot be set
std::optional<Message> Set(StudioProfile& profile, const ProfileCommand& command,
                           const storage::StudioProfileStore& store, const Services& services) {
  const std::string text = Typed(command.value);
  if (command.key == elements::kStudioLanguageKey) {
    const auto language = elements::LanguageOfCode(text);
    if (!language && !text.empty()) return Message{{kStudioBadLanguageRow, " " + text}};
    profile.language = language;
    return std::nullopt;
  }
  const auto fields = elements::StudioFields();
  const auto field = std::ranges::find(fields, std::string_view(command.key), &StudioField::key);
  if (field == fields.end()) return UnknownKey();
  if (!IsPicture(*field)) {
    if (const auto objection = Objection(*field, text)) return objection;
    profile.*field->text = text;
    return std::nullopt;
  }
  if (text.empty()) {
    (profile.*field->text).clear();
    return std::nullopt;
  }
  const std::string name = store.KeepPicture(text);
  if (!services.readable_picture(store.Picture(name))) return Message{{kStudioBadPictureRow}, {text}};
  profile.*field->text = name;
  return std::nullopt;
}

}  // namespace

ExitCode Execute(const ProfileCommand& command, const Services& services, std::ostream& out,
                 std::ostream& errors) {
  const storage::StudioProfileStore store(services.data_folder);
  try {
    if (command.action == ProfileAction::kClear) {
      if (const auto kept = store.Write({}))
        WriteMessage({{kStudioKeptAsideRow, " " + kept->string()}}, services.words, errors);
      Show({}, command.json, services, out);
      return ExitCode::kDone;
    }
    StudioProfile profile = store.Read();
    if (command.action == ProfileAction::kSet) {
      if (const auto objection = Set(profile, command, store, services)) {
        WriteMessage(*objection, services.words, errors);
        return ExitCode::kFailed;
      }
      store.Write(profile);
    }
    Show(profile, command.json, services, out);
    return ExitCode::kDone;
  } catch (const Failure& failure) {
    return TellFailure(failure, services.words, errors);
  }
}

}  // namespace velmar::cli
