#include "tests/shell/windows/fake_boxes.h"

#include "tests/presentation/drawing/catalogue_words.h"

namespace velmar::shell {

WindowTools FakeBoxes::Tools() {
  WindowTools tools;
  tools.words = presentation::CatalogueWords();
  tools.boxes.ask = [this](const QString& question) {
    questions << question;
    return answer;
  };
  tools.boxes.tell = [this](Tone, const QString& text) { told << text; };
  tools.memory = memory.get();
  return tools;
}

}  // namespace velmar::shell
