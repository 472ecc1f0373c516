// velmar-build-data SOURCE TARGET: makes the shipped data folder out of the texts of the repository.
#include <cstdio>
#include <exception>

#include "data_builder/shipped_data.h"

int main(int argc, char** argv) {
  if (argc != 3) {
    std::fprintf(stderr, "velmar-build-data SOURCE TARGET\n");
    return 2;
  }
  try {
    velmar::data_builder::BuildShippedData(argv[1], argv[2]);
    return 0;
  } catch (const std::exception& failure) {
    std::fprintf(stderr, "velmar-build-data: %s\n", failure.what());
    return 1;
  }
}
