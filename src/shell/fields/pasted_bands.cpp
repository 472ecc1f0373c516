#include "shell/fields/pasted_bands.h"

#include <QRegularExpression>
#include <QStringList>
#include <cmath>

#include "acoustics/bands.h"
#include "foundation/decimal.h"
#include "shell/windows/phrases.h"

namespace velmar::shell {
namespace {

using Bands = std::map<std::size_t, std::string>;

QStringList LinesOf(const QString& text) {
  QStringList lines = text.split(QRegularExpression(QStringLiteral("\r\n|\n|\r")));
  while (!lines.isEmpty() && lines.constLast().trimmed().isEmpty()) lines.removeLast();
  return lines;
}

QStringList CellsOf(const QString& line) {
  QStringList cells = line.split(QRegularExpression(QStringLiteral("[\t;]")));
  for (QString& cell : cells) cell = cell.trimmed();
  while (!cells.isEmpty() && cells.constLast().isEmpty()) cells.removeLast();
  return cells;
}

/// The band whose frequency `cell` names.
std::optional<std::size_t> BandNamed(QString cell) {
  static const QRegularExpression unit(QStringLiteral("\\s*(k?)Hz$"),
                                       QRegularExpression::CaseInsensitiveOption);
  double factor = 1.0;
  if (const auto match = unit.match(cell); match.hasMatch()) {
    constexpr double kHertzInKilohertz = 1000.0;
    if (!match.captured(1).isEmpty()) factor = kHertzInKilohertz;
    cell.truncate(match.capturedStart());
  }
  const std::optional<double> frequency = ParseDecimal(ToUtf8(cell));
  if (!frequency) return std::nullopt;
  for (std::size_t band = 0; band < acoustics::kBandCount; ++band) {
    if (std::abs(*frequency * factor - acoustics::BandCentre(band)) < 0.5) return band;
  }
  return std::nullopt;
}

/// Lines of a frequency and a level; nothing when one of them is something else.
std::optional<Bands> ByFrequency(const QStringList& lines) {
  Bands bands;
  for (const QString& line : lines) {
    const QStringList cells = CellsOf(line);
    if (cells.size() != 2) return std::nullopt;
    const auto band = BandNamed(cells.at(0));
    if (!band || !ParseDecimal(ToUtf8(cells.at(1)))) return std::nullopt;
    bands[*band] = ToUtf8(cells.at(1));
  }
  return bands;
}

}  // namespace

bool IsTableOfCells(const QString& text) {
  const QStringList lines = LinesOf(text);
  return lines.size() > 1 || (!lines.isEmpty() && CellsOf(lines.constFirst()).size() > 1);
}

std::vector<std::vector<std::string>> CellsOfTable(const QString& text) {
  std::vector<std::vector<std::string>> table;
  for (const QString& line : LinesOf(text)) {
    std::vector<std::string>& cells = table.emplace_back();
    for (const QString& cell : CellsOf(line)) cells.push_back(ToUtf8(cell));
  }
  return table;
}

std::optional<Bands> ReadPastedBands(const QString& text, std::size_t band) {
  const QStringList lines = LinesOf(text);
  if (auto bands = ByFrequency(lines)) return bands;
  std::vector<std::string> numbers;
  for (const QString& line : lines) {
    const QStringList cells = CellsOf(line);
    if (cells.isEmpty()) numbers.emplace_back();
    for (const QString& cell : cells) {
      numbers.push_back(ToUtf8(cell));
      if (!cell.isEmpty() && !ParseDecimal(numbers.back())) return std::nullopt;
    }
  }
  if (numbers.size() == acoustics::kBandCount) band = 0;
  if (numbers.size() == acoustics::kLastRatedBand - acoustics::kFirstRatedBand + 1)
    band = acoustics::kFirstRatedBand;
  if (band + numbers.size() > acoustics::kBandCount) return std::nullopt;
  Bands bands;
  for (std::size_t i = 0; i < numbers.size(); ++i) bands[band + i] = numbers.at(i);
  return bands;
}

}  // namespace velmar::shell
