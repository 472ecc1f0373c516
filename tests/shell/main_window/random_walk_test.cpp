#include <QAction>
#include <QLabel>
#include <QLoggingCategory>
#include <QTemporaryDir>
#include <QTest>

#include "calculation/runs/run.h"
#include "foundation/decimal.h"
#include "foundation/rounding.h"
#include "tests/shell/main_window/one_truth.h"
#include "tests/shell/main_window/random_user.h"

namespace velmar::shell {
namespace {

constexpr int kSteps = 2500;
constexpr int kStepsBetweenSaves = 20;

/// What may change while a result stands: descriptions, and what the project holds beyond its inputs.
template <typename Element>
void Forget(Element& element) {
  element.description.clear();
}
elements::Setup WithoutWhatMayChange(elements::Setup setup) {
  setup.information = {};
  setup.further = {};
  Forget(setup.base);
  for (auto& component : setup.facade.components) Forget(component);
  return setup;
}

QString RatingText(const elements::ResultSet& result) {
  return QString::fromStdString(FormatShortest(RoundToEven(*(result.lnw ? result.lnw : result.rw)))) + " dB";
}

/// Watches that a result on the screen belongs to the set-up beside it.
class Watch {
 public:
  explicit Watch(const WindowFixture& fixture) : fixture_(fixture) {}

  /// What runs next runs without a result before it.
  void BeginAnew() { loss_factor_before_ = 0.0; }

  /// What is wrong now, empty when all is well. @param ran whether something may have run the calculation
  QString Fault(bool ran) {
    const auto& result = fixture_.open.Result();
    const auto* rating = fixture_.Find<QLabel>("Label4");
    if ((rating->isVisible() ? rating->text() : QString()) != (result ? RatingText(*result) : QString()))
      return "the rating on the screen is not that of the result";
    if (fixture_.Find<QAction>("esp_excel")->isEnabled() != result.has_value())
      return "the commands of a result do not follow it";
    const QString fault = result ? FaultOf(*result, ran) : QString();
    loss_factor_before_ = result ? result->loss_factor.value_or(0.0) : 0.0;
    return fault;
  }

 private:
  QString FaultOf(const elements::ResultSet& result, bool ran) {
    const elements::Setup& setup = fixture_.open.Setup();
    if (result == verified_ && WithoutWhatMayChange(setup) == of_setup_) return {};
    if (!ran) return "the result is that of another set-up";
    const auto again = [&](double loss_factor_before) {
      return calculation::RunCalculation(setup, loss_factor_before, [](const Message&) { return true; })
          .result;
    };
    // A result that follows a change has none before it.
    if (again(loss_factor_before_) != result && again(0.0) != result)
      return "the calculation of this set-up gives another result";
    verified_ = result;
    of_setup_ = WithoutWhatMayChange(setup);
    return {};
  }

  const WindowFixture& fixture_;
  std::optional<elements::ResultSet> verified_;
  elements::Setup of_setup_;
  double loss_factor_before_ = 0.0;
};

int FromEnvironment(const char* name, int otherwise) {
  bool given = false;
  const int value = qEnvironmentVariableIntValue(name, &given);
  return given ? value : otherwise;
}

}  // namespace

/// Thousands of actions. `VELMAR_WALK_STEPS` and `VELMAR_WALK_SEED` make it longer, or another one.
class RandomWalkTest : public QObject {
  Q_OBJECT

 private slots:
  // The result on the screen belongs to the set-up, every field says what the set-up holds, the section draws
  // it, and a file keeps it.
  void hasOneTruth() {
    QLoggingCategory::setFilterRules("*.warning=false");
    WindowFixture fixture;
    fixture.window->show();
    QVERIFY(QTest::qWaitForWindowActive(fixture.window.get()));
    const int steps = FromEnvironment("VELMAR_WALK_STEPS", kSteps);
    RandomUser user(fixture, static_cast<unsigned>(FromEnvironment("VELMAR_WALK_SEED", 20261120)));
    Watch watch(fixture);
    const QTemporaryDir folder;
    std::map<QString, int> done;
    int results = 0;
    for (int step = 0; step < steps; ++step) {
      const QString action = user.Act();
      if (step % 16 == 0) QApplication::processEvents();
      const bool ran = fixture.Find<QAction>("calcolo_continuo")->isChecked() || action == "run" ||
                       action == "press any key" || action == "switch the continuous calculation" ||
                       action == "use variants" || action == "undo what was done";
      if (action == "use variants" || action == "undo what was done") watch.BeginAnew();
      const QString fault = watch.Fault(ran);
      QVERIFY2(fault.isEmpty(), qPrintable(QString("step %1, %2: %3").arg(step).arg(action, fault)));
      const QString untruth = Untruth(fixture);
      QVERIFY2(untruth.isEmpty(), qPrintable(QString("step %1, %2: %3").arg(step).arg(action, untruth)));
      if (step % kStepsBetweenSaves == 0) {
        const QString lost = LostBySaving(fixture, folder.filePath("verità.drav"));
        QVERIFY2(lost.isEmpty(),
                 qPrintable(QString("step %1, %2: saving loses %3").arg(step).arg(action, lost)));
      }
      QVERIFY(fixture.window->isVisible());
      ++done[action];
      results += action == "run" && fixture.open.Result() ? 1 : 0;
    }
    for (const auto& [action, count] : done) qInfo("%6d %s", count, qPrintable(action));
    qInfo("%6d results, %d refusals", results, static_cast<int>(fixture.told.size()));
    QVERIFY(results > steps / 100);
  }
};

}  // namespace velmar::shell

QTEST_MAIN(velmar::shell::RandomWalkTest)
#include "random_walk_test.moc"
