// velmar-message-rows FOLDER CSV...: names the rows of each message file, "texts.csv", as constants in a
// header of FOLDER, "texts_rows.h", which is written only when its content changes. Complaints go to the
// error stream, and no header is touched then.
#include <cstdio>
#include <exception>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>
#include <vector>

#include "message_rows/message_rows.h"

namespace {

namespace fs = std::filesystem;
using velmar::message_rows::MessageFile;

std::string ContentOf(const fs::path& path) {
  std::ifstream file(path, std::ios::binary);
  if (!file) throw std::runtime_error(path.string() + ": cannot be read");
  return {std::istreambuf_iterator<char>(file), {}};
}

MessageFile Read(const fs::path& path) {
  try {
    return {path.string(), velmar::ParseCsv(ContentOf(path))};
  } catch (const velmar::CsvFailure& failure) {
    throw std::runtime_error(path.string() + ": " + failure.what());
  }
}

void WriteIfChanged(const fs::path& path, const std::string& text) {
  if (fs::exists(path) && ContentOf(path) == text) return;
  fs::create_directories(path.parent_path());
  std::ofstream file(path, std::ios::binary | std::ios::trunc);
  file << text << std::flush;
  if (!file) throw std::runtime_error(path.string() + ": cannot be written");
}

int Run(const fs::path& folder, const std::vector<fs::path>& paths) {
  std::vector<MessageFile> files;
  for (const fs::path& path : paths) files.push_back(Read(path));
  const std::vector<std::string> complaints = velmar::message_rows::Complaints(files);
  for (const std::string& complaint : complaints) std::fprintf(stderr, "%s\n", complaint.c_str());
  if (!complaints.empty()) return 1;
  for (const MessageFile& file : files) {
    const std::string name = fs::path(file.name).stem().string() + "_rows.h";
    WriteIfChanged(folder / name, velmar::message_rows::Header(file));
  }
  return 0;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc < 3) {
    std::fprintf(stderr, "velmar-message-rows FOLDER CSV...\n");
    return 2;
  }
  try {
    return Run(argv[1], {argv + 2, argv + argc});
  } catch (const std::exception& failure) {
    std::fprintf(stderr, "%s\n", failure.what());
    return 1;
  }
}
