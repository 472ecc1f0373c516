#include "tests/shell/main_window/random_user.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QDialog>
#include <QDir>
#include <QLineEdit>
#include <QMimeData>
#include <QRegularExpression>
#include <QTabBar>
#include <QTest>
#include <QTimer>
#include <QToolButton>

#include "calculation/runs/run.h"
#include "elements/variants.h"
#include "shell/fields/material_box.h"
#include "tests/shell/support/typed_texts.h"

namespace velmar::shell {
namespace {

/// More than the edits between two looks can take.
constexpr int kMostSteps = 500;
constexpr std::array kKeys = {Qt::Key_Tab,       Qt::Key_Backtab, Qt::Key_Return,   Qt::Key_Escape,
                              Qt::Key_Space,     Qt::Key_Home,    Qt::Key_End,      Qt::Key_Delete,
                              Qt::Key_Backspace, Qt::Key_PageUp,  Qt::Key_PageDown, Qt::Key_Up,
                              Qt::Key_Down,      Qt::Key_F5,      Qt::Key_F6};

/// `setup` without what a variant leaves to the project.
elements::Setup Alone(elements::Setup setup) {
  setup.information = {};
  setup.further = {};
  return setup;
}

}  // namespace

struct RandomUser::Action {
  const char* name = "";
  void (RandomUser::*act)() = nullptr;
  int weight = 1;
};

const std::vector<RandomUser::Action>& RandomUser::Actions() {
  static const std::vector<Action> actions = {
      {"choose a calculation", &RandomUser::ChooseCalculation, 3},
      {"press a kind button", &RandomUser::PressKindButton},
      {"run", &RandomUser::Run, 4},
      {"click a check", &RandomUser::ClickCheck, 4},
      {"move in a list", &RandomUser::MoveInList, 4},
      {"type a number", &RandomUser::TypeNumber, 8},
      {"type garbage", &RandomUser::TypeGarbage, 3},
      {"type into a list", &RandomUser::TypeIntoList, 3},
      {"copy and paste", &RandomUser::CopyAndPaste, 2},
      {"press any key", &RandomUser::PressAnyKey, 4},
      {"change the tab", &RandomUser::ChangeTab, 3},
      {"open an example", &RandomUser::OpenExample, 2},
      {"open rubbish", &RandomUser::OpenRubbish},
      {"save and reopen", &RandomUser::SaveAndReopen},
      {"show the table", &RandomUser::ShowTable, 2},
      {"use the table", &RandomUser::UseTable},
      {"move the mouse", &RandomUser::MoveMouse, 2},
      {"resize", &RandomUser::Resize},
      {"use a dialog", &RandomUser::UseDialog},
      {"drop a material", &RandomUser::DropMaterial},
      {"go back and forth", &RandomUser::GoBackAndForth, 2},
      {"go back", &RandomUser::GoBack},
      {"undo what was done", &RandomUser::UndoWhatWasDone, 2},
      {"paste a table", &RandomUser::PasteTable},
      {"move layers", &RandomUser::MoveLayers, 3},
      {"use variants", &RandomUser::UseVariants, 2},
      {"switch the continuous calculation", &RandomUser::SwitchContinuous},
      {"step a number", &RandomUser::StepNumber, 3},
  };
  return actions;
}

RandomUser::RandomUser(WindowFixture& fixture, std::mt19937::result_type seed)
    : fixture_(fixture), random_(seed) {
  for (const QFileInfo& file : QDir(EXAMPLES).entryInfoList({"*.drav"})) examples_ += file.filePath();
  // Originals, as for a user: saving to the open file would change them in the sources.
  fixture_.services.places.examples = EXAMPLES;
  QObject::connect(&any_dialog_, &QTimer::timeout, &any_dialog_, [this] { AnswerDialog(); });
  any_dialog_.start(20);
}

QString RandomUser::Act() {
  int all = 0;
  for (const Action& action : Actions()) all += action.weight;
  int place = Pick(all);
  for (const Action& action : Actions()) {
    place -= action.weight;
    if (place >= 0) continue;
    fixture_.go_on = Pick(3) > 0;
    fixture_.save = Pick(3) == 0 ? std::nullopt : std::optional<bool>(false);
    (this->*action.act)();
    if (QWidget* popup = QApplication::activePopupWidget()) popup->close();
    return action.name;
  }
  return {};
}

int RandomUser::Pick(qsizetype count) {
  return static_cast<int>(random_() % static_cast<std::mt19937::result_type>(count));
}

template <typename Widget>
Widget* RandomUser::AnyShown() {
  QList<Widget*> shown;
  for (auto* widget : fixture_.window->findChildren<Widget*>()) {
    if (widget->isVisible() && widget->isEnabled()) shown += widget;
  }
  return shown.isEmpty() ? nullptr : OneOf(shown);
}

// Each step back leads to where the step forth began.
void RandomUser::GoBackAndForth() {
  std::vector<elements::Setup> way;
  for (const int most = 1 + Pick(20);
       static_cast<int>(way.size()) < most && fixture_.open.Steps().ToUndo();) {
    way.push_back(fixture_.open.Setup());
    fixture_.Find<QAction>("annulla")->trigger();
  }
  for (; !way.empty(); way.pop_back()) {
    fixture_.Find<QAction>("ripeti")->trigger();
    if (fixture_.open.Setup() != way.back()) qFatal("a step back and forth does not lead to where it began");
  }
}

// However many steps it took: undone, the set-up is the one before.
void RandomUser::UndoWhatWasDone() {
  if (!fixture_.open.Setup().calculation) return;
  static const std::vector<void (RandomUser::*)()> kEdits = {
      &RandomUser::TypeNumber,   &RandomUser::StepNumber,   &RandomUser::MoveInList,
      &RandomUser::ClickCheck,   &RandomUser::TypeIntoList, &RandomUser::CopyAndPaste,
      &RandomUser::DropMaterial, &RandomUser::MoveLayers,   &RandomUser::ChooseCalculation,
      &RandomUser::UseVariants,  &RandomUser::PasteTable};
  // What is typed next is a step of its own.
  if (QWidget* focus = QApplication::focusWidget()) focus->clearFocus();
  const elements::Setup before = fixture_.open.Setup();
  for (int edits = 1 + Pick(6); edits > 0; --edits)
    (this->*kEdits.at(static_cast<std::size_t>(Pick(static_cast<qsizetype>(kEdits.size())))))();
  if (QWidget* focus = QApplication::focusWidget()) focus->clearFocus();
  const elements::Setup after = fixture_.open.Setup();
  int steps = 0;
  for (; fixture_.open.Setup() != before; ++steps) {
    if (!fixture_.open.Steps().ToUndo() || steps > kMostSteps)
      qFatal("no number of steps back leads to where the edits began");
    fixture_.Find<QAction>("annulla")->trigger();
  }
  if (Pick(2) == 0) return;
  for (; steps > 0; --steps) fixture_.Find<QAction>("ripeti")->trigger();
  if (fixture_.open.Setup() != after) qFatal("the same steps forth do not lead to where the edits ended");
}

// A step of layers is taken back as one, by menu, keys or the element as a whole.
void RandomUser::MoveLayers() {
  const elements::Setup before = fixture_.open.Setup();
  const auto step_before = fixture_.open.Steps().ToUndo();
  if (Pick(5) == 0) {
    auto* action = fixture_.Find<QAction>(Pick(2) == 0 ? "gira" : "specchia");
    if (action->isEnabled()) action->trigger();
  } else if (auto* field = AnyShown<QLineEdit>()) {
    QWidget* keys = field->parentWidget()->inherits("QComboBox") ? field->parentWidget() : field;
    keys->setFocus();
    QTest::keyClick(
        keys,
        OneOf(QList{Qt::Key_Up, Qt::Key_Down, Qt::Key_I, Qt::Key_D, Qt::Key_Delete, Qt::Key_C, Qt::Key_V}),
        Qt::ControlModifier | Qt::ShiftModifier);
  }
  if (Pick(2) == 0 || fixture_.open.Setup() == before || step_before == fixture_.open.Steps().ToUndo())
    return;
  const elements::Setup after = fixture_.open.Setup();
  fixture_.Find<QAction>("annulla")->trigger();
  fixture_.Find<QAction>("ripeti")->trigger();
  if (fixture_.open.Setup() != after) qFatal("a step of layers does not come back as it was");
}

void RandomUser::UseVariants() {
  const auto buttons = fixture_.window->findChildren<QToolButton*>(QRegularExpression("^Variante_"));
  if (buttons.isEmpty() || Pick(4) == 0) return FixVariant();
  QToolButton* button = OneOf(buttons);
  if (!button->isVisible()) return;
  switch (Pick(4)) {
    case 0:
      QTest::keyClick(button, Qt::Key_Delete);
      return;
    case 1:
      QTest::keyClick(button, Pick(2) == 0 ? Qt::Key_Left : Qt::Key_Right,
                      Qt::ControlModifier | Qt::ShiftModifier);
      return;
    default:
      GoToVariant(*button);
  }
}

void RandomUser::FixVariant() {
  const elements::Setup before = fixture_.open.Setup();
  fixture_.Find<QAction>("fissa_variante")->trigger();
  elements::Setup after = fixture_.open.Setup();
  const std::vector<elements::Variant> variants = VariantsOf(after.further);
  after.further = before.further;
  if (after != before && !fixture_.open.Steps().ToUndo()) qFatal("fixing a variant changed the set-up");
  if (variants.size() > VariantsOf(before.further).size()) fixed_[variants.back().setup_text] = Alone(after);
}

// What a variant gives back is what was fixed, whatever was done in between.
void RandomUser::GoToVariant(QToolButton& button) {
  const int index = button.objectName().section('_', 1).toInt();
  const std::vector<elements::Variant> variants = VariantsOf(fixture_.open.Setup().further);
  if (index < 0 || index >= static_cast<int>(variants.size())) qFatal("a button without a variant");
  QTest::mouseClick(&button, Qt::LeftButton);
  const auto fixed = fixed_.find(variants[static_cast<std::size_t>(index)].setup_text);
  if (fixed == fixed_.end()) return;
  const elements::Setup now = Alone(fixture_.open.Setup());
  if (now == fixed->second) return;
  // A run fills what is empty.
  elements::Setup completed = fixed->second;
  calculation::PrepareRun(completed);
  if (now != completed) qFatal("a variant does not give back what was fixed");
}

void RandomUser::PasteTable() {
  auto* box = AnyShown<MaterialBox>();
  if (box == nullptr) return;
  QApplication::clipboard()->setText(
      Pick(3) == 0
          ? QString("strato\tmm\nnulla\tx\n")
          : QString("Intonaco di calce e cemento\t15\nForati in laterizio 12 cm\t%1\n").arg(50 + Pick(200)));
  box->setFocus();
  QTest::keyClick(box, Qt::Key_V, Qt::ControlModifier);
}

void RandomUser::GoBack() { fixture_.Find<QAction>("annulla")->trigger(); }

void RandomUser::SwitchContinuous() { fixture_.Find<QAction>("calcolo_continuo")->trigger(); }

void RandomUser::StepNumber() {
  auto* field = AnyShown<QLineEdit>();
  if (field == nullptr) return;
  field->setFocus();
  const Qt::Key key = Pick(2) == 0 ? Qt::Key_Up : Qt::Key_Down;
  for (int steps = 1 + Pick(5); steps > 0; --steps)
    QTest::keyClick(field, key, Pick(3) == 0 ? Qt::ControlModifier : Qt::NoModifier);
}

void RandomUser::ChooseCalculation() {
  fixture_.Choose(
      elements::Catalogue()[static_cast<std::size_t>(Pick(elements::kCalculationCount))].calculation);
}

void RandomUser::PressKindButton() {
  fixture_.Find<QAction>("Button_" + QString::number(17 + Pick(6)))->trigger();
}

void RandomUser::Run() { fixture_.Run(); }

void RandomUser::ClickCheck() {
  QList<QAbstractButton*> buttons;
  for (auto* button : fixture_.window->findChildren<QAbstractButton*>()) {
    if (button->isVisible() && button->isEnabled() &&
        (button->inherits("QCheckBox") || button->inherits("QRadioButton")))
      buttons += button;
  }
  if (!buttons.isEmpty()) QTest::mouseClick(OneOf(buttons), Qt::LeftButton);
}

void RandomUser::MoveInList() {
  auto* list = AnyShown<QComboBox>();
  if (list == nullptr) return;
  if (Pick(2) == 0) list->setFocus();
  QTest::keyClick(list, OneOf(QList{Qt::Key_Up, Qt::Key_Down, Qt::Key_Home, Qt::Key_End, Qt::Key_PageDown}));
}

void RandomUser::TypeNumber() {
  auto* field = AnyShown<QLineEdit>();
  if (field == nullptr) return;
  field->setFocus();
  field->selectAll();
  const QString& keys = OneOf(kNumbers);
  if (keys.isEmpty()) {
    QTest::keyClick(field, Qt::Key_Backspace);
  } else {
    SendText(field, keys);
  }
}

void RandomUser::TypeGarbage() {
  auto* field = AnyShown<QLineEdit>();
  if (field == nullptr) return;
  field->setFocus();
  if (Pick(2) == 0) field->selectAll();
  SendText(field, OneOf(kGarbage));
}

void RandomUser::TypeIntoList() {
  auto* list = AnyShown<QComboBox>();
  if (list == nullptr || !list->isEditable()) return;
  list->setFocus();
  list->lineEdit()->selectAll();
  SendText(list, Pick(2) == 0 && list->count() > 0 ? list->itemText(Pick(list->count()))
                                                   : OneOf(Pick(2) == 0 ? kNumbers : kGarbage));
  if (Pick(2) == 0) QTest::keyClick(list, Qt::Key_Return);
}

void RandomUser::CopyAndPaste() {
  auto* from = AnyShown<QLineEdit>();
  auto* to = AnyShown<QLineEdit>();
  if (from == nullptr || to == nullptr) return;
  from->setFocus();
  from->selectAll();
  QTest::keyClick(from, Pick(2) == 0 ? Qt::Key_C : Qt::Key_X, Qt::ControlModifier);
  to->setFocus();
  if (Pick(2) == 0) to->selectAll();
  QTest::keyClick(to, Qt::Key_V, Qt::ControlModifier);
  if (Pick(2) == 0) QTest::keyClick(to, Qt::Key_Z, Qt::ControlModifier);
}

void RandomUser::PressAnyKey() {
  QWidget* focus = QApplication::focusWidget();
  QTest::keyClick(focus != nullptr ? focus : fixture_.window.get(),
                  kKeys.at(static_cast<std::size_t>(Pick(kKeys.size()))));
}

void RandomUser::ChangeTab() {
  if (Pick(2) == 0) {
    QTest::keyClick(fixture_.window.get(), static_cast<Qt::Key>(Qt::Key_1 + Pick(9)), Qt::ControlModifier);
  } else if (auto* bar = AnyShown<QTabBar>()) {
    const int tab = Pick(bar->count());
    if (bar->isTabVisible(tab)) QTest::mouseClick(bar, Qt::LeftButton, {}, bar->tabRect(tab).center());
  }
}

void RandomUser::OpenExample() {
  fixture_.file = OneOf(examples_);
  fixture_.Find<QAction>("Apri_Progetto")->trigger();
}

void RandomUser::OpenRubbish() {
  QFile file(OneOf(examples_));
  static_cast<void>(file.open(QIODevice::ReadOnly));
  QByteArray bytes = file.readAll();
  bytes[Pick(bytes.size())] = static_cast<char>(Pick(256));
  if (Pick(2) == 0) bytes.truncate(Pick(bytes.size()));
  QFile rubbish(folder_.filePath("rotto.drav"));
  static_cast<void>(rubbish.open(QIODevice::WriteOnly));
  rubbish.write(bytes);
  rubbish.close();
  fixture_.file = Pick(4) == 0 ? QString("/nowhere/at all.drav") : rubbish.fileName();
  fixture_.Find<QAction>("Apri_Progetto")->trigger();
}

void RandomUser::SaveAndReopen() {
  fixture_.file = Pick(5) == 0 ? QString("/nowhere/at all.drav") : folder_.filePath("salvato.drav");
  fixture_.Find<QAction>("Salva_Progetto")->trigger();
  if (Pick(2) == 0) fixture_.Find<QAction>("Apri_Progetto")->trigger();
}

void RandomUser::ShowTable() { fixture_.Find<QAction>("tab_risultati")->trigger(); }

void RandomUser::UseTable() {
  const auto* table = fixture_.window->findChild<QDialog*>("Form4");
  if (table == nullptr || !table->isVisible()) return;
  auto* button = table->findChild<QAbstractButton*>(Pick(2) == 0 ? "Command1_0" : "Command1_1");
  button->click();
}

void RandomUser::MoveMouse() {
  auto* view = fixture_.Find<QWidget>(Pick(2) == 0 ? "Picture1" : "Disegno");
  if (!view->isVisible() || view->width() < 1 || view->height() < 1) return;
  QTest::mouseMove(view, {Pick(view->width()), Pick(view->height())});
  if (Pick(20) > 0) return;
  QContextMenuEvent menu(QContextMenuEvent::Mouse, {5, 5}, view->mapToGlobal(QPoint(5, 5)));
  QApplication::sendEvent(view, &menu);
}

void RandomUser::Resize() { fixture_.window->resize(600 + Pick(1400), 300 + Pick(900)); }

void RandomUser::UseDialog() {
  const QString command = OneOf(QStringList{"dim_pareti", "info_progetto", "Versione"});
  auto* action = fixture_.Find<QAction>(command);
  if (!action->isEnabled()) return;
  QTimer::singleShot(0, fixture_.window.get(), [this] { AnswerDialog(); });
  action->trigger();
}

void RandomUser::AnswerDialog() {
  QWidget* dialog = QApplication::activeModalWidget();
  if (dialog == nullptr) return;
  for (auto* field : dialog->findChildren<QLineEdit*>()) {
    field->selectAll();
    SendText(field, OneOf(Pick(3) == 0 ? kGarbage : kNumbers));
  }
  if (auto* ok = dialog->findChild<QAbstractButton*>("Command1")) ok->click();
  // A dialog that refuses what was typed stays open.
  if (dialog->isVisible()) dialog->close();
}

void RandomUser::DropMaterial() {
  auto* box = AnyShown<QComboBox>();
  if (box == nullptr || box->count() == 0) return;
  const auto family = static_cast<elements::MaterialFamily>(Pick(3));
  const std::unique_ptr<QMimeData> mime(ToMime({family, box->itemText(Pick(box->count()))}));
  WindowFixture::Drop(box, *mime);
}

}  // namespace velmar::shell
