#include "shell/commands/paper_commands.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QContextMenuEvent>
#include <QMenu>
#include <QPainter>
#include <QPrinter>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include "cli/commands/project_run.h"
#include "documents/office_reports.h"
#include "shell/printing/print_preview.h"
#include "tests/presentation/drawing/recording_device.h"
#include "tests/shell/support/window_fixture.h"

namespace velmar::shell {
namespace {

const QSizeF kPaper(8.27, 11.69);
constexpr double kDotsPerInch = 150.0;
constexpr const char* kCannotPrint = "Impossibile stampare con la stampante selezionata.";

struct Drawn {
  QStringList texts{};
  std::vector<QRectF> shapes{};

  bool operator==(const Drawn&) const = default;
};

Drawn DrawnOf(const presentation::PaginaDiStampa& page) {
  presentation::RecordingDevice device((kPaper * kDotsPerInch).toSize());
  QPainter painter(&device);
  presentation::ComponiPagina(painter, kDotsPerInch, kPaper, page);
  painter.end();
  Drawn drawn{.shapes = device.Shapes()};
  for (const presentation::RecordedText& text : device.Texts()) drawn.texts << text.text;
  return drawn;
}

/// A main window with an example that was run, and boxes that answer.
struct Program {
  explicit Program(const QString& example = "parete-forato-intonacata") {
    fixture.services.paper_commands = &commands;
    project_file = example.toStdString() + ".drav";
    fixture.MakeWindow();
    fixture.window->OpenProject((QString(EXAMPLES) + '/' + example + ".drav").toStdString());
    fixture.Run();
  }

  printing::PrintingBoxes Boxes() {
    return {
        .ask_to_print =
            [this](QWidget*, QPrinter& printer) {
              ++print_questions;
              printer.setOutputFormat(QPrinter::PdfFormat);
              printer.setOutputFileName(print_file);
              return !print_file.isEmpty();
            },
        .choose_pdf = [this](
                          QWidget*,
                          const QString&) { return std::optional<std::filesystem::path>(pdf.toStdString()); },
        .choose_printer =
            [this](QWidget*, const printing::PrinterChoice& choice) {
              ++printer_questions;
              if (!choice.select("Plotter")) choice.tell_failure(kCannotPrint);
            },
        .tell_written = [this](QWidget*, const QString& text, const std::filesystem::path&) { told << text; },
        .tell_failure = [this](QWidget*, const QString& text) { told << text; }};
  }

  presentation::PaginaDiStampa Page() const {
    return DocumentOf(fixture.open,
                      {.style = {.words = fixture.services.words}, .project_file = project_file},
                      fixture.Results().Chart(), {}, {})
        .page;
  }

  /// As the comparison window does while it is open.
  void Compare(double level_db, const std::string& name) {
    fixture.overlay.lay_over = [=](presentation::CurveChart& chart) {
      chart.laboratory.emplace().fill(level_db);
      chart.laboratory_name = name;
    };
    fixture.open.MarkSaved();
  }

  void TickAutoscale() const { fixture.Find<QCheckBox>("Check3")->click(); }

  DocumentServices documents{};
  PaperCommands commands{Boxes(), documents};
  WindowFixture fixture;
  QString print_file;
  QString pdf;
  std::string project_file;
  QStringList told;
  int print_questions = 0;
  int printer_questions = 0;
};

}  // namespace

class PaperCommandsTest : public QObject {
  Q_OBJECT

 private slots:
  void thePageTellsTheCurvesThatAreCompared() {
    Program program;
    program.fixture.window->OpenProject(EXAMPLES "/parete-forato-intonacata.drav");
    program.fixture.Run();
    const std::size_t without = program.Page().data.tables.size();
    program.fixture.overlay.lay_over = [](presentation::CurveChart& chart) {
      presentation::ComparedCurve wall{.name = "Prova", .symbol = "Rw", .rating = 48.0};
      wall.levels.fill(45.3);
      chart.comparison.curves = {{.name = "Curva teorica", .levels = chart.values}, wall};
    };
    program.fixture.open.MarkSaved();
    const auto data = program.Page().data;
    QCOMPARE(data.tables.size(), without + 2);
    QCOMPARE(data.tables[without].rows[1][1], std::string("Prova"));
    QCOMPARE(data.tables[without].rows[1][2], std::string("48"));
  }

