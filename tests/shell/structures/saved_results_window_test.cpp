#include "shell/structures/saved_results_window.h"

#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTableView>
#include <QTest>
#include <memory>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/shell/structures/fake_sources.h"

namespace velmar::structures {
namespace {

class SavedResultsWindowTest : public testing::Test {
 protected:
  SavedResultsWindowTest() {
    results_.tables[ResultKind::kAirborne] = {PartOf("Parete x", 30), PartOf("Tramezzo", 25),
                                              PartOf("parete x bis", 35)};
    results_.tables[ResultKind::kImpact] = {PartOf("Solaio x", 60)};
  }

  SavedResultsWindow& Open(bool to_take = false) {
    using Purpose = SavedResultsWindow::Purpose;
    window_ = std::make_unique<SavedResultsWindow>(boxes_.Tools(), results_.Source(),
                                                   to_take ? Purpose::kTake : Purpose::kList);
    QObject::connect(window_.get(), &SavedResultsWindow::Taken, window_.get(),
                     [this](const calculation::FacadePart& part) { taken_.push_back(part); });
    QObject::connect(window_.get(), &SavedResultsWindow::Removed, window_.get(),
                     [this](ResultKind, const std::string& name) { removed_.push_back(name); });
    window_->show();
    return *window_;
  }
  QTableView& Grid() { return Child<QTableView>(*window_, "DBGrid1"); }
  QString Cell(int row, int column) { return Grid().model()->index(row, column).data().toString(); }
  void Press(const char* button) { QTest::mouseClick(&Child<QPushButton>(*window_, button), Qt::LeftButton); }

