#include "presentation/texts/paper_text.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <utility>

namespace velmar::presentation {
namespace {

constexpr std::string_view kMinus = "\u2212";
constexpr std::string_view kNarrowSpace = "\u202F";
constexpr std::string_view kDelta = "\u0394";
constexpr std::string_view kDash = "–";

// A longer one stands before its beginning.
constexpr std::array<std::string_view, 13> kUnits = {"dB",    "mm", "cm", "kg/m²", "kg/m³", "kg", "Hz",
                                                     "MN/m³", "m²", "m³", "GPa",   "%",     "m"};

bool IsDigit(char c) { return c >= '0' && c <= '9'; }
bool IsLetter(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (static_cast<unsigned char>(c) & 0x80U) != 0;
}

/// The unit with which `rest` begins, if it ends there too; empty for none.
std::string_view UnitAt(std::string_view rest) {
  for (const std::string_view unit : kUnits) {
    if (!rest.starts_with(unit)) continue;
    const std::string_view behind = rest.substr(unit.size());
    if (behind.empty() || (!IsLetter(behind.front()) && !IsDigit(behind.front()) && behind.front() != '\'' &&
                           behind.front() != '/'))
      return unit;
  }
  return {};
}

/// Walks through a text and writes it as paper sets it.
class Setter {
 public:
  Setter(std::string_view text, DocumentLanguage language) : text_(text), language_(language) {}

  std::string Set() {
    while (at_ < text_.size()) {
      if (!SetMinus() && !SetDash() && !SetDelta() && !SetDecimalSign() && !SetUnit()) set_ += text_[at_++];
    }
    return std::move(set_);
  }

 private:
  char Before() const { return at_ == 0 ? ' ' : text_[at_ - 1]; }
  char Behind() const { return at_ + 1 < text_.size() ? text_[at_ + 1] : ' '; }

  bool SetMinus() {
    constexpr std::string_view kOpening = " (=;/[";
    if (text_[at_] != '-' || !IsDigit(Behind()) || kOpening.find(Before()) == std::string_view::npos)
      return false;
    set_ += kMinus;
    ++at_;
    return true;
  }

  /// Between the parts of an element, where it does for the semicolon too.
  bool SetDash() {
    constexpr std::string_view kTyped = " -- ";
    if (!text_.substr(at_).starts_with(kTyped)) return false;
    if (set_.ends_with(';')) set_.pop_back();
    (set_ += ' ').append(kDash) += ' ';
    at_ += kTyped.size();
    return true;
  }

  bool SetDelta() {
    const std::string_view rest = text_.substr(at_);
    if ((!rest.starts_with("DRw") && !rest.starts_with("DLw")) || IsLetter(Before())) return false;
    set_ += kDelta;
    ++at_;
    return true;
  }

  bool SetDecimalSign() {
    if (language_ != DocumentLanguage::kEnglish || text_[at_] != ',' || !IsDigit(Before()) ||
        !IsDigit(Behind()))
      return false;
    set_ += '.';
    ++at_;
    return true;
  }

  /// Behind a number or a closing bracket, with a blank or without.
  bool SetUnit() {
    const bool blank = text_[at_] == ' ';
    if (at_ == 0 || (!IsDigit(Before()) && Before() != ')')) return false;
    const std::string_view unit = UnitAt(text_.substr(at_ + (blank ? 1 : 0)));
    if (unit.empty() || (!blank && Before() == ')')) return false;
    // Behind a digit "%" may stand at once, as in the shares of an area.
    if (!blank && unit == "%") return false;
    set_ += kNarrowSpace;
    set_ += unit;
    at_ += unit.size() + (blank ? 1 : 0);
    return true;
  }

  std::string_view text_;
  DocumentLanguage language_;
  std::size_t at_ = 0;
  std::string set_{};
};

/// `formula` with a true minus where " - " takes a number or a bracket away; a dash between words stays.
std::string WithMinus(std::string formula) {
  constexpr std::string_view kTyped = " - ";
  for (std::size_t at = formula.find(kTyped); at != std::string::npos; at = formula.find(kTyped, at + 1)) {
    const std::size_t next = at + kTyped.size();
    if (next < formula.size() && (IsDigit(formula[next]) || formula[next] == '('))
      formula.replace(at + 1, 1, kMinus);
  }
  return formula;
}

}  // namespace

std::string ForPaper(std::string_view text, DocumentLanguage language) {
  return Setter(text, language).Set();
}

bool IsNumberCell(std::string_view cell) {
  return std::ranges::any_of(cell, IsDigit) &&
         cell.find_first_not_of("0123456789,.-+ x") == std::string_view::npos;
}

std::string CellForPaper(const std::string& cell, DocumentLanguage language) {
  return IsNumberCell(cell) || cell == kDash ? ForPaper(cell, language) : cell;
}

CalculationData ForPaper(CalculationData data, DocumentLanguage language) {
  for (DataField& field : data.fields) {
    if (!field.as_it_stands) field.value = ForPaper(field.value, language);
  }
  for (DataTable& table : data.tables) {
    for (std::string& head : table.heads) head = ForPaper(head, language);
    for (auto& row : table.rows) {
      for (std::string& cell : row) cell = CellForPaper(cell, language);
    }
  }
  for (std::string& reference : data.references)
    reference = WithMinus(ForPaper(reference, DocumentLanguage::kItalian));
  return data;
}

std::string InBoth(const std::string& italian, const std::string& english, const std::string& between) {
  if (italian == english || english.empty()) return italian;
  if (italian.empty()) return english;
  if (italian.ends_with(':') && english.ends_with(':'))
    return italian.substr(0, italian.size() - 1) + between + english;
  return italian + between + english;
}

CalculationData InBoth(CalculationData italian, const CalculationData& english) {
  const auto join = [](std::string& one, const std::string& other) { one = InBoth(one, other); };
  const auto join_all = [&](std::vector<std::string>& some, const std::vector<std::string>& others) {
    for (std::size_t i = 0; i < some.size() && i < others.size(); ++i) join(some[i], others[i]);
  };
  join(italian.title, english.title);
  for (std::size_t i = 0; i < italian.fields.size() && i < english.fields.size(); ++i) {
    join(italian.fields[i].caption, english.fields[i].caption);
    join(italian.fields[i].value, english.fields[i].value);
  }
  for (std::size_t i = 0; i < italian.tables.size() && i < english.tables.size(); ++i) {
    join(italian.tables[i].title, english.tables[i].title);
    join_all(italian.tables[i].heads, english.tables[i].heads);
    for (std::size_t row = 0; row < italian.tables[i].rows.size(); ++row)
      join_all(italian.tables[i].rows[row], english.tables[i].rows[row]);
  }
  join(italian.references_title, english.references_title);
  join_all(italian.references, english.references);
  return italian;
}

Words InBoth(Words italian, Words english) {
  return [italian = std::move(italian), english = std::move(english)](MessageRow row) {
    return InBoth(italian(row), english(row));
  };
}

}  // namespace velmar::presentation
