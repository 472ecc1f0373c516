#pragma once

#include <string>
#include <string_view>

namespace velmar::storage {

/// Writes a project file line by line in Windows-1252 with CR LF. Numbers have a decimal comma whatever the
/// language of the system.
class LineWriter {
 public:
  /// The value as it stands; a line break becomes one blank, and so does a null character.
  void Text(std::string_view text);
  /// One blank before a number that is not negative, one behind every number.
  void Integer(int value);
  /// The fewest digits that give the value back; a value that is not finite is written as 0, which the reader
  /// would otherwise refuse together with the whole file.
  void Number(double value);
  void Single(float value);
  /// "Vero" or "Falso".
  void Boolean(bool value);
  void Blank();

  /// What was written so far.
  const std::string& Bytes() const { return bytes_; }

 private:
  void NumberText(const std::string& digits);

  std::string bytes_;
};

}  // namespace velmar::storage
