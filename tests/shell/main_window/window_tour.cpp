// window_tour FOLDER WIDTH HEIGHT light|dark [NAME]: every page of every kind of element as a picture, to be
// looked at; with NAME only the stations whose name begins so.
#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QLineEdit>
#include <QMenu>
#include <QPixmap>
#include <QTabWidget>
#include <QTest>

#include "calculation/edits/layer_edits.h"
#include "shell/commands/about_box.h"
#include "shell/main_window/kind_card.h"
#include "shell/project/dimension_dialog.h"
#include "shell/project/project_information_dialog.h"
#include "tests/shell/support/window_looks.h"

namespace velmar::shell {
namespace {

/// An element of the tour: an example, shown with each of its tabs.
struct Station {
  const char* name = "";
  const char* example = "";
  int cavity_types = 0;  ///< how many types of SEA cavity are shown one after the other
};

constexpr std::array kStations = {
    Station{"singola", "parete-forato-intonacata"},
    Station{"vetro", "vetro-stratificato"},
    Station{"solaio-nudo", "solaio-laterocemento"},
    Station{"sea-singola", "sea-laterizio-singola"},
    Station{"doppia", "doppia-forati-lana"},
    Station{"doppia-generica", "doppia-generica-tre-lastre"},
    Station{"torvalle", "doppia-forati-torvalle"},
    Station{"leggera", "leggera-linea-punto"},
    Station{"vetrocamera", "vetrocamera-due-stratificate"},
    Station{"sea-doppia", "sea-laterizio-doppia", elements::kSeaCavityTypeCount},
    Station{"sea-punti", "sea-cartongesso-puntuale"},
    Station{"sea-linee", "sea-cartongesso-lineare"},
    Station{"pavimento", "solaio-galleggiante-aereo"},
    Station{"calpestio", "calpestio-galleggiante"},
    Station{"calpestio-nudo", "calpestio-laterocemento-nudo"},
    Station{"facciata", "facciata"},
    Station{"facciata-nove", "facciata-nove-componenti"},
    Station{"facciata-semplice", "facciata-semplificata"},
    Station{"contro", "controplaccaggio-calibel", 2},
    Station{"contro-ossatura", "controplaccaggio-ossatura"},
    Station{"contro-generico", "controplaccaggio-generico"},
    Station{"soffitto", "controsoffitto-pendini-a-molla"},
    Station{"soffitto-generico", "controsoffitto-generico"},
};

class Tour {
 public:
  explicit Tour(QDir folder, QSize size) : folder_(std::move(folder)) {
    fixture_.go_on = true;
    fixture_.save = false;
    fixture_.services.places.examples = EXAMPLES;
    fixture_.services.places.settings = folder_.filePath("finestra.ini").toStdString();
    fixture_.MakeWindow();
    fixture_.window->resize(size);
    fixture_.window->show();
  }

  void Visit(const Station& station) {
    fixture_.window->OpenProject(QString("%1/%2.drav").arg(EXAMPLES, station.example).toStdString());
    fixture_.Run();
    auto* tabs = fixture_.Find<QTabWidget>("SSTab1");
    for (int tab = 0; tab < tabs->count(); ++tab) {
      if (!tabs->isTabVisible(tab)) continue;
      tabs->setCurrentIndex(tab);
      Take(*fixture_.window, QString("%1-%2").arg(station.name).arg(tab));
    }
    for (int type = 0; type < station.cavity_types; ++type) {
      fixture_.open.Edit([type](elements::Setup& setup) {
        calculation::ChooseSeaCavityType(setup, static_cast<elements::SeaCavityType>(type));
      });
      fixture_.Run();
      Take(*fixture_.window, QString("%1-intercapedine-%2").arg(station.name).arg(type));
    }
  }

  void VisitStart() {
    Take(*fixture_.window, "inizio");
    for (const int button : {17, 18, 19}) {
      QMenu* menu = fixture_.Find<KindCard>("Inizio_" + QString::number(button))->Calculations();
      menu->popup(fixture_.window->mapToGlobal(QPoint(100, 100)));
      Take(*menu, "menu-" + QString::number(button));
      menu->close();
    }
    fixture_.Find<KindCard>("Inizio_19")->click();
    fixture_.Run();
    Take(*fixture_.window, "nuovo-solaio");
  }

