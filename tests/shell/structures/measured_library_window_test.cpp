#include "shell/structures/measured_library_window.h"

#include <QComboBox>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>
#include <QTreeWidget>
#include <memory>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "calculation/runs/run.h"
#include "elements/catalogue.h"
#include "shell/fields/field_note.h"
#include "shell/structures/saved_results_window.h"
#include "shell/structures/test_details.h"
#include "tests/shell/structures/fake_sources.h"

namespace velmar::structures {
namespace {

class MeasuredLibraryWindowTest : public testing::Test {
 protected:
  MeasuredLibraryWindow& Open(int component) {
    MeasuredTarget target;
    target.purpose = component > 0 ? LibraryPurpose::kComponents : LibraryPurpose::kOpaquePart;
    target.component = component;
    target.take = [this](const calculation::FacadePart& part) { taken_.push_back(part); };
    window_ = std::make_unique<MeasuredLibraryWindow>(boxes_.Tools(), library_.Source(), target);
    window_->show();
    return *window_;
  }
  MeasuredLibraryWindow& OpenFor(LibraryPurpose purpose) {
    window_ = std::make_unique<MeasuredLibraryWindow>(boxes_.Tools(), library_.Source(),
                                                      MeasuredTarget{.purpose = purpose});
    window_->show();
    return *window_;
  }
  MeasuredLibraryWindow& OpenAt(int component, const QString& file, int row) {
    Open(component);
    OpenLibraryFile(*window_, "TreeView1", file);
    SelectTest(*window_, "List1", row);
    return *window_;
  }
  QString Box(const char* name) { return Child<QLineEdit>(*window_, name).text(); }
  void Press(const char* button) { QTest::mouseClick(&Child<QPushButton>(*window_, button), Qt::LeftButton); }
  QStringList Nodes() {
    QStringList captions;
    const QTreeWidgetItem* root = Child<QTreeWidget>(*window_, "TreeView1").topLevelItem(0);
    for (int i = 0; i < root->childCount(); ++i) captions << root->child(i)->text(0);
    return captions;
  }

