#include "tests/storage/project/read_any_project.h"

#include <stdexcept>

#include "storage/project/project_failure.h"
#include "storage/project/project_reader.h"
#include "storage/project/project_writer.h"

namespace velmar::storage {
namespace {

OpenedProject ReadOwn(const std::string& bytes) {
  try {
    return ReadProject(bytes, {});
  } catch (const ProjectFileFailure& failure) {
    throw std::logic_error(std::string("the program's own file is refused: ") + failure.what());
  }
}

}  // namespace

bool ReadAnyProject(std::string_view bytes) {
  OpenedProject opened;
  try {
    opened = ReadProject(bytes, {});
  } catch (const ProjectFileFailure& failure) {
    if (failure.UserMessage().size() != 2 || failure.LineNumber() < 1)
      throw std::logic_error("the failure names no line");
    return false;
  }
  const std::string saved = WriteProject(opened.setup, opened.stored);
  const OpenedProject again = ReadOwn(saved);
  if (WriteProject(again.setup, again.stored) != saved)
    throw std::logic_error("a second save differs from the first");
  return true;
}

}  // namespace velmar::storage
