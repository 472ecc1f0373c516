#include "storage/project/line_writer.h"

#include <algorithm>
#include <cmath>

#include "foundation/decimal.h"
#include "storage/files/windows_1252.h"
#include "storage/project/text_rules.h"

namespace velmar::storage {
namespace {

constexpr std::string_view kLineEnd = "\r\n";

}  // namespace

void LineWriter::Text(std::string_view text) {
  std::string line(text);
  std::ranges::replace(line, '\0', ' ');
  SpianaCRLF(line);
  bytes_ += Windows1252FromUtf8(line);
  bytes_ += kLineEnd;
}

void LineWriter::NumberText(const std::string& digits) {
  if (!digits.starts_with('-')) bytes_ += ' ';
  bytes_ += digits;
  bytes_ += ' ';
  bytes_ += kLineEnd;
}

void LineWriter::Integer(int value) { NumberText(std::to_string(value)); }

void LineWriter::Number(double value) { NumberText(FormatShortest(std::isfinite(value) ? value : 0.0)); }

void LineWriter::Single(float value) { NumberText(FormatShortest(std::isfinite(value) ? value : 0.0F)); }

void LineWriter::Boolean(bool value) { Text(value ? "Vero" : "Falso"); }

void LineWriter::Blank() { bytes_ += kLineEnd; }

}  // namespace velmar::storage
