// velmar-build-usage SHARE MAN TARGET: writes what shells and man(1) know of the command line below TARGET.
// SHARE is the shipped data folder, whose catalogue has the words; MAN the folder of the pages' own text.
#include <cstdio>
#include <exception>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>

#include "usage_builder/completions.h"
#include "usage_builder/manual_page.h"
#include "usage_builder/usage_of_velmar.h"

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

void BuildUsage(const fs::path& share, const fs::path& man, const fs::path& target) {
  const UsageCommand italian = velmar::usage_builder::UsageOfVelmar("Italiano", share);
  const UsageCommand english = velmar::usage_builder::UsageOfVelmar("English", share);
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
