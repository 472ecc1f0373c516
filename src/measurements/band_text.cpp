#include "measurements/band_text.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <span>
#include <utility>

#include "foundation/decimal.h"
#include "foundation/message_rows.h"
#include "foundation/utf8.h"
#include "storage/files/windows_1252.h"

namespace velmar::measurements {
namespace {

using Cells = std::vector<std::string>;

/// Nominal third-octave centres that analysers write beyond those of the library.
constexpr std::array kOtherCentres = {0.8,  1.0, 1.25,  1.6,   2.0,    2.5,    3.15,   4.0,
                                      5.0,  6.3, 8.0,   10.,   12.5,   16.,    20.,    25.,
                                      31.5, 40., 6300., 8000., 10000., 12500., 16000., 20000.};
/// Exact centres of base ten differ from the nominal ones by up to 1.6 %.
constexpr double kCentreTolerance = 0.017;
constexpr std::size_t kFewestOctaves = 5;
constexpr double kHertzInKilohertz = 1000.0;

std::string Trimmed(std::string_view cell) {
  constexpr std::string_view kNoBreakSpace = "\xC2\xA0";
  const auto starts = [&] { return cell.starts_with(kNoBreakSpace); };
  const auto ends = [&] { return cell.ends_with(kNoBreakSpace); };
  while (!cell.empty() && (cell.front() == ' ' || cell.front() == '"' || starts()))
    cell.remove_prefix(starts() ? kNoBreakSpace.size() : 1);
  while (!cell.empty() && (cell.back() == ' ' || cell.back() == '"' || ends()))
    cell.remove_suffix(ends() ? kNoBreakSpace.size() : 1);
  return std::string(cell);
}

/// `cell` without the unit `unit` at its end, case ignored; nothing taken away when it has none.
bool TakeUnit(std::string& cell, std::string_view unit) {
  const std::string folded = FoldCase(cell);
  if (folded.size() != cell.size() || !folded.ends_with(unit)) return false;
  cell = Trimmed(std::string_view(cell).substr(0, cell.size() - unit.size()));
  return true;
}

/// A frequency in Hz and whether the cell named its unit.
struct Frequency {
  double hertz = 0.0;
  bool has_unit = false;
};

std::optional<Frequency> FrequencyOf(std::string cell) {
  const bool kilohertz = TakeUnit(cell, "khz") || TakeUnit(cell, "k");
  const bool hertz = !kilohertz && TakeUnit(cell, "hz");
  const auto value = ParseDecimal(cell);
  if (!value || *value <= 0.0) return std::nullopt;
  return Frequency{kilohertz ? *value * kHertzInKilohertz : *value, kilohertz || hertz};
}

/// The hertz of `frequency` behind one of `before`: 1, 1.25 ... without a unit, behind the hundreds, are
/// kilohertz.
double InHertz(const Frequency& frequency, double before) {
  const bool kilohertz = !frequency.has_unit && frequency.hertz < 20.0 && before >= 500.0;
  return kilohertz ? frequency.hertz * kHertzInKilohertz : frequency.hertz;
}

bool IsNear(double frequency, double centre) { return std::abs(frequency / centre - 1.0) < kCentreTolerance; }

std::optional<std::size_t> ThirdAt(double hertz) {
  for (std::size_t band = 0; band < acoustics::kBandCount; ++band) {
    if (IsNear(hertz, acoustics::BandCentre(band))) return band;
  }
  return std::nullopt;
}

bool IsOtherCentre(double hertz) {
  return std::ranges::any_of(kOtherCentres, [hertz](double centre) { return IsNear(hertz, centre); });
}

bool IsCentre(double hertz) { return ThirdAt(hertz) || IsOtherCentre(hertz); }

bool StandsForNothing(const std::string& cell) {
  const std::string folded = FoldCase(cell);
  return folded.empty() || folded == "-" || folded == "--" || folded == "---" || folded == "n.d." ||
         folded == "nd" || folded == "n/a";
}

std::optional<double> LevelOf(std::string cell) {
  TakeUnit(cell, "db");
  return ParseDecimal(cell);
}

Cells SplitAt(std::string_view line, char separator) {
  Cells cells;
  for (;;) {
    const std::size_t end = line.find(separator);
    cells.push_back(Trimmed(line.substr(0, end)));
    if (end == std::string_view::npos) break;
    line.remove_prefix(end + 1);
  }
  while (!cells.empty() && cells.back().empty()) cells.pop_back();
  return cells;
}

/// Cells between blanks; a unit that stands alone belongs to the number before it.
Cells SplitAtBlanks(std::string_view line) {
  Cells cells;
  for (std::string& word : SplitAt(line, ' ')) {
    const std::string folded = FoldCase(word);
    const bool unit = folded == "hz" || folded == "khz" || folded == "db";
    if (unit && !cells.empty()) {
      cells.back() += ' ' + word;
    } else if (!word.empty()) {
      cells.push_back(std::move(word));
    }
  }
  return cells;
}

struct Line {
  int number = 0;  ///< from 1
  Cells cells{};
};

std::vector<Line> LinesOf(std::string_view text, char separator) {
  std::vector<Line> lines;
  for (int number = 1;; ++number) {
    std::size_t end = text.find_first_of("\r\n");
    std::string_view line = text.substr(0, end);
    Cells cells = separator == ' ' ? SplitAtBlanks(line) : SplitAt(line, separator);
    if (!cells.empty()) lines.push_back({number, std::move(cells)});
    if (end == std::string_view::npos) return lines;
    if (text.substr(end, 2) == "\r\n") ++end;
    text.remove_prefix(end + 1);
  }
}

/// Whether `line` begins with the frequency of a band and goes on with a level.
bool IsBandLine(const Line& line) {
  if (line.cells.size() < 2) return false;
  const auto frequency = FrequencyOf(line.cells.front());
  return frequency && (frequency->hertz < 20.0 || IsCentre(frequency->hertz)) &&
         std::any_of(line.cells.begin() + 1, line.cells.end(),
                     [](const std::string& cell) { return LevelOf(cell).has_value(); });
}

std::string Joined(const Cells& cells) {
  std::string text;
  for (const std::string& cell : cells) text += (text.empty() ? "" : " ") + cell;
  return FirstCharacters(text, 40);
}

MessageLine Refusal(const Line& line, MessageRow why) {
  return {kTextLineRow, " " + std::to_string(line.number) + ", «" + Joined(line.cells) + "»: ", why};
}

RefusedText Refused(MessageRow why) { return {{{why}}}; }

/// The heading of a column without its unit, to be compared with a symbol.
std::string HeadingOf(const std::string& cell) {
  return FoldCase(Trimmed(std::string_view(cell).substr(0, cell.find_first_of("([,"))));
}

/// Collects band values and what is wrong with them.
class Collection {
 public:
  void Add(const Line& line, Frequency frequency, const std::string& level) {
    frequency.hertz = InHertz(frequency, highest_);
    if (!IsCentre(frequency.hertz)) return Refuse(line, kNoBandCentreRow);
    highest_ = std::max(highest_, frequency.hertz);
    if (StandsForNothing(level)) return;
    const auto value = LevelOf(level);
    if (!value) return Refuse(line, kNoLevelRow);
    if (!IsPossibleLevel(*value)) return Refuse(line, kLevelOutOfRangeRow);
    for (const auto& [hertz, known] : levels_) {
      if (IsNear(frequency.hertz, hertz)) return Refuse(line, kBandTwiceRow);
    }
    levels_.emplace(frequency.hertz, *value);
  }
  void Refuse(const Line& line, MessageRow why) { refused_.push_back(Refusal(line, why)); }

