#include "storage/files/store_failure.h"

#include <cerrno>
#include <system_error>

#include "foundation/message_rows.h"

namespace velmar::storage {
namespace {

/// What is said of a reason, as a row and in words.
struct ReasonTexts {
  MessageRow row{};
  const char* italian = "";
  const char* english = "";
};

ReasonTexts TextsOf(StoreReason reason) {
  switch (reason) {
    case StoreReason::kNotFound:
      return {kNotFoundRow, "Il file o la cartella non esiste.", "The file or folder does not exist."};
    case StoreReason::kIsFolder:
    case StoreReason::kNotAFile:
      return {kNotAFileRow, "Il percorso indica una cartella o un dispositivo, non un file.",
              "The path names a folder or a device, not a file."};
    case StoreReason::kNotAllowed:
      return {kNotAllowedRow, "Accesso negato: controllare i permessi del file e della cartella.",
              "Access denied: check the permissions of the file and the folder."};
    case StoreReason::kDiskFull:
      return {kDiskFullRow, "Il disco è pieno: liberare spazio e riprovare.",
              "The disk is full: free some space and try again."};
    case StoreReason::kTooLarge:
      return {kTooLargeFileRow, "Il file è troppo grande per un file di questo tipo.",
              "The file is too large for a file of this kind."};
    case StoreReason::kLinkLoop:
      return {kReasonLinkLoopRow, "Il percorso è un collegamento che rimanda a se stesso.",
              "The path is a link that leads back to itself."};
    case StoreReason::kNameTooLong:
      return {kReasonNameTooLongRow, "Il nome del file o della cartella è troppo lungo.",
              "The name of the file or folder is too long."};
    case StoreReason::kInUse:
      return {kReasonInUseRow, "Il file è in uso da parte di un altro programma.",
              "The file is in use by another program."};
    case StoreReason::kNoAnswer:
      return {kReasonNoAnswerRow, "Il disco o la rete non risponde.",
              "The disk or the network does not answer."};
    case StoreReason::kNoResources:
      return {kReasonNoResourcesRow, "Il sistema non ha più risorse: chiudere qualche programma e riprovare.",
              "The system is out of resources: close some programs and try again."};
    case StoreReason::kSystem:
      break;
  }
  return {kSystemErrorRow, "Errore del sistema, codice", "System error, code"};
}

std::string WordsOf(int error) { return std::generic_category().message(error); }

Message MessageOf(StoreAction action, StoreReason reason, const std::string& path, int error) {
  return {{action == StoreAction::kRead ? kCannotReadRow : kCannotWriteRow, " " + path},
          ReasonLine(reason, error)};
}

Message MessageOf(StoreAction action, int error, const std::string& path, PreviousFile previous) {
  Message message = MessageOf(action, ReasonOfErrorNumber(error), path, error);
  if (previous == PreviousFile::kIntact) message.push_back({kPreviousFileIntactRow});
  return message;
}

std::string DetailOf(StoreAction action, const std::string& path, const std::string& words) {
  return (action == StoreAction::kRead ? "cannot read " : "cannot write ") + path + ": " + words;
}

}  // namespace

MessageLine ReasonLine(StoreReason reason, int error) {
  MessageLine line{TextsOf(reason).row};
  if (reason == StoreReason::kSystem) line.push_back(" " + std::to_string(error));
  return line;
}

std::pair<std::string, std::string> ReasonWords(StoreReason reason, int error) {
  const ReasonTexts texts = TextsOf(reason);
  const std::string code = reason == StoreReason::kSystem ? " " + std::to_string(error) : std::string();
  return {texts.italian + code, texts.english + code};
}

StoreFailure::StoreFailure(StoreAction action, StoreReason reason, const std::string& path,
                           const std::string& detail)
    : Failure(MessageOf(action, reason, path, 0), DetailOf(action, path, detail)), reason_(reason) {}

StoreFailure::StoreFailure(StoreAction action, int error, const std::string& path, PreviousFile previous)
    : Failure(MessageOf(action, error, path, previous), DetailOf(action, path, WordsOf(error))),
      reason_(ReasonOfErrorNumber(error)) {}

StoreReason ReasonOfErrorNumber(int error) {
  switch (error) {
    case ENOENT:
    case ENOTDIR:
      return StoreReason::kNotFound;
    case EISDIR:
      return StoreReason::kIsFolder;
    case EACCES:
    case EPERM:
    case EROFS:
      return StoreReason::kNotAllowed;
    case ENOSPC:
    case EDQUOT:
    case EFBIG:
      return StoreReason::kDiskFull;
    case ELOOP:
      return StoreReason::kLinkLoop;
    case ENAMETOOLONG:
      return StoreReason::kNameTooLong;
    case EBUSY:
    case ETXTBSY:
      return StoreReason::kInUse;
    case EIO:
    case ENXIO:
    case ENODEV:
    case ESTALE:
    case ETIMEDOUT:
    case EHOSTDOWN:
    case EHOSTUNREACH:
      return StoreReason::kNoAnswer;
    case EMFILE:
    case ENFILE:
    case ENOMEM:
      return StoreReason::kNoResources;
    default:
      return StoreReason::kSystem;
  }
}

}  // namespace velmar::storage
