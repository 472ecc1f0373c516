#include "shell/second_opinion/route_window.h"

#include <QDialogButtonBox>
#include <QPushButton>
#include <QTextBrowser>
#include <QVBoxLayout>

#include "foundation/decimal.h"
#include "foundation/message_rows.h"
#include "shell/windows/phrases.h"
#include "validation/model_route.h"

namespace velmar::shell {
namespace {

constexpr QSize kFirstSize{560, 600};

std::string Signed(double value_db) { return (value_db > 0.0 ? "+" : "") + FormatFixed(value_db, 1) + " dB"; }

/// "Predicted minus measured: mean -1,2 dB, standard deviation 2,1 dB, worst +6,0 dB (43 measurements, 3
/// sources)".
Message ErrorLines(const validation::ModelOpinion& opinion) {
  if (!opinion.errors) return {{kRouteNotTriedRow}};
  const validation::ErrorSummary& errors = *opinion.errors;
  return {{kRouteCalculatedRow, std::string(" "), kRouteMeanRow, " " + Signed(errors.bias) + ", ",
           kRouteSpreadRow, " " + FormatFixed(errors.spread, 1) + " dB, ", kRouteWorstRow,
           " " + Signed(errors.worst) + " (" + std::to_string(errors.count) + " ", kMeasurementsRow,
           ", " + std::to_string(errors.sources) + " ", kRouteSourcesRow, std::string(")")}};
}

}  // namespace

RouteWindow::RouteWindow(const presentation::Words& words, QWidget* parent) : QDialog(parent), words_(words) {
  setObjectName("FinestraPerche");
  setWindowTitle(Text(words_, kRouteTitleRow));
  auto* column = new QVBoxLayout(this);
  text_ = new QTextBrowser(this);
  text_->setObjectName("TestoPerche");
  text_->setAccessibleName(windowTitle());
  column->addWidget(text_);
  auto* buttons = new QDialogButtonBox(this);
  buttons->addButton(Text(words_, kCloseRow), QDialogButtonBox::RejectRole);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  column->addWidget(buttons);
  resize(kFirstSize);
}

void RouteWindow::Add(QString& page, MessageRow heading, const Message& lines) const {
  QStringList shown;
  for (const MessageLine& line : lines) {
    if (const QString words = Text(words_, line); !words.isEmpty()) shown += words.toHtmlEscaped();
  }
  if (shown.isEmpty()) return;
  page += "<p><b>" + Text(words_, heading).toHtmlEscaped() + "</b><br>" + shown.join("<br>") + "</p>";
}

void RouteWindow::Show(const validation::ModelOpinion& opinion, const elements::Setup& setup) {
  model_ = opinion.id;
  const validation::ModelRoute route = validation::RouteOf(opinion.id, setup);
  QString page;
  Add(page, kRouteModelRow, {route.model});
  Add(page, kRouteReasonRow, {route.reason});
  Add(page, kRouteSourceRow, {route.source});
  Add(page, kRouteAssumptionsRow, {route.assumptions});
  Add(page, kRouteInputsRow, route.inputs.empty() ? Message{{kRouteAsEnteredRow}} : route.inputs);
  Add(page, kRouteLimitsRow, {route.limits});
  Add(page, kRouteErrorRow, ErrorLines(opinion));
  Add(page, kOpinionIntervalHeadRow, {validation::IntervalLine(opinion.interval)});
  text_->setHtml(page);
}

}  // namespace velmar::shell