  std::variant<BandText, RefusedText> Finished() const {
    if (!refused_.empty()) return RefusedText{refused_};
    if (levels_.empty()) return Refused(kNoBandsInTextRow);
    BandText bands;
    bands.in_octaves = AreOctaves();
    for (const auto& [hertz, level] : levels_) {
      std::optional<double>* place = bands.in_octaves ? OctaveIn(bands, hertz) : ThirdIn(bands, hertz);
      if (place == nullptr) {
        ++bands.left_out;
      } else {
        *place = level;
      }
    }
    const auto is_set = [](const std::optional<double>& value) { return value.has_value(); };
    const bool none =
        std::ranges::none_of(bands.thirds, is_set) && std::ranges::none_of(bands.octaves, is_set);
    if (none) return Refused(kNoBandsInTextRow);
    return bands;
  }

 private:
  /// Below 50 Hz octave and third-octave tables write the same centres (31.5 Hz): they tell nothing.
  bool AreOctaves() const {
    std::size_t count = 0;
    for (const auto& [hertz, level] : levels_) {
      if (hertz < 45.0 || hertz > 9000.0) continue;
      const auto is_it = [hertz = hertz](double centre) { return IsNear(hertz, centre); };
      if (std::ranges::none_of(kOctaveCentres, is_it)) return false;
      ++count;
    }
    return count >= kFewestOctaves;
  }
  static std::optional<double>* OctaveIn(BandText& bands, double hertz) {
    for (std::size_t i = 0; i < kOctaveCentres.size(); ++i) {
      if (IsNear(hertz, kOctaveCentres.at(i))) return &bands.octaves.at(i);
    }
    return nullptr;
  }
  static std::optional<double>* ThirdIn(BandText& bands, double hertz) {
    const auto band = ThirdAt(hertz);
    return band ? &bands.thirds.at(*band) : nullptr;
  }

