#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QTest>
#include <QTreeWidget>
#include <memory>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "shell/structures/measured_library_window.h"
#include "shell/structures/measurement_editor.h"
#include "shell/structures/store_sources.h"
#include "storage/library/own_measurements.h"
#include "tests/shell/structures/fake_sources.h"
#include "tests/storage/support/databases.h"
#include "tests/storage/support/temporary_folder.h"

namespace velmar::structures {
namespace {

using storage::ReadFile;
using storage::WriteFile;

/// The library window over files, with own measurements beside one shipped series.
class OwnMeasurementsWindowTest : public testing::Test {
 protected:
  OwnMeasurementsWindowTest() {
    std::filesystem::create_directories(library_ / walls_.folder);
    storage::MakeTables(library_ / walls_.folder / "Fornita.mdb", {walls_.table});
    storage::Execute(
        library_ / walls_.folder / "Fornita.mdb",
        {"INSERT INTO Rw_laboratorio (Nome, [Rw (dB)], [R ottava - 125Hz (dB)], [R ottava - 250Hz "
         "(dB)], [R ottava - 500Hz (dB)], [R ottava - 1000Hz (dB)], [R ottava - 2000Hz (dB)], [R "
         "ottava - 4000Hz (dB)]) VALUES ('Ottave', 40, 28, 34, 40, 46, 48, 50), "
         "('Solo indice', 50, NULL, NULL, NULL, NULL, NULL, NULL)"});
    storage::MakeTables(results_, storage::ResultTables());
  }

  MeasuredLibraryWindow& Open(TargetNeeds needs = TargetNeeds::kNothing) {
    MeasuredTarget target;
    target.needs = needs;
    target.take = [this](const calculation::FacadePart& part) { taken_.push_back(part); };
    shell::WindowTools tools = boxes_.Tools();
    tools.boxes.choose_file_to_open = [this](const shell::FileQuestion&) { return file_; };
    tools.boxes.choose_file_to_save = tools.boxes.choose_file_to_open;
    window_ = std::make_unique<MeasuredLibraryWindow>(
        tools,
        MeasuredLibrary({library_, folder_ / "immagine", results_},
                        std::make_shared<storage::AccessSession>(storage::AccessReader{""})),
        target);
    window_->show();
    return *window_;
  }
  MeasurementEditor& Editor() { return *window_->findChild<MeasurementEditor*>(); }
  void Press(QWidget& where, const char* button) {
    QTest::mouseClick(&Child<QPushButton>(where, button), Qt::LeftButton);
  }
  void Type(const char* box, const char* text) { QTest::keyClicks(&Child<QLineEdit>(Editor(), box), text); }
  std::vector<storage::MeasuredTest> Stored() { return storage::OwnMeasurements(library_).All(walls_); }
  void SelectOwn(int row) {
    OpenLibraryFile(*window_, "TreeView1", "Misure proprie");
    SelectTest(*window_, "List1", row);
  }

  /// R of the example in ISO 717-1, annex C: Rw (C; Ctr) = 30 (-2; -3) dB.
  static constexpr const char* kExample =
      "100\t20,4\n125\t16,3\n160\t17,7\n200\t22,6\n250\t22,4\n315\t22,7\n400\t24,8\n500\t26,6\n630\t28,0\n"
      "800\t30,5\n1000\t31,8\n1250\t32,5\n1600\t33,4\n2000\t33,0\n2500\t31,0\n3150\t25,5\n";

