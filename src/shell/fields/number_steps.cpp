#include "shell/fields/number_steps.h"

#include <QKeyEvent>
#include <QWheelEvent>
#include <optional>

#include "foundation/decimal.h"
#include "foundation/rounding.h"
#include "shell/fields/number_field.h"
#include "shell/windows/phrases.h"

namespace velmar::shell {
namespace {

constexpr double kStep = 1.0;
constexpr double kLargeStep = 10.0;
constexpr int kNotch = 120;  ///< of a wheel, in eighths of a degree
// Decimals that a step keeps of what stood in the field.
constexpr int kDecimals = 6;

class Steps : public QObject {
 public:
  explicit Steps(NumberField* field) : QObject(field), field_(field) { field->installEventFilter(this); }

  bool eventFilter(QObject* watched, QEvent* event) override {
    // Others come too while the field is being destroyed, and is none any longer.
    const bool key = event->type() == QEvent::KeyPress;
    if (!key && event->type() != QEvent::Wheel) return QObject::eventFilter(watched, event);
    if (field_->isReadOnly() || !field_->isEnabled()) return false;
    return key ? TakeKey(static_cast<const QKeyEvent&>(*event))
               : TakeWheel(static_cast<QWheelEvent&>(*event));
  }

 private:
  static double Size(Qt::KeyboardModifiers modifiers) {
    return modifiers & Qt::ControlModifier ? kLargeStep : kStep;
  }

  bool TakeKey(const QKeyEvent& event) {
    if (event.modifiers() & ~(Qt::ControlModifier | Qt::KeypadModifier)) return false;
    if (event.key() == Qt::Key_Up) return Step(Size(event.modifiers()));
    return event.key() == Qt::Key_Down && Step(-Size(event.modifiers()));
  }

  bool TakeWheel(QWheelEvent& event) {
    if (!field_->hasFocus()) return false;
    turned_ += event.angleDelta().y();
    const int notches = turned_ / kNotch;
    turned_ -= notches * kNotch;
    if (notches != 0) Step(notches * Size(event.modifiers()));
    event.accept();
    return true;
  }

  bool Step(double by) {
    const QString text = field_->text().isEmpty() ? field_->placeholderText() : field_->text();
    const std::optional<double> number = ParseDecimal(ToUtf8(text));
    if (!number) return true;
    const double stepped = RoundToEven(*number + by, kDecimals);
    if (stepped <= 0.0) return true;
    field_->selectAll();
    field_->insert(FromUtf8(FormatShortest(stepped)));
    field_->selectAll();
    return true;
  }

  NumberField* field_;
  int turned_ = 0;
};

}  // namespace

void StepByArrows(NumberField* field) { new Steps(field); }

}  // namespace velmar::shell