  std::map<double, double> levels_;
  double highest_ = 0.0;
  Message refused_;
};

/// The column of levels of a table of frequencies; nothing when there are several and no heading names it.
std::optional<std::size_t> LevelColumn(std::span<const Line> headings, std::span<const Line> table,
                                       std::string_view symbol) {
  std::size_t width = 0;
  for (const Line& line : table) width = std::max(width, line.cells.size());
  if (width <= 2) return 1;
  std::vector<std::size_t> named;
  const std::string wanted = FoldCase(symbol);
  for (const Line& line : headings) {
    if (line.cells.size() < 2) continue;
    named.clear();
    for (std::size_t i = 1; i < line.cells.size(); ++i) {
      const std::string heading = HeadingOf(line.cells[i]);
      if (heading == wanted || heading == wanted + "i" || heading == wanted + "'") named.push_back(i);
    }
    if (named.size() == 1) return named.front();
  }
  return std::nullopt;
}

std::variant<BandText, RefusedText> ReadTable(std::span<const Line> lines, std::string_view symbol) {
  const auto first = std::ranges::find_if(lines, IsBandLine);
  const auto last = std::find_if(lines.rbegin(), lines.rend(), IsBandLine).base();
  const std::span<const Line> table(first, last);
  const auto column = LevelColumn({lines.begin(), first}, table, symbol);
  if (!column) return Refused(kSeveralColumnsRow);
  Collection collection;
  for (const Line& line : lines) {
    const auto frequency = FrequencyOf(line.cells.front());
    const bool inside = &line >= &*table.begin() && &line <= &table.back();
    if (frequency) {
      collection.Add(line, *frequency, *column < line.cells.size() ? line.cells[*column] : std::string());
    } else if (inside) {
      collection.Refuse(line, kNoBandCentreRow);
    }
  }
  return collection.Finished();
}

/// Whether every cell of `line` behind the first is the frequency of a band, in rising order.
bool IsFrequencyLine(const Line& line, std::size_t from) {
  constexpr std::size_t kFewest = 5;
  if (line.cells.size() < from + kFewest) return false;
  double before = 0.0;
  for (std::size_t i = from; i < line.cells.size(); ++i) {
    const auto frequency = FrequencyOf(line.cells[i]);
    if (!frequency || !IsCentre(frequency->hertz) || frequency->hertz <= before) return false;
    before = frequency->hertz;
  }
  return true;
}

/// A line of frequencies and below it one of levels; nothing when `lines` are no such table.
std::optional<std::variant<BandText, RefusedText>> ReadSideways(const std::vector<Line>& lines) {
  for (std::size_t i = 0; i + 1 < lines.size(); ++i) {
    const std::size_t from = FrequencyOf(lines[i].cells.front()) ? 0 : 1;
    if (!IsFrequencyLine(lines[i], from)) continue;
    const Line& levels = lines[i + 1];
    Collection collection;
    if (levels.cells.size() > lines[i].cells.size()) collection.Refuse(levels, kMoreLevelsRow);
    for (std::size_t j = from; j < lines[i].cells.size(); ++j) {
      Line cell{levels.number, {lines[i].cells[j]}};
      const std::string level = j < levels.cells.size() ? levels.cells[j] : std::string();
      cell.cells.push_back(level);
      collection.Add(cell, *FrequencyOf(lines[i].cells[j]), level);
    }
    for (std::size_t j = i + 2; j < lines.size(); ++j) {
      if (LevelOf(lines[j].cells.back())) collection.Refuse(lines[j], kSecondLevelLineRow);
    }
    return collection.Finished();
  }
  return std::nullopt;
}

/// Numbers alone, whose bands follow from how many there are.
std::variant<BandText, RefusedText> ReadNumbers(const std::vector<Line>& lines) {
  Message refused;
  std::vector<std::optional<double>> levels;
  for (const Line& line : lines) {
    for (const std::string& cell : line.cells) {
      levels.push_back(LevelOf(cell));
      const bool bad = !StandsForNothing(cell) && !levels.back();
      if (bad) refused.push_back(Refusal(line, kNoLevelRow));
      if (!levels.back()) continue;
      if (!IsPossibleLevel(*levels.back())) refused.push_back(Refusal(line, kLevelOutOfRangeRow));
    }
  }
  constexpr std::size_t kUpTo5000 = acoustics::kBandCount - acoustics::kFirstRatedBand;
  const std::size_t count = levels.size();
  const bool known =
      count == acoustics::kRatedBandCount || count == kUpTo5000 || count == acoustics::kBandCount;
  if (!known) return RefusedText{{{kNumbersWithoutFrequenciesRow, " " + std::to_string(count)}}};
  if (!refused.empty()) return RefusedText{std::move(refused)};
  BandText bands;
  const std::size_t first = count == acoustics::kBandCount ? 0 : acoustics::kFirstRatedBand;
  for (std::size_t i = 0; i < count; ++i) bands.thirds.at(first + i) = levels[i];
  return bands;
}

/// Whether the lines that begin with a number are bands in rising order. A comma may as well be a decimal
/// sign: "50,2" is a level, or 50 Hz and 2 dB.
bool RiseInFrequency(const std::vector<Line>& lines) {
  double before = 0.0;
  for (const Line& line : lines) {
    const auto frequency = FrequencyOf(line.cells.front());
    if (!frequency) continue;
    const double hertz = InHertz(*frequency, before);
    if (!IsBandLine(line) || hertz <= before) return false;
    before = hertz;
  }
  return true;
}

/// The lines of `text`, cut where most of them become a frequency and a level.
std::vector<Line> BestCut(std::string_view text) {
  std::vector<Line> best;
  std::ptrdiff_t most = -1;
  for (const char separator : {'\t', ';', ' ', ','}) {
    std::vector<Line> lines = LinesOf(text, separator);
    std::ptrdiff_t good = std::ranges::count_if(lines, IsBandLine);
    for (const Line& line : lines) good += IsFrequencyLine(line, 0) || IsFrequencyLine(line, 1) ? 1 : 0;
    if (separator == ',' && !RiseInFrequency(lines)) good = 0;
    if (good <= most) continue;
    most = good;
    best = std::move(lines);
  }
  if (most > 0) return best;
  for (const char separator : {'\t', ';'}) {
    if (text.find(separator) != std::string_view::npos) return LinesOf(text, separator);
  }
  return LinesOf(text, ' ');
}

/// The UTF-16 text behind a byte order mark, as UTF-8.
std::string Utf8FromUtf16(std::string_view bytes, bool little_endian) {
  std::string text;
  char32_t high = 0;
  for (std::size_t i = 2; i + 1 < bytes.size(); i += 2) {
    const auto low_byte = static_cast<unsigned char>(bytes[little_endian ? i : i + 1]);
    const auto high_byte = static_cast<unsigned char>(bytes[little_endian ? i + 1 : i]);
    const char32_t unit = (static_cast<char32_t>(high_byte) << 8) | low_byte;
    if (unit >= 0xD800 && unit < 0xDC00) {
      high = unit;
    } else if (unit >= 0xDC00 && unit < 0xE000) {
      if (high != 0) AppendCharacter(text, 0x10000 + ((high - 0xD800) << 10) + (unit - 0xDC00));
      high = 0;
    } else {
      AppendCharacter(text, unit);
    }
  }
  return text;
}

}  // namespace

bool IsPossibleLevel(double level_db) {
  constexpr double kLowestDb = -50.0;
  constexpr double kHighestDb = 150.0;
  return level_db >= kLowestDb && level_db <= kHighestDb;
}

std::variant<BandText, RefusedText> ReadBandText(std::string_view text, std::string_view symbol) {
  constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
  if (text.starts_with(kByteOrderMark)) text.remove_prefix(kByteOrderMark.size());
  const std::vector<Line> lines = BestCut(text);
  if (lines.empty()) return Refused(kNoBandsInTextRow);
  if (auto sideways = ReadSideways(lines)) return *std::move(sideways);
  const auto begins_with_frequency = [](const Line& line) {
    return line.cells.size() > 1 && FrequencyOf(line.cells.front());
  };
  const bool is_table =
      std::ranges::any_of(lines, IsBandLine) && std::ranges::count_if(lines, begins_with_frequency) > 1;
  if (is_table) return ReadTable(lines, symbol);
  return ReadNumbers(lines);
}

std::string TextOfFile(std::string_view bytes) {
  if (bytes.starts_with("\xFF\xFE")) return Utf8FromUtf16(bytes, true);
  if (bytes.starts_with("\xFE\xFF")) return Utf8FromUtf16(bytes, false);
  return IsUtf8(bytes) ? std::string(bytes) : storage::Utf8FromWindows1252(bytes);
}

}  // namespace velmar::measurements
