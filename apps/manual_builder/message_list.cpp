#include <algorithm>
#include <fstream>
#include <iterator>
#include <map>
#include <memory>
#include <stdexcept>

#include "foundation/csv.h"
#include "foundation/utf8.h"
#include "manual_builder/lists.h"

namespace velmar::manual {
namespace {

constexpr const char* kNoMessage = "-";  ///< the group of sentences that are no messages
constexpr const char* kOthers = "altri";
constexpr std::size_t kShortestSentence = 26;

struct Text {
  std::string use{};
  std::string words{};
};

struct Advice {
  std::string group{};
  std::string row{};
  std::string words{};
};

CsvTable TableIn(const std::filesystem::path& file) {
  std::ifstream in(file, std::ios::binary);
  if (!in) throw std::runtime_error("cannot read " + file.string());
  return ParseCsv(std::string(std::istreambuf_iterator<char>(in), {}));
}

std::size_t Column(const CsvTable& table, const std::string& name) {
  for (std::size_t i = 0; i < table.header.size(); ++i) {
    if (table.header[i] == name) return i;
  }
  throw std::runtime_error("no column " + name);
}

/// The rows of the catalogues by their names, in the order of their numbers.
struct Catalogue {
  std::vector<std::string> order{};
  std::map<std::string, Text> rows{};
};

Catalogue ReadCatalogues(const std::vector<std::filesystem::path>& files) {
  Catalogue catalogue;
  for (const auto& file : files) {
    const CsvTable table = TableIn(file);
    for (const auto& row : table.rows) {
      const std::string& name = row[Column(table, "name")];
      catalogue.order.push_back(name);
      catalogue.rows[name] = {row[Column(table, "use")], row[Column(table, "Italiano")]};
    }
  }
  return catalogue;
}

std::vector<Advice> ReadAdvice(const std::filesystem::path& file, const Catalogue& catalogue) {
  const CsvTable table = TableIn(file);
  std::vector<Advice> advice;
  std::map<std::string, bool> told;
  for (const auto& row : table.rows) {
    advice.push_back(
        {row[Column(table, "gruppo")], row[Column(table, "riga")], row[Column(table, "consiglio")]});
    const std::string& name = advice.back().row;
    if (!catalogue.rows.contains(name)) throw std::runtime_error("no message " + name);
    if (told[name]) throw std::runtime_error("the message stands twice: " + name);
    told[name] = true;
  }
  return advice;
}

/// Whether a row is a sentence that the program says, and no label, tip, heading or help.
bool IsSentence(const Text& text) {
  for (const char* other : {"tip",
                            "command line",
                            "menu",
                            "references",
                            "reports",
                            "report:",
                            "help",
                            "accessible",
                            "route of",
                            "second opinion",
                            "caption",
                            "heading",
                            "legend",
                            "title",
                            "doctor",
                            "label",
                            "calculation data",
                            "theory",
                            "element type",
                            "stored description",
                            "tile"}) {
    if (text.use.find(other) != std::string::npos) return false;
  }
  if (CountCharacters(text.words) < kShortestSentence) return false;
  const char last = text.words.back();
  return last == '.' || last == '?';
}

std::string MessageTable(const std::string& group, const Catalogue& catalogue,
                         const std::vector<Advice>& advice) {
  std::vector<std::vector<std::string>> rows;
  if (group == kOthers) {
    for (const std::string& name : catalogue.order) {
      const Text& text = catalogue.rows.at(name);
      const bool told =
          std::any_of(advice.begin(), advice.end(), [&](const Advice& known) { return known.row == name; });
      if (!told && IsSentence(text)) rows.push_back({text.words});
    }
    return TableText({"Messaggio"}, rows);
  }
  for (const Advice& known : advice) {
    if (known.group == group) rows.push_back({catalogue.rows.at(known.row).words, known.words});
  }
  if (rows.empty() || group == kNoMessage) throw std::runtime_error("no messages in the group " + group);
  // Advice that is the same for all stands once, in the chapter.
  const bool same = std::ranges::all_of(rows, [&rows](const auto& row) { return row[1] == rows.front()[1]; });
  if (same && rows.size() > 1) {
    std::vector<std::vector<std::string>> once;
    for (const auto& row : rows) {
      if (std::ranges::find(once, std::vector{row[0]}) == once.end()) once.push_back({row[0]});
    }
    return TableText({"Messaggio"}, once);
  }
  return TableText({"Messaggio", "Che cosa fare"}, rows);
}

}  // namespace

void AddMessageLists(const std::vector<std::filesystem::path>& catalogues,
                     const std::filesystem::path& advice, Directives& directives) {
  const auto catalogue = std::make_shared<const Catalogue>(ReadCatalogues(catalogues));
  directives["messaggi"] = [catalogue, known = ReadAdvice(advice, *catalogue)](const Arguments& given) {
    return MessageTable(given.empty() ? std::string() : given.front(), *catalogue, known);
  };
}

}  // namespace velmar::manual
