#include "shell/material_editors/edit_material.h"

#include <QApplication>
#include <QImage>
#include <QLineEdit>
#include <QTest>
#include <QTimer>
#include <cstdio>
#include <filesystem>
#include <functional>

#include "shell/windows/picture_view.h"
#include "tests/shell/material_editors/editor_fixture.h"

namespace velmar::material_editors {
namespace {

using elements::MaterialFamily;
using elements::StructuralMaterial;

class EditMaterialTest : public EditorFixture {
 protected:
  /// Opens the editor and lets `work` use it.
  std::optional<shell::MaterialChange> Edit(MaterialFamily family, const std::string& name,
                                            const std::function<void(QWidget&)>& work = {}) {
    opened_ = false;
    QTimer::singleShot(0, [this, work] {
      QWidget* window = QApplication::activeModalWidget();
      if (window == nullptr) return;
      opened_ = QTest::qWaitForWindowActive(window);
      work(*window);
      window->close();
    });
    auto change = EditMaterial(nullptr, Tools(), store_, texts_, family, name);
    QApplication::processEvents();
    return change;
  }

  bool opened_ = false;
};

TEST_F(EditMaterialTest, GivesWhatWasStored) {
  const auto change = Edit(MaterialFamily::kStructural, "", [](QWidget& window) {
    Type(window, "Text1", "Gesso");
    Type(window, "Text3", "12,5");
    Type(window, "Text4", "900");
    Type(window, "Text6", "2,5");
    Type(window, "Text8", "0,01");
    Press(window, "Command1");
  });
  ASSERT_TRUE(change);
  EXPECT_EQ(change->name, "Gesso");
  EXPECT_TRUE(store_.Find<StructuralMaterial>("Gesso"));
}

TEST_F(EditMaterialTest, GivesNothingWhenTheUserGivesUp) {
  EXPECT_FALSE(Edit(MaterialFamily::kStructural, "", [](QWidget& window) { Press(window, "Command2"); }));
  EXPECT_TRUE(opened_);
}

TEST_F(EditMaterialTest, TheDestinationDecidesTheFace) {
  const std::pair<MaterialFamily, const char*> faces[] = {
      {MaterialFamily::kStructural, "Materiale parete"},
      {MaterialFamily::kFibrous, "Materiale fibroso"},
      {MaterialFamily::kResilient, "materiale resiliente"}};
  for (const auto& [family, caption] : faces) {
    Edit(family, "", [&](QWidget& window) {
      EXPECT_EQ(window.windowTitle(), caption);
      EXPECT_EQ(window.objectName(), family == MaterialFamily::kStructural ? "Form5" : "Form6");
    });
    EXPECT_TRUE(opened_);
  }
}

TEST_F(EditMaterialTest, ThePictureIsTakenFromTheFolderOfItsFamily) {
  const std::filesystem::path pictures = folder_ / "Databases/immagine";
  std::filesystem::create_directories(pictures / "intercapedine");
  std::filesystem::create_directories(pictures / "Strati aggiuntivi orizzontali (DLw)");
  const QImage picture(8, 8, QImage::Format_RGB32);
  picture.save(QString::fromStdString((pictures / "intercapedine/lana.png").string()));
  picture.save(QString::fromStdString((pictures / "Strati aggiuntivi orizzontali (DLw)/gomma.png").string()));
  storage::FibrousRow wool;
  wool.record.values.name = "Lana";
  wool.picture = "lana.png";
  store_.Add<elements::FibrousMaterial>({wool});
  storage::ResilientRow rubber;
  rubber.record.values.name = "Gomma";
  rubber.picture = "gomma.png";
  store_.Add<elements::ResilientMaterial>({rubber});
  const auto has_picture = [](QWidget& window) {
    const auto* view = dynamic_cast<shell::PictureView*>(&Child<QWidget>(window, "Picture1"));
    return view != nullptr && view->HasPicture();
  };
  Edit(MaterialFamily::kFibrous, "Lana", [&](QWidget& window) { EXPECT_TRUE(has_picture(window)); });
  EXPECT_TRUE(opened_);
  Edit(MaterialFamily::kResilient, "Gomma", [&](QWidget& window) { EXPECT_TRUE(has_picture(window)); });
  EXPECT_TRUE(opened_);
  Edit(MaterialFamily::kFibrous, "", [&](QWidget& window) { EXPECT_FALSE(has_picture(window)); });
  EXPECT_TRUE(told_.isEmpty());
}

TEST_F(EditMaterialTest, OneOfTenThousandMaterialsIsOpened) {
  std::vector<storage::StructuralRow> rows(10000);
  for (std::size_t i = 0; i < rows.size(); ++i) {
    rows[i].record.values.name = "Materiale " + std::to_string(i);
    rows[i].keyword = "gruppo " + std::to_string(i % 200);
  }
  store_.Add<StructuralMaterial>(rows);
  QString name;
  Edit(MaterialFamily::kStructural, "Materiale 9999",
       [&](QWidget& window) { name = window.findChild<QLineEdit*>("Text1")->text(); });
  ASSERT_TRUE(opened_);
  EXPECT_EQ(name, "Materiale 9999");
}

TEST_F(EditMaterialTest, AMaterialThatIsGoneIsToldBeforeAWindowOpens) {
  EXPECT_FALSE(Edit(MaterialFamily::kStructural, "Mattone"));
  EXPECT_FALSE(opened_);
  EXPECT_EQ(told_, QStringList{"Il materiale non è più nel database: Mattone"});
}

TEST_F(EditMaterialTest, ADatabaseThatCannotBeReadIsToldBeforeAWindowOpens) {
  std::filesystem::remove(store_.File());
  EXPECT_FALSE(Edit(MaterialFamily::kStructural, ""));
  EXPECT_FALSE(opened_);
  EXPECT_EQ(told_.size(), 1);
}

}  // namespace
}  // namespace velmar::material_editors