  void VisitNotes() {
    fixture_.Choose("TIPO_PARETE_DOPPIA_4");
    fixture_.Run();
    fixture_.told.clear();
    Take(*fixture_.window, "nota-rifiuto");
    fixture_.Choose("TIPO_PARETE_SINGOLA_0");
    auto* count = fixture_.Find<QComboBox>("Combo1");
    count->setFocus();
    count->lineEdit()->selectAll();
    QTest::keyClicks(count, "3");
    fixture_.Type("Text5_0", "0");
    QTest::keyClick(fixture_.Find<QLineEdit>("Text5_0"), Qt::Key_Return);
    Take(*fixture_.window, "nota-spessore");
  }

  /// A thickness is stepped with the continuous calculation on, under a required rating.
  void VisitContinuous() {
    fixture_.window->OpenProject(std::string(EXAMPLES) + "/doppia-forati-lana.drav");
    fixture_.Find<QAction>("calcolo_continuo")->setChecked(true);
    fixture_.Type("TextRequisito", "53");
    fixture_.Find<QWidget>("Text5_1")->setFocus();
    for (int step = 0; step < 4; ++step)
      QTest::keyClick(fixture_.Find<QWidget>("Text5_1"), Qt::Key_Up, Qt::ControlModifier);
    Take(*fixture_.window, "continuo");
    auto* chart = fixture_.Find<QWidget>("Picture1");
    chart->setFocus();
    for (const Qt::Key key : {Qt::Key_Right, Qt::Key_Plus, Qt::Key_Plus, Qt::Key_Plus, Qt::Key_Plus})
      QTest::keyClick(chart, key);
    Take(*fixture_.window, "continuo-da-vicino");
    QTest::keyClick(chart, Qt::Key_0);
    fixture_.window->OpenProject(std::string(EXAMPLES) + "/parete-fuori-campo.drav");
    Take(*fixture_.window, "continuo-domanda");
    fixture_.window->OpenProject(std::string(EXAMPLES) + "/calpestio-galleggiante.drav");
    fixture_.Type("TextRequisito", "50");
    Take(*fixture_.window, "continuo-calpestio");
    fixture_.Find<QAction>("calcolo_continuo")->setChecked(false);
  }

  void VisitDialogs() {
    const auto& words = fixture_.services.words;
    Show(DimensionDialog(fixture_.open, words), "dimensioni");
    Show(ProjectInformationDialog(fixture_.open, words), "informazioni");
    Show(AboutBox(words, fixture_.services.version, "https://example.org"), "informazioni-su");
    fixture_.Choose("TIPO_PARETE_SINGOLA_0");
    fixture_.Run();
    fixture_.Choose("tab_risultati");
    Take(*fixture_.window, "tabella");
  }

 private:
  void Show(QDialog&& dialog, const QString& name) {
    dialog.show();
    Take(dialog, name);
  }

  void Take(QWidget& widget, const QString& name) {
    for (int i = 0; i < 5; ++i) QApplication::processEvents();
    for (const QString& text : fixture_.told) qWarning("%s: %s", qPrintable(name), qPrintable(text));
    fixture_.told.clear();
    if (!widget.grab().save(folder_.filePath(name + ".png"))) qFatal("%s cannot be saved", qPrintable(name));
  }

  QDir folder_;
  WindowFixture fixture_;
};

}  // namespace
}  // namespace velmar::shell

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  const QStringList arguments = QApplication::arguments();
  if (arguments.size() < 5) return 2;
  velmar::shell::SetLooks(arguments.at(4) == "dark");
  const QString only = arguments.value(5);
  velmar::shell::Tour tour(QDir(arguments.at(1)), {arguments.at(2).toInt(), arguments.at(3).toInt()});
  if (only.isEmpty() || only == "inizio") tour.VisitStart();
  for (const velmar::shell::Station& station : velmar::shell::kStations) {
    if (QString(station.name).startsWith(only)) tour.Visit(station);
  }
  if (only.isEmpty() || only == "note") tour.VisitNotes();
  if (only.isEmpty() || only == "continuo") tour.VisitContinuous();
  if (only.isEmpty() || only == "dialoghi") tour.VisitDialogs();
  return 0;
}