  const storage::LibraryFolder walls_ = FolderOf(Branch::kWalls);
  storage::TemporaryFolder folder_;
  std::filesystem::path library_ = folder_ / "Database";
  std::filesystem::path results_ = folder_ / "Database_teorico.mdb";
  shell::FakeBoxes boxes_;
  QString file_;
  std::unique_ptr<MeasuredLibraryWindow> window_;
  std::vector<calculation::FacadePart> taken_;
};

TEST_F(OwnMeasurementsWindowTest, ACertificateIsEnteredByPastingItsBands) {
  Open();
  OpenLibraryFile(*window_, "TreeView1", "Fornita");
  Press(*window_, "CommandNuovaMisura");
  Type("TextNome", "Forati 8 intonacati");
  Type("TextCertificato", "12/2019");
  QApplication::clipboard()->setText(QLatin1String(kExample));
  Press(Editor(), "CommandIncolla");
  EXPECT_EQ(Child<QLineEdit>(Editor(), "TextBanda_4").text(), "16,3");
  EXPECT_EQ(Child<QLabel>(Editor(), "LabelCalcolato").text(), "Dai valori di banda: Rw 30 (-2; -3) dB");
  Type("TextIndice", "31");
  EXPECT_EQ(Child<QLabel>(Editor(), "LabelConfronto").text(),
            "diverso dal certificato: controllare i valori");
  Child<QLineEdit>(Editor(), "TextIndice").clear();
  Type("TextIndice", "30");
  EXPECT_EQ(Child<QLabel>(Editor(), "LabelConfronto").text(), "coincide con il certificato");
  Picture(Editor(), "nuova-misura");
  Press(Editor(), "Command1");
  ASSERT_EQ(Stored().size(), 1U);
  EXPECT_EQ(Stored()[0].rating, 30.0);
  EXPECT_EQ(Stored()[0].certificate, "12/2019");
  EXPECT_EQ(Child<QListView>(*window_, "List1").currentIndex().data().toString(), "Forati 8 intonacati");
  EXPECT_TRUE(boxes_.told.isEmpty());
}

TEST_F(OwnMeasurementsWindowTest, TabGoesDownTheLeftSideAndThenDownTheRight) {
  Open();
  Press(*window_, "CommandNuovaMisura");
  Activate(Editor());
  const QStringList stops = TabStops(Editor());
  std::vector<qsizetype> places;
  for (const char* name : {"TextNome", "TextFonte", "TextArea", "TextIncertezza", "CommandSenza",
                           "CommandIncolla", "TextBanda_0", "TextBanda_20", "TextIndice", "Command1"}) {
    EXPECT_TRUE(stops.contains(QLatin1String(name))) << name << " in " << stops.join(' ').toStdString();
    places.push_back(stops.indexOf(QLatin1String(name)));
  }
  EXPECT_TRUE(std::ranges::is_sorted(places)) << stops.join(' ').toStdString();
}

TEST_F(OwnMeasurementsWindowTest, ATableIsPastedWithAKeyIntoAnyBand) {
  Open();
  Press(*window_, "CommandNuovaMisura");
  QApplication::clipboard()->setText(QLatin1String(kExample));
  auto& box = Child<QLineEdit>(Editor(), "TextBanda_9");
  box.setFocus();
  QTest::keyClick(&box, Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(Child<QLineEdit>(Editor(), "TextBanda_3").text(), "20,4");
  EXPECT_EQ(box.text(), "24,8");
}

TEST_F(OwnMeasurementsWindowTest, DamagedLinesAreNamedAndNothingIsTaken) {
  Open();
  Press(*window_, "CommandNuovaMisura");
  QApplication::clipboard()->setText("100\t20,4\n125\t16,E\n161,9\t17\n200\t22\n");
  Press(Editor(), "CommandIncolla");
  ASSERT_EQ(boxes_.told.size(), 1);
  EXPECT_THAT(boxes_.told[0].toStdString(),
              testing::HasSubstr("Riga 2, «125 16,E»: il livello non è un numero"));
  EXPECT_EQ(Child<QLineEdit>(Editor(), "TextBanda_3").text(), "");
}

TEST_F(OwnMeasurementsWindowTest, ARefusedValueTakesTheFocus) {
  Open(TargetNeeds::kNothing);
  Press(*window_, "CommandNuovaMisura");
  Child<QComboBox>(Editor(), "ComboTipo").setCurrentText("Dati in opera R'w");
  Type("TextNome", "Divisorio");
  for (const char* name :
       {"TextIndice", "TextC", "TextCtr", "TextBanda_0", "TextBanda_20", "TextOttava_0", "TextOttava_7",
        "TextArea", "TextMassa", "TextIncertezza", "TextSpessore", "TextVe", "TextVr"}) {
    boxes_.told.clear();
    auto& box = Child<QLineEdit>(Editor(), name);
    Child<QLineEdit>(Editor(), "TextNome").setFocus();
    box.setText("1..2");
    Press(Editor(), "Command1");
    EXPECT_EQ(boxes_.told.size(), 1) << name;
    EXPECT_EQ(Editor().focusWidget(), &box) << name;
    EXPECT_EQ(box.selectedText(), box.text()) << name;
    box.clear();
  }
  EXPECT_TRUE(storage::OwnMeasurements(library_).All(FolderOf(Branch::kFieldWalls)).empty());
}

TEST_F(OwnMeasurementsWindowTest, WhatIsMissingOrTakenTakesTheFocus) {
  storage::MeasuredTest mine;
  mine.name = "Mia";
  mine.rating = 48;
  storage::OwnMeasurements(library_).Add(walls_, {&mine, 1});
  Open();
  OpenLibraryFile(*window_, "TreeView1", "Fornita");
  Press(*window_, "CommandNuovaMisura");
  Child<QLineEdit>(Editor(), "TextArea").setFocus();
  Press(Editor(), "Command1");
  EXPECT_EQ(Editor().focusWidget()->objectName(), "TextNome") << "it has no name";
  Type("TextNome", "MIA");
  Press(Editor(), "Command1");
  EXPECT_EQ(Editor().focusWidget()->objectName(), "TextBanda_3") << "it has no values";
  Type("TextIndice", "50");
  Press(Editor(), "Command1");
  EXPECT_EQ(boxes_.told.size(), 3);
  EXPECT_EQ(Editor().focusWidget()->objectName(), "TextNome") << "the name is taken";
  EXPECT_EQ(Stored().size(), 1U);
}

TEST_F(OwnMeasurementsWindowTest, ClosingAsksBeforeItThrowsEntriesAway) {
  Open();
  Press(*window_, "CommandNuovaMisura");
  Type("TextNome", "x");
  boxes_.answer = false;
  Press(Editor(), "Command2");
  EXPECT_EQ(boxes_.questions.size(), 1);
  EXPECT_TRUE(Editor().isVisible());
  boxes_.answer = true;
  Press(Editor(), "Command2");
  EXPECT_TRUE(Stored().empty());
}

TEST_F(OwnMeasurementsWindowTest, OnlyOwnMeasurementsAreChangedAndDeletedWithAStepBack) {
  storage::MeasuredTest mine;
  mine.name = "Mia";
  mine.rating = 48;
  mine.rating_origin = "dichiarato";
  mine.index_kind = "Rw";
  mine.bands[3] = 30.25;
  mine.picture = "senza";
  storage::OwnMeasurements(library_).Add(walls_, {&mine, 1});
  Open();
  OpenLibraryFile(*window_, "TreeView1", "Fornita");
  SelectTest(*window_, "List1", 0);
  EXPECT_FALSE(Child<QPushButton>(*window_, "CommandModificaMisura").isEnabled());
  EXPECT_FALSE(Child<QPushButton>(*window_, "CommandEliminaMisura").isEnabled());
  SelectOwn(0);
  Press(*window_, "CommandModificaMisura");
  EXPECT_EQ(Child<QLineEdit>(Editor(), "TextBanda_3").text(), "30,25");
  Child<QLineEdit>(Editor(), "TextIndice").clear();
  Type("TextIndice", "49");
  Press(Editor(), "Command1");
  EXPECT_EQ(Stored()[0].rating, 49.0);
  SelectOwn(0);
  const storage::MeasuredTest before = Stored()[0];
  Press(*window_, "CommandEliminaMisura");
  EXPECT_TRUE(Stored().empty());
  Press(*window_, "CommandAnnullaElimina");
  EXPECT_EQ(Stored(), std::vector<storage::MeasuredTest>{before});
  EXPECT_TRUE(boxes_.told.isEmpty());
}

TEST_F(OwnMeasurementsWindowTest, MeasurementsAreImportedAndExported) {
  file_ = QString::fromStdString((folder_ / "Parete 7.txt").string());
  WriteFile(folder_ / "Parete 7.txt", kExample);
  Open();
  OpenLibraryFile(*window_, "TreeView1", "Fornita");
  Press(*window_, "CommandImporta");
  ASSERT_EQ(Stored().size(), 1U);
  EXPECT_EQ(Stored()[0].name, "Parete 7");
  file_ = QString::fromStdString((folder_ / "fuori.csv").string());
  SelectOwn(0);
  Press(*window_, "CommandEsporta");
  EXPECT_THAT(ReadFile(folder_ / "fuori.csv"), testing::HasSubstr("Parete 7"));
  WriteFile(folder_ / "fuori.csv", "Nome,Rw (dB)\nbuona,50\nmala,x\n");
  Press(*window_, "CommandImporta");
  ASSERT_EQ(boxes_.told.size(), 1);
  EXPECT_THAT(boxes_.told[0].toStdString(), testing::HasSubstr("«mala»"));
  EXPECT_EQ(Stored().size(), 1U);
}

TEST_F(OwnMeasurementsWindowTest, AKindWithoutSourceOffersANewMeasurement) {
  Open();
  auto& tree = Child<QTreeWidget>(*window_, "TreeView1");
  const auto found =
      tree.findItems("nessuna fonte pubblica: Nuova misura…", Qt::MatchExactly | Qt::MatchRecursive);
  ASSERT_FALSE(found.isEmpty());
  QTest::mouseClick(tree.viewport(), Qt::LeftButton, {}, tree.visualItemRect(found.last()).center());
  EXPECT_EQ(Editor().Kind(), Branch::kFieldWalls);
}

TEST_F(OwnMeasurementsWindowTest, TheListIsFilteredByWhatATestServesFor) {
  Open();
  OpenLibraryFile(*window_, "TreeView1", "Fornita");
  auto& list = Child<QListView>(*window_, "List1");
  auto& uses = Child<QComboBox>(*window_, "List1_uso");
  EXPECT_EQ(list.model()->rowCount(), 2);
  uses.setCurrentIndex(1);  // in a facade by bands
  EXPECT_EQ(list.model()->rowCount(), 0);
  uses.setCurrentIndex(2);  // by the rating alone
  EXPECT_EQ(list.model()->rowCount(), 2);
  uses.setCurrentIndex(3);  // in the comparison
  EXPECT_EQ(list.model()->rowCount(), 1);
}

TEST_F(OwnMeasurementsWindowTest, AFacadeByBandsIsOfferedTheThirdsOfOctaves) {
  Open(TargetNeeds::kThirds);
  OpenLibraryFile(*window_, "TreeView1", "Fornita");
  SelectTest(*window_, "List1", 0);
  Picture(*window_, "libreria-ottave");
  boxes_.answer = false;
  Press(*window_, "Command1");
  EXPECT_TRUE(taken_.empty());
  boxes_.answer = true;
  Press(*window_, "Command1");
  ASSERT_EQ(taken_.size(), 1U);
  EXPECT_EQ(taken_[0].bands_db[3], 28.0);   // 100 Hz
  EXPECT_EQ(taken_[0].bands_db[18], 50.0);  // 3150 Hz
  EXPECT_THAT(taken_[0].description, testing::HasSubstr("terzi d'ottava ricavati dalle ottave"));
  EXPECT_EQ(boxes_.questions.size(), 2);
}

TEST_F(OwnMeasurementsWindowTest, ARatingAloneIsHandedOverAfterAQuestion) {
  Open(TargetNeeds::kThirds);
  OpenLibraryFile(*window_, "TreeView1", "Fornita");
  SelectTest(*window_, "List1", 1);
  Press(*window_, "Command1");
  ASSERT_EQ(taken_.size(), 1U);
  EXPECT_EQ(taken_[0].rating_db, 50.0);
  EXPECT_EQ(taken_[0].bands_db[10], std::nullopt);
  EXPECT_EQ(boxes_.questions.size(), 1);
}

}  // namespace
}  // namespace velmar::structures
