#pragma once

#include <filesystem>
#include <map>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "application/store_check.h"
#include "storage/configuration/configuration.h"
#include "tests/storage/support/temporary_folder.h"

namespace velmar::application {

/// The rows of `message`, such as "1104+1147"; a line of words alone is row 0.
inline std::string RowsOf(const Message& message) {
  std::string rows;
  for (const MessageLine& line : message)
    rows += (rows.empty() ? "" : "+") + std::to_string(LeadingRow(line).number);
  return rows;
}

/// A talk that answers without a box and writes down what was said, in order.
struct RecordedTalk {
  /// @param answers to the questions by their row; a question that is not in it is answered with no
  explicit RecordedTalk(std::map<int, bool> answers_by_row = {}) : answers(std::move(answers_by_row)) {
    talk.ask = [this](const Message& question) {
      said.push_back("ask " + RowsOf(question));
      const auto answer = answers.find(LeadingRow(question.back()).number);
      const auto first = answers.find(LeadingRow(question.front()).number);
      if (answer != answers.end()) return answer->second;
      return first != answers.end() && first->second;
    };
    talk.tell = [this](const Message& message) { said.push_back("tell " + RowsOf(message)); };
    talk.warn = [this](const Message& message) { said.push_back("warn " + RowsOf(message)); };
    talk.work = [this](const Message& what, const std::function<void()>& job) {
      works.push_back(RowsOf(what));
      job();
    };
  }

  std::map<int, bool> answers;
  std::vector<std::string> said{};
  std::vector<std::string> works{};
  StartTalk talk{};
};

/// A data folder of its own beside the shipped data.
class StartTest : public testing::Test {
 protected:
  std::filesystem::path FileOf(const char* name) const { return places_.data_folder / name; }
  std::string ShippedBytes(const char* name) const { return storage::ReadFile(*places_.shipped / name); }

  storage::TemporaryFolder folder_;
  StorePlaces places_{.data_folder = folder_ / "data",
                      .shipped = std::filesystem::path(SHIPPED),
                      .reader = {VELMAR_ACCESS_READER}};
};

inline constexpr Store kStores[] = {Store::kMessages, Store::kMaterials, Store::kResults};

inline const char* NameOf(Store store) {
  switch (store) {
    case Store::kMessages:
      return storage::kMessageDatabase;
    case Store::kMaterials:
      return storage::kMaterialDatabase;
    case Store::kResults:
      return storage::kResultDatabase;
  }
  return "";
}

}  // namespace velmar::application
