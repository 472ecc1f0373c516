#include "shell/manual/manual_window.h"

#include <QAction>
#include <QApplication>
#include <QDirIterator>
#include <QFile>
#include <QImageReader>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRegularExpression>
#include <QScrollBar>
#include <QTest>
#include <QTextBlock>
#include <QTextBrowser>
#include <QTextDocument>
#include <QTimer>
#include <QTreeWidget>
#include <algorithm>
#include <cmath>

#include "shell/manual/help_chapters.h"
#include "tests/shell/support/window_fixture.h"

namespace velmar::shell {
namespace {

QString Read(const QString& name) {
  QFile file(name);
  if (!file.open(QIODevice::ReadOnly)) qFatal("cannot read %s", qPrintable(name));
  return QString::fromUtf8(file.readAll());
}

QString ManualText() { return Read(QStringLiteral(MANUAL "/manuale.md")); }

/// The names of all windows in the sources: classes of dialogs, and what their makers call them.
QStringList WindowsInTheSources() {
  static const QRegularExpression of_dialog(R"(class \w+ : public (?:QDialog|EditorDialog))");
  static const QRegularExpression name(
      R"((?:setObjectName\(|EditorDialog\(std::move\(tools\), )(?:QStringLiteral\()?"(\w+)\")");
  QStringList names;
  QDirIterator headers(SHELL_SOURCES, {"*.h"}, QDir::Files, QDirIterator::Subdirectories);
  while (headers.hasNext()) {
    QString header = headers.next();
    if (header.endsWith("editor_dialog.h") || header.endsWith("manual_window.h")) continue;
    if (!of_dialog.match(Read(header)).hasMatch()) continue;
    const QString source = header.replace(header.size() - 1, 1, "cpp");
    const auto found = name.match(Read(source));
    names += found.hasMatch() ? found.captured(1) : "without a name: " + source;
  }
  return names;
}

}  // namespace

/// The manual in its window, and what F1 opens.
class ManualWindowTest : public QObject {
  Q_OBJECT

 private slots:
  void itIsReadWithoutScrollingSideways() {
    const WindowFixture fixture;
    ManualWindow window(fixture.services.words, ManualText(), MANUAL, nullptr);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    const auto* text = window.findChild<QTextBrowser*>("TestoManuale");
    QVERIFY(text->verticalScrollBar()->maximum() > 0);
    QCOMPARE(text->horizontalScrollBar()->maximum(), 0);
  }

  void noPictureIsDrawnLargerThanItIs() {
    const WindowFixture fixture;
    const ManualWindow window(fixture.services.words, ManualText(), MANUAL, nullptr);
    const QTextDocument& text = *window.findChild<QTextBrowser*>("TestoManuale")->document();
    int pictures = 0;
    for (QTextBlock block = text.begin(); block.isValid(); block = block.next()) {
      for (auto it = block.begin(); !it.atEnd(); ++it) {
        if (!it.fragment().charFormat().isImageFormat()) continue;
        const QTextImageFormat picture = it.fragment().charFormat().toImageFormat();
        const QSize size = QImageReader(QString(MANUAL "/") + picture.name()).size();
        QVERIFY2(picture.width() > 100 && picture.width() <= size.width(), qPrintable(picture.name()));
        QVERIFY(std::abs(picture.height() / picture.width() - 1.0 * size.height() / size.width()) < 0.01);
        ++pictures;
      }
    }
    QVERIFY(pictures >= 20);
  }

  void everyChapterThatAWindowNamesIsInTheManual() {
    std::vector<std::string> anchors;
    for (const auto& heading : presentation::HeadingsIn(ManualText().toStdString()))
      anchors.push_back(heading.anchor);
    const auto holds = [&](std::string_view anchor) { return std::ranges::count(anchors, anchor) == 1; };
    for (const HelpChapter& chapter : HelpChapters())
      QVERIFY2(holds(chapter.anchor), std::string(chapter.anchor).c_str());
    for (const elements::CalculationRow& row : elements::Catalogue())
      QVERIFY2(holds(ChapterOf(row.calculation)), std::string(row.variant).c_str());
    QVERIFY(holds(kFirstChapter));
  }

  void everyWindowHasAChapter() {
    const QStringList windows = WindowsInTheSources();
    QVERIFY2(windows.size() >= 15, qPrintable(windows.join(' ')));
    for (const QString& window : windows) {
      const bool has = std::ranges::any_of(HelpChapters(), [&](const HelpChapter& chapter) {
        return window == QString::fromUtf8(chapter.control.data(), static_cast<int>(chapter.control.size()));
      });
      QVERIFY2(has, qPrintable(window));
    }
  }

