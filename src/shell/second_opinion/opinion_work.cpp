#include "shell/second_opinion/opinion_work.h"

#include <QtConcurrentRun>
#include <exception>

namespace velmar::shell {
namespace {

/// A model that fails is no opinion; the result that stands needs none.
validation::SecondOpinion Form(const elements::Setup& setup, const elements::ResultSet& result,
                               const validation::Accuracy& accuracy) {
  try {
    return validation::FormOpinion(setup, result, accuracy);
  } catch (const std::exception& failure) {
    qWarning("second opinion: %s", failure.what());
    return {};
  }
}

}  // namespace

OpinionWork::OpinionWork(const calculation::OpenCalculation& open, const validation::KnownAccuracy& accuracy,
                         QObject* parent)
    : QObject(parent), open_(open), accuracy_(accuracy) {
  connect(&watcher_, &QFutureWatcherBase::finished, this, &OpinionWork::Take);
}

OpinionWork::~OpinionWork() { watcher_.waitForFinished(); }

bool OpinionWork::IsAboutNow(const std::optional<Question>& question) const {
  const auto& result = open_.Result();
  return question && result && question->result == *result && question->setup == open_.Setup();
}

void OpinionWork::Follow() {
  const bool due = open_.Result() && open_.Setup().calculation;
  if (due && IsAboutNow(question_)) return;
  const bool was_there = opinion_ || busy_;
  opinion_.reset();
  busy_ = due;
  // What is under way cannot be stopped; its end looks here again.
  if (due && !watcher_.isRunning()) Start();
  if (due || was_there) emit Changed();
}

void OpinionWork::Start() {
  question_ = Question{open_.Setup(), *open_.Result()};
  const validation::Accuracy& accuracy = accuracy_.Get();
  watcher_.setFuture(QtConcurrent::run(
      [question = *question_, &accuracy] { return Form(question.setup, question.result, accuracy); }));
}

void OpinionWork::Take() {
  if (IsAboutNow(question_)) {
    opinion_ = watcher_.result();
    busy_ = false;
    emit Changed();
  } else if (busy_) {
    Start();
  } else {
    question_.reset();
  }
}

}  // namespace velmar::shell
