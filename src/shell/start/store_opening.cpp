#include "shell/start/store_opening.h"

#include <QApplication>
#include <QMessageBox>

#include "foundation/failure.h"
#include "shell/start/loader_window.h"
#include "shell/windows/long_work.h"
#include "shell/windows/phrases.h"

namespace velmar::shell {
namespace {

/// The loader gives way to a box: some systems keep a splash screen above everything.
class WithoutLoader {
 public:
  explicit WithoutLoader(LoaderWindow& loader) : loader_(loader), visible_(loader.isVisible()) {
    loader_.hide();
  }
  WithoutLoader(const WithoutLoader&) = delete;
  WithoutLoader& operator=(const WithoutLoader&) = delete;
  ~WithoutLoader() { loader_.setVisible(visible_); }

 private:
  LoaderWindow& loader_;
  bool visible_;
};

application::StartTalk TalkOnScreen(const presentation::Words& words, const Boxes& boxes,
                                    LoaderWindow& loader) {
  const auto tell = [&loader, boxes, words](Tone tone, const Message& message) {
    const WithoutLoader hidden(loader);
    boxes.tell(tone, Text(words, message));
  };
  application::StartTalk talk;
  talk.ask = [&loader, boxes, words](const Message& question) {
    const WithoutLoader hidden(loader);
    return boxes.ask(Text(words, question));
  };
  talk.tell = [tell](const Message& message) { tell(Tone::kInformation, message); };
  talk.warn = [tell](const Message& message) { tell(Tone::kCritical, message); };
  talk.work = [&loader, words](const Message& what, const std::function<void()>& job) {
    RunBeside(job, [&] { loader.ShowWork(Text(words, what)); });
  };
  return talk;
}

presentation::Words WordsOf(const application::Environment& environment) {
  return [&messages = environment.messages](MessageRow row) { return messages.Text(row); };
}

}  // namespace

application::Environment OpenEnvironmentOnScreen(const QString& version) {
  const auto ask = [](const Message& question, const storage::MessageTable& messages) {
    const presentation::Words words = [&messages](MessageRow row) { return messages.Text(row); };
    return ScreenBoxes(words).ask(Text(words, question));
  };
  application::Environment environment = application::FindEnvironment(std::nullopt, ask);
  const presentation::Words words = WordsOf(environment);
  LoaderWindow loader(words, version);  // shown when something takes long
  application::OpenCatalogue(environment, TalkOnScreen(words, ScreenBoxes(words), loader));
  return environment;
}

application::OpenedStores OpenStoresOnScreen(const application::Environment& environment, const Boxes& boxes,
                                             LoaderWindow& loader) {
  return application::OpenStores(environment, TalkOnScreen(WordsOf(environment), boxes, loader));
}

void TellWithoutCatalogue(const std::exception& failure) {
  QString text = QString::fromUtf8(failure.what());
  if (const auto* told = dynamic_cast<const Failure*>(&failure))
    text = Text([](MessageRow) { return std::string(); }, told->UserMessage());
  QMessageBox box(QMessageBox::Critical, kProductName, text, QMessageBox::Ok);
  box.setTextFormat(Qt::PlainText);
  box.exec();
}

}  // namespace velmar::shell
