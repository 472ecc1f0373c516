#include "tests/shell/fields/fake_boxes.h"

#include <QElapsedTimer>
#include <QPixmap>
#include <QTest>
#include <algorithm>

#include "tests/presentation/drawing/catalogue_words.h"

namespace velmar::shell {

WindowTools FakeBoxes::Tools() {
  WindowTools tools;
  tools.words = presentation::CatalogueWords();
  tools.ask = [this](const QString& question) {
    questions << question;
    return answer;
  };
  tools.tell = [this](const QString& text) { told << text; };
  tools.memory = memory.get();
  return tools;
}

qint64 SlowestKey(QWidget& window, QLineEdit& search, const std::string& letters) {
  qint64 slowest = 0;
  for (const char letter : letters) {
    QElapsedTimer key;
    key.start();
    QTest::keyClick(&search, letter);
    window.grab();
    slowest = std::max(slowest, key.elapsed());
  }
  return slowest;
}

}  // namespace velmar::shell
