#include "shell/printing/printer_chooser.h"

#include <QDialogButtonBox>
#include <QListWidget>
#include <QPushButton>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/presentation/drawing/catalogue_words.h"

namespace velmar::printing {
namespace {

struct Office {
  QStringList selected{};
  QStringList told{};
  bool works = true;

  PrinterChoice Choice(QStringList printers, QString current = {}) {
    return {.printers = std::move(printers),
            .current = std::move(current),
            .select =
                [this](const QString& name) {
                  selected << name;
                  return works;
                },
            .tell_failure = [this](const QString& text) { told << text; }};
  }
};

QPushButton* OkButton(PrinterChooser& chooser) {
  return chooser.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok);
}

TEST(PrinterChooser, ListsThePrintersAndMarksTheCurrentOne) {
  Office office;
  PrinterChooser chooser(office.Choice({"Ufficio", "Laser"}, "Laser"), presentation::CatalogueWords());
  const auto* list = chooser.findChild<QListWidget*>("List1");
  EXPECT_EQ(list->count(), 2);
  EXPECT_EQ(list->currentItem()->text(), "Laser");
  EXPECT_EQ(chooser.windowTitle(), "Seleziona stampante");
}

TEST(PrinterChooser, SelectsAndCloses) {
  Office office;
  PrinterChooser chooser(office.Choice({"Ufficio", "Laser"}, "gone"), presentation::CatalogueWords());
  chooser.show();
  OkButton(chooser)->click();
  EXPECT_THAT(office.selected, testing::ElementsAre("Ufficio"));
  EXPECT_EQ(chooser.result(), QDialog::Accepted);
  EXPECT_FALSE(chooser.isVisible());
}

TEST(PrinterChooser, StaysOpenWhenThePrinterCannotBeSelected) {
  Office office{.works = false};
  PrinterChooser chooser(office.Choice({"Ufficio"}), presentation::CatalogueWords());
  chooser.show();
  OkButton(chooser)->click();
  EXPECT_TRUE(chooser.isVisible());
  EXPECT_THAT(office.told, testing::ElementsAre("Impossibile stampare con la stampante selezionata."));
}

TEST(PrinterChooser, CancelSelectsNothing) {
  Office office;
  PrinterChooser chooser(office.Choice({"Ufficio"}), presentation::CatalogueWords());
  chooser.show();
  chooser.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Cancel)->click();
  EXPECT_FALSE(chooser.isVisible());
  EXPECT_TRUE(office.selected.isEmpty());
}

TEST(PrinterChooser, SaysThatThereIsNoPrinter) {
  Office office;
  PrinterChooser chooser(office.Choice({}), presentation::CatalogueWords());
  chooser.show();
  EXPECT_TRUE(chooser.findChild<QWidget*>("no_printer")->isVisible());
  EXPECT_FALSE(OkButton(chooser)->isEnabled());
}

}  // namespace
}  // namespace velmar::printing
