#pragma once

#include <array>
#include <memory>
#include <string>

class QGuiApplication;

namespace velmar::cli {

/// What Qt wants before it draws text, made on first use: a run that draws nothing never starts it, and one
/// that draws needs no display.
class OffscreenDisplay {
 public:
  OffscreenDisplay();
  ~OffscreenDisplay();
  OffscreenDisplay(const OffscreenDisplay&) = delete;
  OffscreenDisplay& operator=(const OffscreenDisplay&) = delete;

  /// From now on Qt draws. Keeps the number format of the process, which Qt would take from the user's.
  void Open();

 private:
  std::array<std::string, 3> words_;
  std::array<char*, 4> arguments_{};  ///< Qt keeps looking at them
  int argument_count_ = 3;
  std::unique_ptr<QGuiApplication> application_;
};

}  // namespace velmar::cli
