// Makes one report template out of its readable parts, at build time.
//   velmar-pack-template OUT KIND LANGUAGE FOLDER...   a part of a later folder takes the place of one of the
//   same name; lines between "<!--only KIND KIND-->" and "<!--end-->" go into the kinds named alone; of
//   "⟦Italian|English⟧" the text of LANGUAGE stays: it, en, or both with a stroke between them for it+en

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <map>
#include <sstream>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "presentation/documents/package.h"

namespace {

namespace fs = std::filesystem;

std::string ReadWhole(const fs::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

/// `text` with what is meant for `kind`.
std::string CutFor(const std::string& kind, const std::string& text) {
  constexpr std::string_view kOnly = "<!--only ";
  std::istringstream lines(text);
  std::string cut;
  bool kept = true;
  for (std::string line; std::getline(lines, line);) {
    if (line.starts_with(kOnly)) {
      std::istringstream kinds(line.substr(kOnly.size(), line.rfind("-->") - kOnly.size()));
      kept = std::count(std::istream_iterator<std::string>(kinds), {}, kind) > 0;
    } else if (line == "<!--end-->") {
      kept = true;
    } else if (kept) {
      cut += line + '\n';
    }
  }
  return cut;
}

/// `text` with the words of `language`.
std::string WordsOf(const std::string& language, std::string text) {
  constexpr std::string_view kOpen = "⟦";
  constexpr std::string_view kClose = "⟧";
  for (std::size_t open = text.find(kOpen); open != std::string::npos; open = text.find(kOpen, open)) {
    const std::size_t begin = open + kOpen.size();
    const std::size_t bar = text.find('|', begin);
    const std::size_t close = text.find(kClose, begin);
    if (close == std::string::npos || bar > close) throw std::runtime_error("a text lacks a language");
    const std::string italian = text.substr(begin, bar - begin);
    const std::string english = text.substr(bar + 1, close - bar - 1);
    std::string words = language == "en" ? english : italian;
    if (language == "it+en" && english != italian) {
      // Blanks at the ends belong to what stands beside.
      const bool blank = words.ends_with(' ');
      words += (blank ? "/ " : " / ") + english.substr(english.starts_with(' ') ? 1 : 0);
    }
    text.replace(open, close + kClose.size() - open, words);
  }
  return text;
}

std::map<std::string, std::string> PartsOf(const std::string& kind, const std::string& language, int count,
                                           char** folders) {
  std::map<std::string, std::string> parts;
  for (int i = 0; i < count; ++i) {
    for (const fs::directory_entry& entry : fs::recursive_directory_iterator(folders[i])) {
      if (!entry.is_regular_file()) continue;
      const std::string text = ReadWhole(entry.path());
      parts[entry.path().lexically_relative(folders[i]).generic_string()] =
          WordsOf(language, kind.empty() ? text : CutFor(kind, text));
    }
  }
  return parts;
}

}  // namespace

int main(int count, char** arguments) {
  if (count < 5) {
    std::cerr << "usage: velmar-pack-template OUT KIND LANGUAGE FOLDER...\n";
    return 2;
  }
  try {
    std::map<std::string, std::string> parts = PartsOf(arguments[2], arguments[3], count - 4, arguments + 4);
    std::vector<std::pair<std::string, std::string>> ordered;
    // Readers look for these first.
    for (const char* name : {"[Content_Types].xml", "_rels/.rels"}) {
      if (const auto found = parts.find(name); found != parts.end()) {
        ordered.emplace_back(*found);
        parts.erase(found);
      }
    }
    ordered.insert(ordered.end(), parts.begin(), parts.end());
    const std::string bytes = velmar::presentation::MakePackage(ordered);
    fs::create_directories(fs::path(arguments[1]).parent_path());
    std::ofstream file(arguments[1], std::ios::binary | std::ios::trunc);
    file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    file.close();
    return file ? 0 : 1;
  } catch (const std::exception& error) {
    std::cerr << "velmar-pack-template: " << error.what() << '\n';
    return 1;
  }
}
