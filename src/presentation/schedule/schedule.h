#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "elements/result_set.h"
#include "elements/setup.h"
#include "presentation/documents/document_properties.h"
#include "presentation/documents/picture.h"
#include "presentation/reports/report_record.h"
#include "presentation/texts/paper_text.h"
#include "presentation/texts/words.h"

namespace velmar::presentation {

/// One project of a report of several. A number that the element does not have is absent.
struct ScheduleElement {
  std::string code{};   ///< the attachment's, or the project's place among all
  std::string title{};  ///< what the chapter and the list of contents call it
  std::string description{};
  std::string file{};  ///< the project's name without its folder
  std::optional<Picture> drawing{};
  std::optional<double> thickness_mm{};
  std::optional<double> mass_kg_m2{};
  std::optional<double> rw_db{};
  std::optional<double> c_db{};
  std::optional<double> ctr_db{};
  std::optional<double> lnw_db{};
  std::optional<double> ci_db{};
  std::optional<double> improvement_db{};  ///< ΔLw of a floor, ΔRw of a lining
  bool outside_range = false;              ///< the user chose to go on outside a range
  std::string requirement{};               ///< "Rw ≥ 50 dB"; empty where none is required
  std::string verdict{};                   ///< "mancano 4"
  std::string remark{};                    ///< of a lining: the ratings of base and lining together; or empty
  std::string failure{};                   ///< why the project gave no result; empty: it has a chapter
};

/// What stands on the cover. An empty line is left out.
struct ScheduleCover {
  std::string title{};
  std::string project{};  ///< as far as all projects name the same
  std::string client{};
  std::string studio{};
  std::string date{};
};

/// Who signs a report of several projects, once at its end.
struct ScheduleSigner {
  std::string name{};
  std::string register_number{};
  std::optional<Picture> signature{};

  bool Signs() const { return !name.empty() || !register_number.empty() || signature; }
};

/// A report of several projects: cover, contents, table of the elements; the chapters come one by one.
struct Schedule {
  ScheduleCover cover{};
  ScheduleSigner signer{};
  DocumentProperties properties{};
  std::vector<ScheduleElement> elements{};
  DocumentLanguage language = DocumentLanguage::kItalian;  ///< of numbers
};

/// The words that a report of several projects sets, in the language of the user.
struct ScheduleWords {
  std::string contents{};
  std::string table{};    ///< title of the table of elements
  std::string failed{};   ///< title of the list of projects that gave no result
  std::string outside{};  ///< what the mark behind a rating says
  std::string project{};
  std::string client{};
  std::string studio{};
  std::string date{};
  std::string page{};
  std::string of{};
  std::string signer{};  ///< over who signs
};
ScheduleWords ScheduleWordsOf(const Words& words);

/// The table's heads, and its cells for a project with a result, as paper shows them: levels with one
/// decimal. The drawing stands in column kScheduleDrawingColumn, whose text is empty.
std::vector<std::string> ScheduleHeads(const Words& words);
std::vector<std::string> ScheduleCells(const ScheduleElement& element,
                                       DocumentLanguage language = DocumentLanguage::kItalian);
inline constexpr std::size_t kScheduleDrawingColumn = 2;
inline constexpr std::size_t kScheduleColumns = 13;
/// Of the columns' widths.
std::vector<double> ScheduleWeights();

/// What a project is in the table. @param place from 1; its code where the project has none
ScheduleElement ScheduleElementOf(const elements::Setup& setup, const elements::ResultSet& result,
                                  const ElementTotals& totals, const Words& words, std::size_t place);

/// The chapter's heading: code and title.
std::string ChapterHeading(const ScheduleElement& element);

/// Gives every element its title: what its project is called where all that have a result are called
/// differently, else the name of the file without ending.
void NameElements(std::vector<ScheduleElement>& elements, const std::vector<std::string>& projects);

/// The value that all of `texts` share; an empty text when they differ.
std::string SharedText(const std::vector<std::string>& texts);

}  // namespace velmar::presentation
