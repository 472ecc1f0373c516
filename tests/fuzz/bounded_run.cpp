// fuzz_target RUNS SEED...: the target over the seeds as they are, and over RUNS damaged ones; the damage is
// the same in every run.
#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace {

void Run(const std::string& bytes) {
  LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
}

class Damage {
 public:
  std::string To(std::string bytes, const std::string& other) {
    for (int times = Below(4) + 1; times > 0; --times) Once(bytes, other);
    return bytes;
  }

 private:
  int Below(std::size_t end) {
    return static_cast<int>(std::uniform_int_distribution<std::size_t>(0, end - 1)(engine_));
  }
  std::size_t Place(const std::string& bytes) {
    return std::uniform_int_distribution<std::size_t>(0, bytes.size())(engine_);
  }

  void Once(std::string& bytes, const std::string& other) {
    static const std::vector<std::string> kTokens = {"",
                                                     std::string(1, '\0'),
                                                     "\r\n",
                                                     "\"",
                                                     "[VELMARpro]\r\n",
                                                     "-1",
                                                     "99999999999999999999",
                                                     "nan",
                                                     "1E+999",
                                                     "=",
                                                     "\\",
                                                     "\xff\xfe",
                                                     "\xe2\x82",
                                                     "<!DOCTYPE a>"};
    const std::size_t at = Place(bytes);
    const std::size_t length = std::min<std::size_t>(bytes.size() - at, static_cast<std::size_t>(Below(64)));
    switch (Below(6)) {
      case 0:
        bytes.erase(at, length);
        break;
      case 1:
        bytes.insert(at, kTokens[static_cast<std::size_t>(Below(kTokens.size()))]);
        break;
      case 2:
        bytes.insert(at, bytes.substr(at, length));
        break;
      case 3:
        bytes.resize(at);
        break;
      case 4:
        bytes.replace(at, length, other.substr(std::min(at, other.size()), length));
        break;
      default:
        if (at < bytes.size()) bytes[at] = static_cast<char>(Below(256));
    }
  }

  std::mt19937_64 engine_{20061};
};

}  // namespace

int main(int argc, char** argv) {
  if (argc < 3) {
    std::fprintf(stderr, "RUNS SEED...\n");
    return 2;
  }
  std::vector<std::string> seeds;
  for (int i = 2; i < argc; ++i) {
    std::ifstream file(argv[i], std::ios::binary);
    if (!file) {
      std::fprintf(stderr, "%s: cannot be read\n", argv[i]);
      return 2;
    }
    seeds.emplace_back(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>());
    Run(seeds.back());
  }
  Damage damage;
  const int runs = std::atoi(argv[1]);
  for (int run = 0; run < runs; ++run) {
    const auto turn = static_cast<std::size_t>(run);
    Run(damage.To(seeds[turn % seeds.size()], seeds[(turn / seeds.size()) % seeds.size()]));
  }
  std::printf("%d damaged inputs\n", runs);
  return 0;
}
