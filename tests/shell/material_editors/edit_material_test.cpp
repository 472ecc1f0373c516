#include "shell/material_editors/edit_material.h"

#include <QApplication>
#include <QLineEdit>
#include <QTest>
#include <QTimer>
#include <filesystem>
#include <functional>

#include "tests/shell/material_editors/editor_fixture.h"

namespace velmar::material_editors {
namespace {

using elements::MaterialFamily;
using elements::StructuralMaterial;

class EditMaterialTest : public EditorFixture {
 protected:
  /// Opens the editor and lets `work` use it.
  std::optional<windows::MaterialChange> Edit(MaterialFamily family, const std::string& name,
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
