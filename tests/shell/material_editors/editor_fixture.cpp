#include "tests/shell/material_editors/editor_fixture.h"

#include <QApplication>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QPixmap>
#include <QPushButton>
#include <QTest>
#include <filesystem>

#include "tests/presentation/drawing/catalogue_words.h"
#include "tests/storage/support/databases.h"

namespace velmar::material_editors {

EditorFixture::EditorFixture() : store_(folder_ / "Databases/Database/Database.mdb") {
  std::filesystem::create_directories(store_.File().parent_path());
  storage::MakeTables(store_.File(), storage::MaterialTables());
}

shell::WindowTools EditorFixture::Tools() {
  shell::WindowTools tools;
  tools.words = presentation::CatalogueWords();
  tools.boxes.ask = [this](const QString& question) {
    questions_ << question;
    return answer_;
  };
  tools.boxes.tell = [this](shell::Tone, const QString& text) { told_ << text; };
  tools.memory = memory_.get();
  return tools;
}

void EditorFixture::Show(QWidget& window) {
  window.show();
  window.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
}

void EditorFixture::Type(QWidget& window, const char* box, const char* text) {
  auto& line = Child<QLineEdit>(window, box);
  QTest::mouseClick(&line, Qt::LeftButton);
  line.selectAll();
  QTest::keyClick(&line, Qt::Key_Delete);
  QTest::keyClicks(&line, QLatin1String(text));
  QTest::keyClick(&line, Qt::Key_Tab);
}

void EditorFixture::Insert(QWidget& window, const char* box, const QString& text) {
  auto& line = Child<QLineEdit>(window, box);
  line.setFocus();
  line.selectAll();
  QInputMethodEvent event;
  event.setCommitString(text);
  QApplication::sendEvent(&line, &event);
}

QString EditorFixture::Shown(QWidget& window, const char* box) {
  return Child<QLineEdit>(window, box).text();
}

void EditorFixture::Press(QWidget& window, const char* button) {
  QTest::mouseClick(&Child<QAbstractButton>(window, button), Qt::LeftButton);
}

void EditorFixture::WhileLocked(const std::function<void()>& work) const {
  SQLite::Database other(store_.File().string(), SQLite::OPEN_READWRITE);
  other.exec("BEGIN EXCLUSIVE");
  work();
  other.exec("ROLLBACK");
}

void Picture(QWidget& window, const QString& name) {
  const QString folder = qEnvironmentVariable("VELMAR_PICTURES");
  if (folder.isEmpty()) return;
  window.grab().save(folder + '/' + name + ".png");
}

}  // namespace velmar::material_editors
