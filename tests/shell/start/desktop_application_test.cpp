#include "shell/start/desktop_application.h"

#include <QLineEdit>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <filesystem>
#include <stdexcept>
#include <vector>

#include "tests/shell/support/window_fixture.h"

namespace velmar::shell {
namespace {

namespace fs = std::filesystem;

std::vector<fs::path> CopiesIn(const fs::path& folder) {
  std::vector<fs::path> copies;
  for (const fs::directory_entry& entry : fs::directory_iterator(folder)) {
    if (entry.path().extension() == ".drav") copies.push_back(entry.path());
  }
  return copies;
}

/// A main window with unsaved work, and a button whose slot throws.
struct Program {
  Program() {
    fixture.services.places.recovery = fs::path(folder.path().toStdString()) / "recupero";
    fixture.MakeWindow();
    fixture.Choose(elements::Calculation::kSingleWallGeneric);
    fixture.Type("Text5_0", "77");
    button = new QPushButton(fixture.window.get());
    QObject::connect(button, &QPushButton::clicked, [] { throw std::runtime_error("misura 42"); });
  }

  void Listen() const {
    QObject::connect(static_cast<DesktopApplication*>(qApp), &DesktopApplication::Failed,
                     fixture.window.get(), &MainWindow::SurviveFailure);
  }
  void Click() const { QTest::mouseClick(button, Qt::LeftButton); }

  QTemporaryDir folder;
  WindowFixture fixture;
  QPushButton* button = nullptr;
};

}  // namespace

/// What a slot or an event handler throws.
class DesktopApplicationTest : public QObject {
  Q_OBJECT

 private slots:
  void aSlotThatThrowsIsToldAndTheWorkIsKept() {
    Program program;
    program.Listen();
    QVERIFY(CopiesIn(program.fixture.services.places.recovery).empty());
    program.Click();
    QCOMPARE(program.fixture.told.size(), 1);
    const QString told = program.fixture.told.first();
    QVERIFY2(told.contains("errore imprevisto"), qPrintable(told));
    QVERIFY2(told.contains("Una copia del lavoro"), qPrintable(told));
    QVERIFY2(told.contains("misura 42"), qPrintable(told));
    const auto copies = CopiesIn(program.fixture.services.places.recovery);
    QCOMPARE(copies.size(), std::size_t{1});
    QVERIFY(program.fixture.services.read_project(copies.front()) == program.fixture.open.Setup());
  }

  void theWindowGoesOn() {
    Program program;
    program.Listen();
    program.Click();
    program.fixture.Type("Text5_0", "120");
    program.fixture.Run();
    QVERIFY(program.fixture.open.Result().has_value());
    program.Click();
    QCOMPARE(program.fixture.told.size(), 2);
  }

  void withoutACopyNoneIsPromised() {
    Program program;
    program.Listen();
    program.fixture.services.write_project = [](const fs::path&, const elements::Setup&) {
      throw std::runtime_error("disco pieno");
    };
    program.Click();
    QCOMPARE(program.fixture.told.size(), 1);
    QVERIFY(!program.fixture.told.first().contains("Una copia del lavoro"));
  }

  void aFailureThatComesBackByItselfIsToldOnce() {
    Program program;
    program.Listen();
    int ticks = 0;
    QTimer timer;
    connect(&timer, &QTimer::timeout, &timer, [&ticks] {
      ++ticks;
      throw std::runtime_error("orologio");
    });
    timer.start(1);
    QTRY_VERIFY(ticks >= 3);
    timer.stop();
    QCOMPARE(program.fixture.told.size(), 1);
  }

  void aFailureInTheBoxItselfEndsNothing() {
    Program program;
    program.fixture.services.boxes.tell = [&](Tone, const QString& text) {
      program.fixture.told += text;
      program.Click();  // as a handler that fails while the box is open
      throw std::runtime_error("finestra");
    };
    program.Listen();
    program.Click();
    QCOMPARE(program.fixture.told.size(), 1);
  }

  void withoutAListenerItGoesOnToWhoStartedTheLoop() {
    const Program program;
    QVERIFY_THROWS_EXCEPTION(std::runtime_error, program.Click());
  }
};

}  // namespace velmar::shell

int main(int argc, char** argv) {
  velmar::shell::DesktopApplication application(argc, argv);
  velmar::shell::DesktopApplicationTest test;
  return QTest::qExec(&test, argc, argv);
}
#include "desktop_application_test.moc"