  FakeBoxes boxes_;
  FakeLibrary library_ = SmallLibrary();
  std::unique_ptr<MeasuredLibraryWindow> window_;
  std::vector<calculation::FacadePart> taken_;
};

TEST_F(MeasuredLibraryWindowTest, TheTreeFollowsWhatIsChosenFor) {
  Open(0);
  EXPECT_EQ(Child<QTreeWidget>(*window_, "TreeView1").topLevelItem(0)->text(0), "Personalizzato");
  EXPECT_EQ(Nodes(), (QStringList{"Dati standard Rw", "Dati calcolati", "Dati in opera"}));
  EXPECT_EQ(window_->windowTitle(), "parte opaca: Database sperimentale");
  Open(3);
  EXPECT_EQ(Nodes(), (QStringList{"Infissi", "Piccoli elementi", "Dati calcolati", "Dati in opera"}));
  EXPECT_EQ(window_->windowTitle(), "componente 3: Database sperimentale");
}

TEST_F(MeasuredLibraryWindowTest, TheMenuShowsAllAirborneOrAllImpactDataToLookAt) {
  OpenFor(LibraryPurpose::kAirborneData);
  EXPECT_EQ(Nodes(), (QStringList{"Dati standard Rw", "Dati standard DRw", "Infissi", "Piccoli elementi",
                                  "Dati calcolati", "Dati in opera"}));
  EXPECT_EQ(window_->windowTitle(), "Database sperimentale - Dati di Rw");
  EXPECT_FALSE(Child<QPushButton>(*window_, "Command1").isVisible());
  OpenFor(LibraryPurpose::kImpactData);
  EXPECT_EQ(Nodes(),
            (QStringList{"Dati standard Lnw", "Dati standard DLw", "Dati calcolati", "Dati in opera"}));
  EXPECT_EQ(window_->windowTitle(), "Database sperimentale - Dati di Lnw");
}

struct SymbolCase {
  const char* name;
  Branch branch;
  LibraryPurpose purpose;
  const char* label;
  const char* bands;
  bool two_terms;
};
class LibrarySymbolTest : public MeasuredLibraryWindowTest, public testing::WithParamInterface<SymbolCase> {};

TEST_P(LibrarySymbolTest, NumbersAreCalledAsTheirTableCallsThem) {
  library_.files[GetParam().branch] = {"Serie"};
  library_.tests["Serie"] = {TestOf("Prova", 30)};
  OpenFor(GetParam().purpose);
  OpenLibraryFile(*window_, "TreeView1", "Serie");
  EXPECT_EQ(Child<QLabel>(*window_, "LabelBande").text(), GetParam().bands);
  SelectTest(*window_, "List1", 0);
  EXPECT_EQ(Child<QLabel>(*window_, "Label3").text(), GetParam().label);
  EXPECT_EQ(Child<QLineEdit>(*window_, "Text6").isVisible(), GetParam().two_terms);
}

INSTANTIATE_TEST_SUITE_P(
    Branches, LibrarySymbolTest,
    testing::Values(SymbolCase{"Walls", Branch::kWalls, LibraryPurpose::kAirborneData,
                               "Rw(C,Ctr)= 45(-1, -5) dB", "Ri [dB]", true},
                    SymbolCase{"Linings", Branch::kLinings, LibraryPurpose::kAirborneData,
                               "DRw(C,Ctr)= 45(-1, -5) dB", "Ri [dB]", true},
                    SymbolCase{"FieldWalls", Branch::kFieldWalls, LibraryPurpose::kAirborneData,
                               "Rw(C,Ctr)= 45(-1, -5) dB", "Ri [dB]", true},
                    SymbolCase{"SmallElements", Branch::kSmallElements, LibraryPurpose::kAirborneData,
                               "Dnew(C,Ctr)= 45(-1, -5) dB", "Dn [dB]", true},
                    SymbolCase{"Floors", Branch::kFloors, LibraryPurpose::kImpactData, "Lnw(Ci)= 45(-1) dB",
                               "Ln,i [dB]", true},
                    SymbolCase{"Coverings", Branch::kCoverings, LibraryPurpose::kImpactData,
                               "DLw(Ci)= 45(-1) dB", "DLni [dB]", false},
                    SymbolCase{"FieldFloors", Branch::kFieldFloors, LibraryPurpose::kImpactData,
                               "Lnw(Ci)= 45(-1) dB", "Ln,i [dB]", true}),
    [](const auto& test) { return std::string(test.param.name); });

TEST_F(MeasuredLibraryWindowTest, RefreshingSeesWhatOthersChangedAndKeepsTheChoice) {
  Activate(OpenAt(0, "Murature", 1));
  library_.files[Branch::kWalls].push_back("Altre");
  library_.tests["Murature"].push_back(TestOf("Nuovo 30", 40));
  library_.tests["Murature"][1].part.rating_db = 60;
  QTest::keyClick(window_.get(), Qt::Key_F5);
  EXPECT_EQ(Child<QListView>(*window_, "List1").model()->rowCount(), 4);
  EXPECT_EQ(Box("Text4"), "60");
  EXPECT_EQ(Child<QTreeWidget>(*window_, "TreeView1").currentItem()->text(0), "Murature");
  library_.tests["Murature"].erase(library_.tests["Murature"].begin() + 1);
  QTest::keyClick(window_.get(), Qt::Key_F5);
  EXPECT_EQ(Box("Text4"), "");
  library_.files[Branch::kWalls] = {"Altre"};
  QTest::keyClick(window_.get(), Qt::Key_F5);
  EXPECT_EQ(Child<QListView>(*window_, "List1").model()->rowCount(), 0);
  EXPECT_TRUE(boxes_.told.isEmpty());
}

TEST_F(MeasuredLibraryWindowTest, TabGoesAsOneReads) {
  Activate(OpenAt(1, "Vetrate", 0));
  EXPECT_EQ(TabStops(*window_), (QStringList{"List1_cerca", "List1", "Text2", "Command2", "Command1",
                                             "Command3", "TreeView1", "Combo1", "List1_uso"}));
}

TEST_F(MeasuredLibraryWindowTest, EveryButtonHasALetterOfItsOwn) {
  Activate(OpenAt(0, "Murature", 0));
  QStringList letters;
  for (const QPushButton* button : window_->findChildren<QPushButton*>()) {
    if (const auto mark = button->text().indexOf('&'); mark >= 0)
      letters << button->text().at(mark + 1).toLower();
  }
  EXPECT_EQ(letters.size(), 3);
  EXPECT_EQ(letters.removeDuplicates(), 0);
  QTest::keyClick(window_.get(), Qt::Key_D, Qt::AltModifier);
  EXPECT_TRUE(QTest::qWaitFor([this] { return window_->findChild<QDialog*>("Form10") != nullptr; }));
}

TEST_F(MeasuredLibraryWindowTest, AnEmptyLibraryGivesATreeWithNothingButItsNodes) {
  library_ = {};
  Open(0);
  QTreeWidget& tree = Child<QTreeWidget>(*window_, "TreeView1");
  for (int i = 0; i < 3; ++i) EXPECT_EQ(tree.topLevelItem(0)->child(i)->childCount(), 0);
  EXPECT_TRUE(boxes_.told.isEmpty());
}

TEST_F(MeasuredLibraryWindowTest, AFileFillsListAndKeywordsAndShowsTheFirstDescription) {
  Open(0);
  OpenLibraryFile(*window_, "TreeView1", "Murature");
  const QAbstractItemModel& list = *Child<QListView>(*window_, "List1").model();
  EXPECT_EQ(list.rowCount(), 3);
  const QComboBox& keywords = Child<QComboBox>(*window_, "Combo1");
  ASSERT_EQ(keywords.count(), 3);
  EXPECT_EQ(keywords.itemText(0), "tutti");
  EXPECT_EQ(keywords.itemText(1), "forati");
  EXPECT_EQ(keywords.itemText(2), "pieni");
  EXPECT_EQ(Child<QPlainTextEdit>(*window_, "Text2").toPlainText(), "Forato 12: descrizione");
}

TEST_F(MeasuredLibraryWindowTest, TheKeywordFiltersAndAllBringsEverythingBack) {
  Open(0);
  OpenLibraryFile(*window_, "TreeView1", "Murature");
  const QAbstractItemModel& list = *Child<QListView>(*window_, "List1").model();
  ChooseKeyword(*window_, "Combo1", "forati");
  EXPECT_EQ(list.rowCount(), 2);
  EXPECT_EQ(list.index(1, 0).data().toString(), "Blocchi 20");
  ChooseKeyword(*window_, "Combo1", "tutti");
  EXPECT_EQ(list.rowCount(), 3);
}

TEST_F(MeasuredLibraryWindowTest, AKeywordIsFoundByAPartOfIt) {
  Activate(OpenAt(0, "Murature", 0));
  auto& keywords = Child<QComboBox>(*window_, "Combo1");
  const QAbstractItemModel& list = *Child<QListView>(*window_, "List1").model();
  keywords.setFocus();
  keywords.lineEdit()->selectAll();
  QTest::keyClicks(&keywords, "ien");
  QTest::keyClick(&keywords, Qt::Key_Return);
  EXPECT_EQ(keywords.currentText(), "pieni");
  EXPECT_EQ(list.rowCount(), 1);
  EXPECT_FALSE(keywords.hasFocus()) << "what was taken leads on";
  keywords.setFocus();
  keywords.lineEdit()->selectAll();
  QTest::keyClicks(&keywords, "xyz");
  QTest::keyClick(&keywords, Qt::Key_Return);
  EXPECT_TRUE(keywords.hasFocus());
  EXPECT_FALSE(shell::FieldNote::TextAt(&keywords).isEmpty()) << "a text without a hit says so";
  EXPECT_EQ(list.rowCount(), 1) << "and changes nothing";
}

TEST_F(MeasuredLibraryWindowTest, EnterInTheSearchTakesTheBestHitOrSaysThatThereIsNone) {
  library_.tests["Murature"] = {TestOf("Parete con laterizio", 30), TestOf("Blocco", 31),
                                TestOf("Laterizio forato", 32)};
  window_.reset();
  Activate(OpenFor(LibraryPurpose::kAirborneData));  // to look at: nothing is handed over
  OpenLibraryFile(*window_, "TreeView1", "Murature");
  auto& search = Child<QLineEdit>(*window_, "List1_cerca");
  search.setFocus();
  QTest::keyClicks(&search, "later");
  QTest::keyClick(&search, Qt::Key_Return);
  auto& list = Child<QListView>(*window_, "List1");
  EXPECT_EQ(list.currentIndex().data().toString(), "Laterizio forato") << "it begins with the text";
  search.selectAll();
  QTest::keyClicks(&search, "xyz");
  QTest::keyClick(&search, Qt::Key_Return);
  EXPECT_TRUE(search.hasFocus());
  EXPECT_TRUE(window_->isVisible());
  EXPECT_EQ(shell::FieldNote::TextAt(&search), "Nessuna voce dell'elenco contiene questo testo.");
}

TEST_F(MeasuredLibraryWindowTest, ATestShowsItsValuesAndCertificate) {
  OpenAt(0, "Murature", 1);
  EXPECT_EQ(Child<QLabel>(*window_, "Label3").text(), "Rw(C,Ctr)= 53(-1, -5) dB");
  EXPECT_EQ(Box("Text4"), "53");
  EXPECT_EQ(Box("Text5"), "-1");
  EXPECT_EQ(Box("Text6"), "-5");
  EXPECT_EQ(Box("Text3"), "2,5");
  EXPECT_EQ(Box("TextMassa"), "40");
  EXPECT_EQ(Box("Text1_0"), "38,0");
  EXPECT_EQ(Box("Text1_20"), "58,0");
  EXPECT_EQ(Box("TextCertificato"), "n. 12/98");
  EXPECT_EQ(Box("TextDataProva"), "12/05/1998");
  EXPECT_EQ(Child<QLabel>(*window_, "LabelBande").text(), "Ri [dB]");
}

TEST_F(MeasuredLibraryWindowTest, NullsLeaveTheirBoxesEmptyAndAreHandedOverAsNothing) {
  calculation::FacadePart& part = library_.tests["Murature"][0].part;
  part.bands_db[4].reset();
  part.bands_db[5] = calculation::kNotMeasuredDb;
  part.c_db.reset();
  part.area_m2.reset();
  part.mass_kg_m2.reset();
  OpenAt(0, "Murature", 0);
  EXPECT_EQ(Box("Text1_4"), "");
  EXPECT_EQ(Box("Text1_5"), "");
  EXPECT_EQ(Box("Text5"), "");
  EXPECT_EQ(Box("Text3"), "");
  EXPECT_EQ(Box("TextMassa"), "-");
  EXPECT_EQ(Child<QLabel>(*window_, "Label3").text(), "Rw(C,Ctr)= 43(, -5) dB");
  Press("Command1");
  ASSERT_EQ(taken_.size(), 1U);
  EXPECT_FALSE(taken_[0].bands_db[4].has_value());
  EXPECT_TRUE(boxes_.told.isEmpty());
}

TEST_F(MeasuredLibraryWindowTest, ASmallElementIsRatedByDneAndHandsOverNoArea) {
  library_.tests["Prese d'aria"][0].part.area_m2 = 0.5;
  OpenAt(1, "Prese d'aria", 0);
  EXPECT_EQ(Child<QLabel>(*window_, "Label3").text(), "Dnew(C,Ctr)= 41(-1, -5) dB");
  EXPECT_EQ(Child<QLabel>(*window_, "LabelBande").text(), "Dn [dB]");
  EXPECT_EQ(Box("Text3"), "0");
  Press("Command1");
  ASSERT_EQ(taken_.size(), 1U);
  elements::Setup setup;
  calculation::TakeAsComponent(setup, 1, taken_[0]);
  EXPECT_EQ(setup.facade.components[0].area_text, elements::kSmallElementArea);
}

TEST_F(MeasuredLibraryWindowTest, ConfirmingWithoutATestIsToldAndLeavesTheWindowOpen) {
  Open(0);
  Press("Command1");
  EXPECT_EQ(
      boxes_.told,
      QStringList{"Nessuna prova selezionata. Selezionare una prova dall'elenco e confermare di nuovo."});
  EXPECT_TRUE(taken_.empty());
  EXPECT_TRUE(window_->isVisible());
}

TEST_F(MeasuredLibraryWindowTest, ASearchThatHidesTheChosenTestLeavesNoneChosen) {
  OpenAt(0, "Murature", 0);
  QTest::keyClicks(&Child<QLineEdit>(*window_, "List1_cerca"), "pieno");
  EXPECT_EQ(Child<QListView>(*window_, "List1").model()->rowCount(), 1);
  EXPECT_EQ(Box("Text4"), "");
  Press("Command1");
  EXPECT_TRUE(taken_.empty());
  EXPECT_EQ(boxes_.told.size(), 1);
}

TEST_F(MeasuredLibraryWindowTest, AFileThatCannotBeOpenedIsToldAndTheNextOneOpens) {
  Open(0);
  library_.locked = true;
  OpenLibraryFile(*window_, "TreeView1", "Murature");
  EXPECT_EQ(boxes_.told.size(), 1);
  EXPECT_EQ(Child<QListView>(*window_, "List1").model()->rowCount(), 0);
  library_.locked = false;
  Child<QTreeWidget>(*window_, "TreeView1").setCurrentItem(nullptr);
  OpenLibraryFile(*window_, "TreeView1", "Murature");
  EXPECT_EQ(Child<QListView>(*window_, "List1").model()->rowCount(), 3);
}

TEST_F(MeasuredLibraryWindowTest, AFileThatIsNoPictureShowsNone) {
  const QTemporaryDir folder;
  QFile damaged(folder.filePath("foto.jpg"));
  ASSERT_TRUE(damaged.open(QIODevice::WriteOnly));
  damaged.write("not a picture");
  damaged.close();
  QImage(40, 30, QImage::Format_RGB32).save(folder.filePath("vera.png"));
  library_.tests["Murature"][0].picture = damaged.fileName().toStdString();
  library_.tests["Murature"][1].picture = folder.filePath("manca.jpg").toStdString();
  library_.tests["Murature"][2].picture = folder.filePath("vera.png").toStdString();
  OpenAt(0, "Murature", 0);
  const auto* picture = dynamic_cast<shell::PictureView*>(&Child<QWidget>(*window_, "Picture2"));
  ASSERT_NE(picture, nullptr);
  EXPECT_FALSE(picture->HasPicture());
  SelectTest(*window_, "List1", 1);
  EXPECT_FALSE(picture->HasPicture());
  SelectTest(*window_, "List1", 2);
  EXPECT_TRUE(picture->HasPicture());
}

TEST_F(MeasuredLibraryWindowTest, TheExtraDataHoldTheWindowUntilTheyAreClosed) {
  OpenAt(0, "Murature", 0);
  Press("Command2");
  auto* extra = window_->findChild<QDialog*>("Form10");
  ASSERT_NE(extra, nullptr);
  EXPECT_FALSE(window_->isEnabled());
  EXPECT_TRUE(extra->isEnabled());
  Picture(*extra, "form10");
  EXPECT_EQ(extra->windowTitle(), "Dati della prova in opera - VELMARpro");
  EXPECT_EQ(Child<QLabel>(*extra, "Label1_1").text().remove('&'), "Ss [m²]");
  EXPECT_EQ(Child<QLineEdit>(*extra, "Text1_0").text(), "12/05/1998");
  EXPECT_EQ(Child<QLineEdit>(*extra, "Text1_1").text(), "2,5");
  EXPECT_EQ(Child<QLineEdit>(*extra, "Text1_7").text(), "senza");
  QTest::mouseClick(&Child<QPushButton>(*extra, "Command2"), Qt::LeftButton);
  EXPECT_TRUE(window_->isEnabled());
  EXPECT_FALSE(extra->isVisible());
}

TEST_F(MeasuredLibraryWindowTest, TheExtraDataOfATestInABuildingShowRoomsAndSite) {
  MeasuredTest field = TestOf("Divisorio", 30);
  field.part.thickness_mm = 300;
  field.source_volume_m3 = 31.5;
  field.receiving_volume_m3 = 28;
  field.site = "Via dell'Università 5";
  field.picture_name = "divisorio.jpg";
  library_.files[Branch::kFieldWalls] = {"Database_sperimentale"};
  library_.tests["Database_sperimentale"] = {field};
  OpenAt(0, "Database_sperimentale", 0);
  Press("Command2");
  auto* extra = window_->findChild<QDialog*>("Form10");
  ASSERT_NE(extra, nullptr);
  const QStringList expected = {"12/05/1998",   "2,5", "31,5", "28", "300", "40", "Via dell'Università 5",
                                "divisorio.jpg"};
  for (int i = 0; i < expected.size(); ++i) {
    const std::string name = "Text1_" + std::to_string(i);
    EXPECT_EQ(Child<QLineEdit>(*extra, name.c_str()).text(), expected.at(i)) << name;
  }
}

TEST_F(MeasuredLibraryWindowTest, ExtraDataWithoutADateShowTheDefault) {
  library_.tests["Murature"][0].date.clear();
  OpenAt(0, "Murature", 0);
  Press("Command2");
  auto* extra = window_->findChild<QDialog*>("Form10");
  ASSERT_NE(extra, nullptr);
  EXPECT_EQ(Child<QLineEdit>(*extra, "Text1_0").text(), "");
  QTest::keyClick(extra, Qt::Key_Escape);
  EXPECT_TRUE(window_->isEnabled());
}

TEST_F(MeasuredLibraryWindowTest, TheKeyboardAloneGetsToATestAndConfirms) {
  Open(0);
  QTreeWidget& tree = Child<QTreeWidget>(*window_, "TreeView1");
  tree.setFocus();
  for (int i = 0; i < 3; ++i) QTest::keyClick(&tree, Qt::Key_Down);
  QListView& list = Child<QListView>(*window_, "List1");
  ASSERT_EQ(list.model()->rowCount(), 3);
  QTest::keyClick(&list, Qt::Key_Down);
  QTest::keyClick(&list, Qt::Key_Down);
  QTest::keyClick(&list, Qt::Key_Return);
  ASSERT_EQ(taken_.size(), 1U);
  EXPECT_EQ(taken_[0].name, "Pieno 25");
}

TEST_F(MeasuredLibraryWindowTest, AStoredWallAndTwoMeasuredWindowsRunAsTheFacadeTypedByHand) {
  elements::Setup chosen;
  chosen.calculation = elements::Calculation::kCompositeElement;
  chosen.base.area_text = "12";
  chosen.facade.count_text = "2";
  elements::Setup typed = chosen;

  FakeResults results;
  results.tables[ResultKind::kAirborne] = {PartOf("Parete x", 40)};
  SavedResultsWindow stored(boxes_.Tools(), results.Source(), SavedResultsWindow::Purpose::kTake);
  QObject::connect(&stored, &SavedResultsWindow::Taken, &stored,
                   [&](const calculation::FacadePart& part) { calculation::TakeAsOpaquePart(chosen, part); });
  stored.show();
  QTest::mouseClick(&Child<QPushButton>(stored, "Seleziona"), Qt::LeftButton);
  for (const int component : {1, 2}) {
    OpenAt(component, "Vetrate", component - 1);
    Press("Command1");
    calculation::TakeAsComponent(chosen, component, taken_.back());
  }

  const auto bands = [](int lowest) {
    elements::BandTexts texts;
    for (std::size_t i = 0; i < texts.size(); ++i) texts[i] = std::to_string(lowest + static_cast<int>(i));
    return texts;
  };
  typed.base.band_texts = bands(40);
  typed.base.mass_kg_m2 = 40;
  for (const std::size_t i : {0U, 1U}) {
    typed.facade.components[i].area_text = "2,5";
    typed.facade.components[i].band_texts = bands(i == 0 ? 20 : 23);
    typed.facade.components[i].mass_kg_m2 = 40;
  }
  const calculation::RunOutcome outcome = calculation::RunCalculation(chosen, 0.0, {});
  ASSERT_EQ(outcome.status, calculation::RunStatus::kDone);
  EXPECT_EQ(outcome.result, calculation::RunCalculation(typed, 0.0, {}).result);
}

TEST_F(MeasuredLibraryWindowTest, SizesAreRemembered) {
  const QTemporaryDir folder;
  boxes_.memory = std::make_unique<QSettings>(folder.filePath("finestre.ini"), QSettings::IniFormat);
  Open(0);
  window_->resize(1300, 760);
  window_.reset();
  Open(0);
  EXPECT_EQ(window_->size(), QSize(1300, 760));
}

TEST_F(MeasuredLibraryWindowTest, FiveThousandTestsAreSearched) {
  std::vector<MeasuredTest>& tests = library_.tests["Murature"];
  for (int i = 0; i < 5000; ++i) {
    tests.push_back(TestOf("Prova numero " + std::to_string(i), 30));
    library_.keywords[tests.back().part.name] = "parola " + std::to_string(i % 500);
  }
  Open(0);
  OpenLibraryFile(*window_, "TreeView1", "Murature");
  QTest::keyClicks(&Child<QLineEdit>(*window_, "List1_cerca"), "numero 49");
  EXPECT_EQ(Child<QListView>(*window_, "List1").model()->rowCount(), 199);
}

}  // namespace
}  // namespace velmar::structures
