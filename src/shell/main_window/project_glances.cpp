#include "shell/main_window/project_glances.h"

#include <QtConcurrentRun>
#include <utility>

#include "calculation/runs/totals.h"
#include "foundation/decimal.h"
#include "foundation/message_rows.h"
#include "foundation/rounding.h"
#include "shell/commands/calculation_captions.h"
#include "shell/commands/command_table.h"
#include "shell/windows/phrases.h"

namespace velmar::shell {
namespace {

ProjectGlance Look(const ProjectGlances::Reader& read, const std::filesystem::path& project,
                   const elements::Setup& current) {
  ProjectGlance glance;
  try {
    elements::Setup setup = read(project, current);
    glance.readable = true;
    glance.title = setup.information.front().value;
    glance.calculation = setup.calculation;
    if (!setup.calculation) return glance;
    calculation::PrepareRun(setup);
    glance.section = presentation::SectionOf(setup);
    glance.surface_mass_kg_m2 = calculation::ComputeTotals(setup).surface_mass_kg_m2;
    // A result that leaves a relation's range needs a yes of the user's.
    glance.outcome = calculation::RunCalculation(setup, 0.0, [](const Message&) { return false; });
  } catch (const std::exception& failure) {
    qWarning("%s: %s", project.c_str(), failure.what());
    return {};
  }
  return glance;
}

QString Marked(const QString& text) { return QStringLiteral("⚠ ") + text; }

}  // namespace

QString KindOf(const ProjectGlance& glance, const presentation::Words& words) {
  if (!glance.calculation) return {};
  const QString calculation =
      Text(words, MenuCaption(*glance.calculation)).section(QStringLiteral(" ["), 0, 0);
  for (const Command& command : Commands()) {
    if (command.Kind() != RowOf(*glance.calculation).button) continue;
    const QString kind = Text(words, command.Caption());
    return calculation.startsWith(kind) ? calculation : kind + ": " + calculation;
  }
  return calculation;
}

QString RatingOf(const ProjectGlance& glance, const presentation::Words& words) {
  if (!glance.readable) return Marked(Text(words, kUnreadableProjectRow));
  if (glance.outcome.result) {
    const elements::ResultSet& result = *glance.outcome.result;
    if (!result.lnw && !result.rw) return {};
    const QString value = FromUtf8(FormatShortest(RoundToEven(result.lnw ? *result.lnw : *result.rw)));
    return (result.lnw ? "Ln,w " : "Rw ") + value + " dB";
  }
  const bool asks = glance.outcome.status == calculation::RunStatus::kDeclined;
  return Marked(Text(words, asks ? kTileAsksRow : kTileRefusedRow));
}

QString HindranceOf(const ProjectGlance& glance, const presentation::Words& words) {
  if (!glance.readable) return Text(words, kUnreadableProjectTipRow);
  if (!glance.calculation) return Text(words, kProjectOfUnknownCalculationRow);
  if (glance.outcome.result) return {};
  if (glance.outcome.status == calculation::RunStatus::kDeclined) return Text(words, kTileAsksTipRow);
  if (glance.outcome.refusal) return Text(words, glance.outcome.refusal->reason);
  return glance.outcome.messages.empty() ? QString() : Text(words, glance.outcome.messages.back());
}

ProjectGlances::ProjectGlances(Reader read, QObject* parent) : QObject(parent), read_(std::move(read)) {
  thread_.setMaxThreadCount(1);
  thread_.setThreadPriority(QThread::LowPriority);
  connect(&watcher_, &QFutureWatcherBase::finished, this, &ProjectGlances::Finish);
}

ProjectGlances::~ProjectGlances() { watcher_.waitForFinished(); }

void ProjectGlances::LookAt(const std::vector<std::filesystem::path>& projects, elements::Setup current) {
  if (!read_) return;
  current_ = std::move(current);
  waiting_ = {projects.begin(), projects.end()};
  forgotten_ = true;
  if (!watcher_.isRunning()) Begin();
}

void ProjectGlances::Begin() {
  if (waiting_.empty()) return;
  under_way_ = std::move(waiting_.front());
  waiting_.pop_front();
  forgotten_ = false;
  watcher_.setFuture(QtConcurrent::run(&thread_, [read = read_, project = under_way_, current = current_] {
    return Look(read, project, current);
  }));
}

void ProjectGlances::Finish() {
  if (!forgotten_) emit Seen(under_way_, watcher_.result());
  Begin();
}

}  // namespace velmar::shell