  void aChapterComesToTheUpperEdge() {
    const WindowFixture fixture;
    ManualWindow window(fixture.services.words, ManualText(), MANUAL, nullptr);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    for (const char* anchor : {"solai", "pareti-semplici", "la-cartella-dei-dati"}) {
      window.ShowChapter(anchor);
      QCOMPARE(window.ChapterShown(), std::string(anchor));
    }
    window.ShowChapter("nulla");
    QCOMPARE(window.ChapterShown(), std::string("la-cartella-dei-dati"));
    window.findChild<QPushButton*>("CommandIndietro")->click();
    QCOMPARE(window.ChapterShown(), std::string("pareti-semplici"));
  }

  void theContentsLeadToTheirChapter() {
    const WindowFixture fixture;
    ManualWindow window(fixture.services.words, ManualText(), MANUAL, nullptr);
    window.show();
    auto* contents = window.findChild<QTreeWidget*>("Indice");
    QVERIFY(contents->topLevelItemCount() >= 20);
    contents->setCurrentItem(contents->topLevelItem(4));
    QCOMPARE(window.ChapterShown(), std::string("pareti-semplici"));
  }

  void theSearchFindsAndSaysWhatItDoesNotFind() {
    const WindowFixture fixture;
    ManualWindow window(fixture.services.words, ManualText(), MANUAL, nullptr);
    window.show();
    auto* search = window.findChild<QLineEdit*>("TextCerca");
    auto* text = window.findChild<QTextBrowser*>("TestoManuale");
    auto* found = window.findChild<QLabel*>("LabelTrovato");
    QTest::keyClicks(search, "dinamica");
    QTest::keyClick(search, Qt::Key_Return);
    QCOMPARE(text->textCursor().selectedText().toLower(), QString("dinamica"));
    const int first = text->textCursor().position();
    QTest::keyClick(search, Qt::Key_Return);
    QVERIFY(text->textCursor().position() > first);
    QTest::keyClick(search, Qt::Key_Return, Qt::ShiftModifier);
    QCOMPARE(text->textCursor().position(), first);
    QVERIFY(found->text().toInt() > 1);
    search->clear();
    QTest::keyClicks(search, "xyzzy");
    QTest::keyClick(search, Qt::Key_Return);
    QCOMPARE(found->text(), QString("0"));
    QVERIFY(window.isVisible());
  }

  void f1OpensTheChapterOfTheElement() {
    WindowFixture fixture;
    fixture.services.places.manual_text = MANUAL "/manuale.md";
    fixture.MakeWindow();
    fixture.window->show();
    QVERIFY(QTest::qWaitForWindowActive(fixture.window.get()));
    const auto shown = [&] {
      QTest::keyClick(fixture.window.get(), Qt::Key_F1);
      auto* manual = fixture.window->findChild<ManualWindow*>();
      const std::string chapter = manual == nullptr ? std::string() : manual->ChapterShown();
      fixture.window->activateWindow();
      return chapter;
    };
    QCOMPARE(shown(), std::string(kFirstChapter));
    fixture.Choose("VETRATURE_1");
    QCOMPARE(shown(), std::string("vetri-e-vetrocamere"));
    fixture.Choose("TIPO_PARETE_DOPPIA_2");
    QCOMPARE(shown(), std::string("pareti-doppie"));
    QCOMPARE(fixture.window->findChildren<ManualWindow*>().size(), 1);
    QVERIFY(fixture.told.isEmpty());
  }

  void f1WorksInAModalWindow() {
    WindowFixture fixture;
    fixture.services.places.manual_text = MANUAL "/manuale.md";
    fixture.MakeWindow();
    fixture.window->show();
    fixture.Choose("TIPO_PARETE_SINGOLA_0");
    std::string chapter;
    QTimer::singleShot(0, fixture.window.get(), [&] {
      QWidget* dialog = QApplication::activeModalWidget();
      QTest::keyClick(dialog->focusWidget() != nullptr ? dialog->focusWidget() : dialog, Qt::Key_F1);
      auto* manual = dialog->findChild<ManualWindow*>();
      if (manual != nullptr) chapter = manual->ChapterShown();
      dialog->close();
    });
    fixture.Find<QAction>("dim_pareti")->trigger();
    QCOMPARE(chapter, std::string("il-primo-calcolo"));
  }

  void aMissingTextIsTold() {
    WindowFixture fixture;
    fixture.services.places.manual_text = "/nessuna/manuale.md";
    fixture.MakeWindow();
    fixture.Find<QAction>("aiuto_qui")->trigger();
    QCOMPARE(fixture.told.size(), 1);
    QVERIFY(fixture.told.constFirst().contains("/nessuna/manuale.md"));
  }
};

}  // namespace velmar::shell

QTEST_MAIN(velmar::shell::ManualWindowTest)
#include "manual_window_test.moc"