  void thePageIsThatOfTheCommandLine_data() {
    QTest::addColumn<QString>("example");
    for (const char* example : {"parete-forato-intonacata", "sea-laterizio-doppia",
                                "facciata-nove-componenti", "facciata-semplificata", "calpestio-galleggiante",
                                "controsoffitto-pendini-a-molla", "controplaccaggio-generico", "vetro-6"})
      QTest::newRow(example) << QString(example);
  }
  void thePageIsThatOfTheCommandLine() {
    QFETCH(const QString, example);
    const Program program(example);
    const cli::ProjectRun run =
        cli::RunProject((QString(EXAMPLES) + '/' + example + ".drav").toStdString(),
                        program.fixture.services.materials, /*go_on_outside_ranges=*/true);
    const presentation::Words& words = program.fixture.services.words;
    const presentation::PaginaDiStampa told = documents::PageOf({.name = {},
                                                                 .setup = run.setup,
                                                                 .result = run.outcome.result.value(),
                                                                 .totals = run.totals,
                                                                 .words = words,
                                                                 .file = example.toStdString() + ".drav"},
                                                                {.words = words});
    const Drawn page = DrawnOf(told);
    // With its origin: the project's file and fingerprint.
    QVERIFY(std::ranges::any_of(
        told.data.fields, [](const presentation::DataField& field) { return field.value.size() == 64; }));
    QCOMPARE(told.foot.left, program.Page().foot.left);
    QVERIFY(page.texts.size() > 20);
    QCOMPARE(DrawnOf(program.Page()).texts, page.texts);
    QVERIFY(DrawnOf(program.Page()) == page);
  }

  void thePageKeepsTheScaleOfTheScreen() {
    const Program program;
    const QStringList fixed = DrawnOf(program.Page()).texts;
    for (const char* level : {"10", "20", "30", "40", "50", "60", "70", "80"}) QVERIFY(fixed.contains(level));
    program.TickAutoscale();
    QVERIFY(program.Page().chart->autoscale);
    QVERIFY(DrawnOf(program.Page()).texts != fixed);
    program.TickAutoscale();
    QCOMPARE(DrawnOf(program.Page()).texts, fixed);
  }

  void aCurveThatLeavesTheScaleIsPrintedWhole() {
    const Program program("controsoffitto-pendini-a-molla");
    const presentation::PaginaDiStampa page = program.Page();
    QVERIFY(page.chart->values[15] > 90.0);
    QVERIFY(!program.fixture.Find<QCheckBox>("Check3")->isChecked());
    QVERIFY(page.chart->autoscale);
  }

  void aComparedCurveStandsOnThePageWithItsName() {
    Program program;
    QVERIFY(!DrawnOf(program.Page()).texts.contains("Dati di lab."));
    const std::size_t shapes = DrawnOf(program.Page()).shapes.size();
    program.Compare(45.0, "Parete P7, Ente di prova");
    const Drawn drawn = DrawnOf(program.Page());
    QVERIFY(drawn.texts.contains("Dati di lab."));
    QVERIFY(drawn.texts.join(' ').contains("Parete P7, Ente di prova"));
    QVERIFY(drawn.shapes.size() > shapes + 20);
    QVERIFY(!program.Page().chart->autoscale);
    program.Compare(95.0, "Parete alta");
    QVERIFY(program.Page().chart->autoscale);
  }

  void thePageKeepsWhatTheScreenWasLastDrawnWith() {
    Program program;
    program.Compare(45.0, "Parete P7");
    program.fixture.overlay.lay_over = {};
    QVERIFY(DrawnOf(program.Page()).texts.contains("Dati di lab."));
    program.TickAutoscale();
    QVERIFY(!DrawnOf(program.Page()).texts.contains("Dati di lab."));
  }

