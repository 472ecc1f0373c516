// structure_pictures FOLDER light|dark: the windows on stored and measured structures with the shipped data,
// as pictures of the manual.
#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QDialog>
#include <QDir>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTabWidget>
#include <QTest>
#include <QToolButton>
#include <clocale>

#include "tests/shell/support/stores_program.h"
#include "tests/shell/support/window_looks.h"

namespace velmar::shell {
namespace {

constexpr const char* kMeasuredWalls = "Pareti in lastre su orditura - terzi d'ottava";
constexpr const char* kMeasuredWindows = "Vetrate - indici dichiarati";
constexpr QSize kScreen{1366, 768};

void Settle() {
  for (int i = 0; i < 5; ++i) QApplication::processEvents();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

class Album {
 public:
  explicit Album(const QString& folder) : folder_(folder) {
    // An own measurement is saved on the way.
    program_.CopyLibrary();
    program_.fixture.window->resize(kScreen);
  }

  void Make() {
    StoreWalls();
    Results();
    Library();
    Comparison();
    Facade();
    for (const QString& text : program_.fixture.told) qWarning("%s", qPrintable(text));
  }

 private:
  void Save(QWidget& window, const char* name) const {
    Settle();
    window.grab().save(QDir(folder_).filePath(QString(name) + ".png"));
    if (window.width() > kScreen.width() || window.height() > kScreen.height())
      qWarning("%s is larger than the screen: %d x %d", name, window.width(), window.height());
  }
  QDialog& Dialog(const char* name) const { return *program_.fixture.Find<QDialog>(name); }

  void StoreWalls() {
    const std::pair<const char*, const char*> walls[] = {
        {"doppia-forati-lana", "Parete esterna, forati e lana"},
        {"parete-forato-intonacata", "Tramezzo in forati"},
        {"sea-laterizio-doppia", "Divisorio in laterizio SEA"},
        {"vetrocamera-4-12-4", "Vetrocamera 4-12-4"},
        {"calpestio-galleggiante", "Solaio con massetto galleggiante"}};
    for (const auto& [project, name] : walls) {
      program_.fixture.window->OpenProject(std::string(EXAMPLES "/") + project + ".drav");
      program_.fixture.Run();
      program_.name = name;
      program_.fixture.Find<QAction>("Salva")->trigger();
    }
  }

  void Results() {
    program_.fixture.Find<QAction>("DB_risultati")->trigger();
    Save(Dialog("Form7"), "risultati");
    Dialog("Form7").close();
    Settle();
  }

  void Library() {
    program_.fixture.Find<QAction>("Dati_Rw")->trigger();
    StoresProgram::OpenEntry(
        Dialog("Form9"), "TreeView1", kMeasuredWalls, "List1",
        "Parete su montanti in legno, cartongesso 13 mm sui due lati, fibra di cellulosa 90 mm");
    Save(Dialog("Form9"), "libreria");
    OwnMeasurement();
    Dialog("Form9").findChild<QPushButton*>("Command2")->click();
    Save(Dialog("Form10"), "informazioni-aggiuntive");
    Dialog("Form10").close();
    Dialog("Form9").close();
    Settle();
    program_.fixture.Find<QAction>("Dati_Lnw")->trigger();
    StoresProgram::OpenEntry(Dialog("Form9"), "TreeView1", "Solai - terzi d'ottava", "List1",
                             "Soletta in calcestruzzo armato 160 mm, laminato su sottopavimento in EPS");
    Save(Dialog("Form9"), "libreria-calpestio");
    Dialog("Form9").close();
    Settle();
  }

  /// The example of ISO 717-1, annex C, entered by its bands.
  void OwnMeasurement() {
    Dialog("Form9").findChild<QPushButton*>("CommandNuovaMisura")->click();
    QDialog& editor = Dialog("FormMisura");
    const std::pair<const char*, const char*> texts[] = {{"TextNome", "Esempio della norma"},
                                                         {"TextFonte", "UNI EN ISO 717-1, appendice C"},
                                                         {"TextIndice", "30"}};
    for (const auto& [box, text] : texts) editor.findChild<QLineEdit*>(box)->setText(text);
    QApplication::clipboard()->setText(
        "100\t20,4\n125\t16,3\n160\t17,7\n200\t22,6\n250\t22,4\n315\t22,7\n400\t24,8\n500\t26,6\n630\t28,0\n"
        "800\t30,5\n1000\t31,8\n1250\t32,5\n1600\t33,4\n2000\t33,0\n2500\t31,0\n3150\t25,5\n");
    editor.findChild<QPushButton*>("CommandIncolla")->click();
    Save(editor, "nuova-misura");
    editor.findChild<QPushButton*>("Command1")->click();
    Settle();
  }

  /// A calculated wall beside a variant of it, a measured wall and two stored results.
  void Comparison() {
    const WindowFixture& fixture = program_.fixture;
    fixture.window->OpenProject(EXAMPLES "/cartongesso-lastra-singola.drav");
    program_.fixture.Run();
    fixture.Find<QToolButton>("FissaVariante")->click();
    fixture.Type("Text5_0", "25");
    program_.fixture.Run();
    fixture.Find<QAction>("confronta_risultati")->trigger();
    const auto add = [this](const char* file, const char* name) {
      StoresProgram::OpenEntry(Dialog("Form8"), "TreeView1", file, "List1", name);
      Dialog("Form8").findChild<QPushButton*>("ConfrontoAggiungi_0")->click();
    };
    add("Database_teorico", "Tramezzo in forati");
    add("Database_teorico", "Vetrocamera 4-12-4");
    add(kMeasuredWalls,
        "Parete su montanti in legno, cartongesso 13 mm sui due lati, fibra di cellulosa 90 mm");
    Dialog("Form8").findChild<QListWidget*>("List3")->setCurrentRow(0);
    Dialog("Form8").findChild<QPushButton*>("ConfrontoAggiungi_2")->click();
    auto* from = Dialog("Form8").findChild<QComboBox*>("ConfrontoRispetto");
    from->setCurrentIndex(1);
    emit from->activated(1);
    Save(Dialog("Form8"), "confronto");
    Save(*fixture.window, "confronto-curve");
    Dialog("Form8").close();
    Settle();
  }

  void Facade() {
    WindowFixture& fixture = program_.fixture;
    // Without the variant of the wall before.
    fixture.save = false;
    fixture.window->OpenProject(EXAMPLES "/cartongesso-lastra-singola.drav");
    fixture.Choose("cal_facciata");
    fixture.open.Edit([](elements::Setup& setup) {
      setup.base.area_text = "14,4";
      setup.facade.count_text = "2";
      setup.facade.simplified = true;
    });
    fixture.Find<QAbstractButton>("Command3")->click();
    QTest::mouseClick(fixture.Find<QPushButton>("Seleziona"), Qt::LeftButton);
    Settle();
    const char* windows[] = {"Vetrocamera 6 / 12 / 10 mm", "Vetrocamera 4 / 20 / 4 mm"};
    for (int i = 0; i < 2; ++i) {
      fixture.Find<QAbstractButton>(QStringLiteral("Command12_%1").arg(i + 1))->click();
      StoresProgram::OpenEntry(Dialog("Form9"), "TreeView1", kMeasuredWindows, "List1", windows[i]);
      if (i == 1) Save(Dialog("Form9"), "libreria-componente");
      QTest::mouseClick(Dialog("Form9").findChild<QPushButton*>("Command1"), Qt::LeftButton);
      Settle();
    }
    fixture.open.Edit([](elements::Setup& setup) {
      setup.facade.components[0].area_text = "2,1";
      setup.facade.components[1].area_text = "1,8";
    });
    fixture.Run();
    fixture.Find<QTabWidget>("SSTab1")->setCurrentIndex(5);
    Save(*fixture.window, "facciata-da-archivi");
  }

  QString folder_;
  StoresProgram program_;
};

}  // namespace

void MakePictures(const QString& folder, bool dark) {
  SetLooks(dark);
  Album(folder).Make();
}

}  // namespace velmar::shell

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  std::setlocale(LC_NUMERIC, "C");
  const QStringList arguments = QApplication::arguments();
  if (arguments.size() < 3) return 2;
  velmar::shell::MakePictures(arguments.at(1), arguments.at(2) == "dark");
  return 0;
}
