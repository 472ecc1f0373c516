// velmar-build-usage SHARE MAN TARGET: writes what shells and man(1) know of the command line below TARGET.
// SHARE is the shipped data folder, whose catalogue has the words; MAN the folder of the pages' own text.
#include <cstdio>
#include <exception>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>

#include "cli/drawn/drawn_formats.h"
#include "cli/output/report_format.h"
#include "cli/parsing/commands.h"
#include "cli/parsing/usage_words.h"
#include "storage/messages/message_table_reader.h"
#include "usage_builder/completions.h"
#include "usage_builder/manual_page.h"

namespace {

namespace fs = std::filesystem;
using velmar::usage_builder::UsageCommand;

std::string TextOf(const fs::path& file) {
  std::ifstream in(file, std::ios::binary);
  if (!in) throw std::runtime_error("cannot read " + file.string());
  return {std::istreambuf_iterator<char>(in), {}};
}

void Write(const fs::path& file, const std::string& text) {
  fs::create_directories(file.parent_path());
  std::ofstream out(file, std::ios::binary);
  out << text;
  out.close();
  if (!out) throw std::runtime_error("cannot write " + file.string());
}

/// The command line in `language`, as a tree.
UsageCommand UsageIn(const std::string& language, const fs::path& share) {
  const velmar::storage::MessageTable messages =
      velmar::storage::ReadMessageTable(share / "Databases/InterfMess.mdb", language);
  velmar::cli::Services services;
  services.words = [&messages](velmar::MessageRow row) { return messages.Text(row); };
  services.report_formats = {velmar::cli::CsvFormat()};
  for (velmar::cli::ReportFormat& format : velmar::cli::DrawnFormats({.templates = share / "Templates"}))
    services.report_formats.push_back(std::move(format));
  velmar::cli::Parsed parsed;
  CLI::App app;
  velmar::cli::AddCommands(app, parsed, services);
  velmar::cli::SayHelpIn(services.words, app);
  return velmar::usage_builder::UsageOf(app, "velmar");
}

void BuildUsage(const fs::path& share, const fs::path& man, const fs::path& target) {
  const UsageCommand italian = UsageIn("Italiano", share);
  const UsageCommand english = UsageIn("English", share);
  Write(target / "bash/velmar", velmar::usage_builder::BashCompletion(italian));
  Write(target / "zsh/_velmar", velmar::usage_builder::ZshCompletion(italian));
  Write(target / "fish/velmar.fish", velmar::usage_builder::FishCompletion(italian));
  Write(target / "man/it/man1/velmar.1",
        velmar::usage_builder::ManualPage(TextOf(man / "velmar.it.1"), italian));
  Write(target / "man/man1/velmar.1", velmar::usage_builder::ManualPage(TextOf(man / "velmar.1"), english));
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 4) {
    std::fprintf(stderr, "velmar-build-usage SHARE MAN TARGET\n");
    return 2;
  }
  try {
    BuildUsage(argv[1], argv[2], argv[3]);
    return 0;
  } catch (const std::exception& failure) {
    std::fprintf(stderr, "velmar-build-usage: %s\n", failure.what());
    return 1;
  }
}