  void theChartIsSavedAsAPictureWholeOrNotAtAll_data() {
    QTest::addColumn<int>("entry");
    QTest::addColumn<QString>("ending");
    QTest::addColumn<QByteArray>("begin");
    QTest::newRow("PNG") << 2 << ".png" << QByteArray("\x89PNG");
    QTest::newRow("SVG") << 3 << ".svg" << QByteArray("<?xml");
  }
  void theChartIsSavedAsAPictureWholeOrNotAtAll() {
    QFETCH(const int, entry);
    QFETCH(const QString, ending);
    QFETCH(const QByteArray, begin);
    Program program;
    const QTemporaryDir folder;
    program.fixture.file = folder.filePath("grafico");
    const auto save = [&] {
      auto* chart = program.fixture.Find<QWidget>("Picture1");
      QContextMenuEvent event(QContextMenuEvent::Mouse, {20, 20}, {20, 20});
      QApplication::sendEvent(chart, &event);
      auto* menu = chart->findChildren<QMenu*>().last();
      menu->actions().at(entry)->trigger();
      delete menu;
    };
    save();
    QFile file(program.fixture.file + ending);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QVERIFY(file.readAll().startsWith(begin));
    QVERIFY(program.fixture.told.isEmpty());
    program.fixture.file = "/no/such/folder/grafico";
    save();
    QCOMPARE(program.fixture.told.size(), 1);
  }

  void withoutAResultThePageShowsTheSetUp() {
    Program program;
    program.fixture.open.DropResult();
    QVERIFY(!program.Page().chart);
    QVERIFY(!program.Page().structure.empty());
  }

  void printingAsksAndACancelLeavesNoTrace() {
    Program program;
    program.fixture.Find<QAction>("stampa")->trigger();
    QCOMPARE(program.print_questions, 1);
    QVERIFY(program.told.isEmpty());
    const QTemporaryDir folder;
    program.print_file = folder.filePath("pagina.pdf");
    program.fixture.Find<QAction>("stampa")->trigger();
    QVERIFY(QFile::exists(program.print_file));
    program.print_file = "/no/such/folder/pagina.pdf";
    program.fixture.Find<QAction>("stampa")->trigger();
    QCOMPARE(program.told, QStringList(kCannotPrint));
  }

  void aPrinterIsChosenFromTheMenuAndOneThatIsGoneIsTold() {
    Program program;
    program.fixture.Find<QAction>("Scegli_stampante")->trigger();
    QCOMPARE(program.printer_questions, 1);
    QCOMPARE(program.told, QStringList(kCannotPrint));
  }

  void thePreviewOpensAndWorksByKeys() {
    Program program;
    const QTemporaryDir folder;
    program.pdf = folder.filePath("pagina.pdf");
    bool closed = false;
    QTimer::singleShot(0, [&] {
      auto* preview = dynamic_cast<printing::PrintPreview*>(QApplication::activeModalWidget());
      QVERIFY(preview != nullptr && QTest::qWaitForWindowActive(preview));
      QTest::keyClick(preview, Qt::Key_S, Qt::ControlModifier);
      QTest::keyClick(preview, Qt::Key_P, Qt::ControlModifier);
      QTest::keyClick(preview, Qt::Key_P, Qt::ControlModifier | Qt::ShiftModifier);
      QTest::keyClick(preview, Qt::Key_Escape);
      closed = !preview->isVisible();
    });
    program.fixture.Find<QAction>("Anteprima_stampa")->trigger();
    QVERIFY(closed);
    QVERIFY(QFile::exists(program.pdf));
    QCOMPARE(program.print_questions, 1);
    QCOMPARE(program.printer_questions, 1);
    QCOMPARE(program.told, QStringList({"Il documento è stato salvato.", kCannotPrint}));
  }
};

}  // namespace velmar::shell

QTEST_MAIN(velmar::shell::PaperCommandsTest)
#include "paper_commands_test.moc"
