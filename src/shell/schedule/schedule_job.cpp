#include "shell/schedule/schedule_job.h"

#include <QThread>
#include <utility>

#include "foundation/failure.h"
#include "foundation/message_rows.h"
#include "storage/files/open_elsewhere.h"
#include "storage/files/whole_file.h"

namespace velmar::shell {

ScheduleJob::~ScheduleJob() {
  Cancel();
  if (thread_ != nullptr) thread_->wait();
}

void ScheduleJob::Start(documents::ScheduleOrder order, documents::ScheduleTools tools,
                        std::filesystem::path target) {
  cancelled_ = false;
  made_.reset();
  failure_ = nullptr;
  thread_ = QThread::create([this, order = std::move(order), tools = std::move(tools),
                             target = std::move(target)] { Work(order, tools, target); });
  thread_->setParent(this);
  connect(thread_, &QThread::finished, this, [this] {
    std::exchange(thread_, nullptr)->deleteLater();
    emit Ended();
  });
  thread_->start();
}

void ScheduleJob::Work(const documents::ScheduleOrder& order, const documents::ScheduleTools& tools,
                       const std::filesystem::path& target) {
  try {
    if (storage::IsOpenElsewhere(target))
      throw velmar::Failure({{kFillingFailedRow}, {target.string()}}, "open elsewhere");
    auto made = documents::MakeSchedule(
        order, tools, [this](std::size_t done, std::size_t steps, const std::string& project) {
          emit Progressed(static_cast<int>(done), static_cast<int>(steps), QString::fromStdString(project));
          return !cancelled_;
        });
    if (!made || cancelled_) return;
    storage::WriteWhole(target, made->bytes);
    made->bytes.clear();
    made_ = std::move(made);
  } catch (...) {
    failure_ = std::current_exception();
  }
}

}  // namespace velmar::shell