  FakeBoxes boxes_;
  FakeResults results_;
  std::unique_ptr<SavedResultsWindow> window_;
  std::vector<calculation::FacadePart> taken_;
  std::vector<std::string> removed_;
};

TEST_F(SavedResultsWindowTest, ALiningIsListedAndDeletedLikeTheOthers) {
  results_.tables[ResultKind::kLining] = {PartOf("Controparete x", 12)};
  Open(/*to_take=*/true);
  QTest::mouseClick(&Child<QRadioButton>(*window_, "Option1_2"), Qt::LeftButton);
  ASSERT_EQ(Grid().model()->rowCount(), 1);
  EXPECT_EQ(Cell(0, 0), "Controparete x");
  EXPECT_EQ(Grid().model()->headerData(1, Qt::Horizontal).toString(), "ΔRw (dB)");
  EXPECT_FALSE(Child<QPushButton>(*window_, "Seleziona").isEnabled());
  Press("Elimina");
  EXPECT_TRUE(results_.tables[ResultKind::kLining].empty());
  EXPECT_EQ(removed_, std::vector<std::string>{"Controparete x"});
  EXPECT_EQ(results_.tables[ResultKind::kAirborne].size(), 3U);
}

TEST_F(SavedResultsWindowTest, ListsNameAndDescriptionOfTheAirborneResultsFirst) {
  Open();
  Picture(*window_, "form7");
  ASSERT_EQ(Grid().model()->rowCount(), 3);
  EXPECT_EQ(Cell(0, 0), "Parete x");
  EXPECT_EQ(Cell(0, 1), "45");
  EXPECT_EQ(Cell(0, 2), "Parete x: descrizione");
  EXPECT_EQ(Child<QLineEdit>(*window_, "Text2").text(), "Parete x");
  EXPECT_EQ(Child<QPlainTextEdit>(*window_, "Text1").toPlainText(), "Parete x: descrizione");
  EXPECT_EQ(window_->windowTitle(), "Database risultati");
}

TEST_F(SavedResultsWindowTest, TheOptionShowsTheImpactResults) {
  Open();
  Child<QRadioButton>(*window_, "Option1_1").click();
  ASSERT_EQ(Grid().model()->rowCount(), 1);
  EXPECT_EQ(Child<QLineEdit>(*window_, "Text2").text(), "Solaio x");
}

TEST_F(SavedResultsWindowTest, WhatTheRunOfAResultToldStandsBelowIt) {
  results_.messages["Tramezzo"] = "Fuori dal campo di validità";
  Open();
  EXPECT_FALSE(Child<QLabel>(*window_, "Messaggi").isVisible());
  Grid().selectRow(1);
  EXPECT_TRUE(Child<QLabel>(*window_, "Messaggi").isVisible());
  EXPECT_EQ(Child<QLabel>(*window_, "Messaggi").text(), "Fuori dal campo di validità");
}

TEST_F(SavedResultsWindowTest, SearchLooksInNameAndDescriptionWhateverTheCase) {
  Open();
  QTest::keyClicks(&Child<QLineEdit>(*window_, "TextCerca"), "PARETE desc");
  EXPECT_EQ(Grid().model()->rowCount(), 2);
  QTest::keyClicks(&Child<QLineEdit>(*window_, "TextCerca"), " bis");
  ASSERT_EQ(Grid().model()->rowCount(), 1);
  EXPECT_EQ(Child<QLineEdit>(*window_, "Text2").text(), "parete x bis");
  QTest::keyClicks(&Child<QLineEdit>(*window_, "TextCerca"), "zzz");
  EXPECT_EQ(Child<QLineEdit>(*window_, "Text2").text(), "");
  EXPECT_FALSE(Child<QPushButton>(*window_, "Elimina").isEnabled());
}

TEST_F(SavedResultsWindowTest, DeletingAsksWithTheNameAndTellsTheMainWindow) {
  Open();
  Grid().setCurrentIndex(Grid().model()->index(1, 0));
  Press("Elimina");
  EXPECT_EQ(boxes_.questions, QStringList{"Eliminare definitivamente dal database la struttura Tramezzo?"});
  EXPECT_THAT(removed_, testing::ElementsAre("Tramezzo"));
  EXPECT_EQ(Grid().model()->rowCount(), 2);
  EXPECT_EQ(Child<QLineEdit>(*window_, "Text2").text(), "parete x bis");
}

TEST_F(SavedResultsWindowTest, ADeclinedDeletionChangesNothing) {
  boxes_.answer = false;
  Open();
  Press("Elimina");
  EXPECT_EQ(results_.tables[ResultKind::kAirborne].size(), 3U);
  EXPECT_TRUE(removed_.empty());
}

TEST_F(SavedResultsWindowTest, DeletingInALockedDatabaseSaysSoAndLosesNothing) {
  Open();
  results_.locked = true;
  Press("Elimina");
  EXPECT_EQ(boxes_.told, QStringList{"Il file è in uso da un altro programma."});
  EXPECT_TRUE(removed_.empty());
  EXPECT_EQ(Grid().model()->rowCount(), 3);
  results_.locked = false;
  Press("Elimina");
  EXPECT_THAT(removed_, testing::ElementsAre("Parete x"));
}

TEST_F(SavedResultsWindowTest, AMissingDatabaseIsToldAndLeavesTheWindowUsable) {
  results_.locked = true;
  Open();
  EXPECT_EQ(boxes_.told.size(), 1);
  EXPECT_EQ(Grid().model()->rowCount(), 0);
  EXPECT_FALSE(Child<QPushButton>(*window_, "Copia").isEnabled());
  results_.locked = false;
  window_->Refresh();
  EXPECT_EQ(Grid().model()->rowCount(), 3);
}

TEST_F(SavedResultsWindowTest, TheCopyPastesAsATable) {
  Open();
  Press("Copia");
  const QMimeData* data = QApplication::clipboard()->mimeData();
  EXPECT_EQ(data->text(), "Nome\tParete x\nIndice di valutazione [dB]\t45\n50\t63\n30,5\t\n");
  EXPECT_TRUE(data->html().contains(">Indice di valutazione [dB]</td><td sdval=\"45\""));
}

TEST_F(SavedResultsWindowTest, ASpreadsheetFindsNumbersAsNumbersAndTextsAsTexts) {
  results_.tables[ResultKind::kAirborne] = {PartOf("=1+1", 30)};
  Open();
  Press("Copia");
  const QString html = QApplication::clipboard()->mimeData()->html();
  EXPECT_TRUE(html.contains(R"(<td sdval="30.5" sdnum="1033;" x:num="30.5">30,5</td>)"))
      << html.toStdString();
  EXPECT_TRUE(html.contains(R"(<td sdnum="1033;0;@" x:str style='mso-number-format:"\@"'>=1+1</td>)"));
}

TEST_F(SavedResultsWindowTest, ANameWithATabOrMarkupStaysOneField) {
  results_.tables[ResultKind::kAirborne] = {PartOf("a\tb <i>&", 30)};
  Open();
  Press("Copia");
  const QMimeData* data = QApplication::clipboard()->mimeData();
  EXPECT_TRUE(data->text().startsWith("Nome\ta b <i>&\n"));
  EXPECT_TRUE(data->html().contains(">a b &lt;i&gt;&amp;</td>"));
}

TEST_F(SavedResultsWindowTest, TheKeysOfTheGridDeleteCopyAndRefresh) {
  Activate(Open());
  Grid().setFocus();
  Grid().setCurrentIndex(Grid().model()->index(1, 0));
  QTest::keyClick(&Grid(), Qt::Key_C, Qt::ControlModifier);
  EXPECT_TRUE(QApplication::clipboard()->text().startsWith("Nome\tTramezzo\n"));
  QTest::keyClick(&Grid(), Qt::Key_Delete);
  EXPECT_THAT(removed_, testing::ElementsAre("Tramezzo"));
  results_.tables[ResultKind::kAirborne].push_back(PartOf("Aggiunta altrove", 30));
  QTest::keyClick(window_.get(), Qt::Key_F5);
  EXPECT_EQ(Grid().model()->rowCount(), 3);
  EXPECT_EQ(Child<QLineEdit>(*window_, "Text2").text(), "parete x bis");
}

TEST_F(SavedResultsWindowTest, TabGoesAsOneReads) {
  Activate(Open(true));
  EXPECT_EQ(TabStops(*window_), (QStringList{"TextCerca", "DBGrid1", "Text2", "Text1", "Elimina", "Copia",
                                             "Seleziona", "Chiudi", "Option1_0"}));
}

TEST_F(SavedResultsWindowTest, DeleteInTheSearchFieldEditsTheSearch) {
  Open();
  auto& search = Child<QLineEdit>(*window_, "TextCerca");
  search.setFocus();
  QTest::keyClicks(&search, "x");
  QTest::keyClick(&search, Qt::Key_Home);
  QTest::keyClick(&search, Qt::Key_Delete);
  EXPECT_EQ(search.text(), "");
  EXPECT_TRUE(boxes_.questions.isEmpty());
}

TEST_F(SavedResultsWindowTest, WithoutAContextThereIsNothingToSelectFor) {
  Open();
  EXPECT_FALSE(Child<QPushButton>(*window_, "Seleziona").isVisible());
  QTest::keyClick(&Child<QLineEdit>(*window_, "TextCerca"), Qt::Key_Return);
  EXPECT_TRUE(window_->isVisible());
}

TEST_F(SavedResultsWindowTest, TheKeyboardAloneSearchesAndSelects) {
  Open(true);
  window_->activateWindow();
  QTest::keyClicks(&Child<QLineEdit>(*window_, "TextCerca"), "tram");
  QTest::keyClick(&Child<QLineEdit>(*window_, "TextCerca"), Qt::Key_Return);
  ASSERT_EQ(taken_.size(), 1U);
  EXPECT_EQ(taken_[0].name, "Tramezzo");
  EXPECT_FALSE(window_->isVisible());
}

TEST_F(SavedResultsWindowTest, ALevelOfImpactSoundIsNoPartOfAFacade) {
  Open(true);
  Child<QRadioButton>(*window_, "Option1_1").click();
  EXPECT_FALSE(Child<QPushButton>(*window_, "Seleziona").isEnabled());
  QTest::keyClick(&Child<QLineEdit>(*window_, "TextCerca"), Qt::Key_Return);
  EXPECT_TRUE(taken_.empty());
  EXPECT_TRUE(window_->isVisible());
}

TEST_F(SavedResultsWindowTest, AResultThatAnotherProgramDeletedIsNotTaken) {
  Open(true);
  results_.tables[ResultKind::kAirborne].erase(results_.tables[ResultKind::kAirborne].begin());
  Press("Seleziona");
  EXPECT_TRUE(taken_.empty());
  EXPECT_EQ(boxes_.told.size(), 1);
  EXPECT_EQ(Grid().model()->rowCount(), 2);
}

TEST_F(SavedResultsWindowTest, SizeAndColumnWidthsAreRemembered) {
  const QTemporaryDir folder;
  boxes_.memory = std::make_unique<QSettings>(folder.filePath("finestre.ini"), QSettings::IniFormat);
  Open();
  window_->resize(777, 555);
  Grid().setColumnWidth(0, 234);
  window_.reset();
  Open();
  EXPECT_EQ(window_->size(), QSize(777, 555));
  EXPECT_EQ(Grid().columnWidth(0), 234);
}

TEST_F(SavedResultsWindowTest, FiveThousandResultsAreSearched) {
  std::vector<calculation::FacadePart>& table = results_.tables[ResultKind::kAirborne];
  for (int i = 0; i < 5000; ++i) table.push_back(PartOf("Parete numero " + std::to_string(i), 30));
  Open();
  QTest::keyClicks(&Child<QLineEdit>(*window_, "TextCerca"), "numero 49");
  EXPECT_EQ(Grid().model()->rowCount(), 199);
}

}  // namespace
}  // namespace velmar::structures
