#pragma once

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "acoustics/bands.h"
#include "elements/result_set.h"
#include "elements/setup.h"
#include "presentation/documents/document_properties.h"
#include "presentation/documents/picture.h"
#include "presentation/reports/structure_rows.h"
#include "presentation/texts/calculation_data.h"
#include "presentation/texts/letterhead.h"
#include "presentation/texts/paper_text.h"
#include "presentation/texts/words.h"

namespace velmar::presentation {

/// Thickness and surface mass of the element as the main window shows them.
struct ElementTotals {
  double thickness_mm = 0.0;        ///< `Text3`
  double surface_mass_kg_m2 = 0.0;  ///< `Text4`
};

/// A band of a report. A band without a value (0 in the spectrum) is absent.
struct ReportBand {
  std::optional<double> level_db{};
  std::string reference{};  ///< the shifted reference curve; empty where it is not defined
  std::string base{};       ///< of the element under a lining, as entered
};

/// The drawing of an element's section. A facade has none.
struct ReportSection {
  std::optional<Picture> wide{};   ///< with its legend, as wide as the text of a page
  std::optional<Picture> small{};  ///< with numbers alone, for the cells beside the table of layers
};

/// Everything that a Word or Excel report shows of one calculation.
struct ReportRecord {
  elements::Family family{};
  std::string title{};
  std::string insulation{};       ///< kind of insulation: airborne, impact
  std::string kind_of_element{};  ///< "Parete singola"
  std::string element_type{};     ///< as the calculation calls it: "Parete singola in laterizio"
  std::string description{};
  std::string theory{};
  std::string standard{};

  elements::ProjectInformation information{};

  bool has_bands = false;
  std::string band_heading{};  ///< "Ri [dB]", "Ln,i [dB]"
  std::string reference_heading{};
  std::string base_heading{};  ///< of the element under a lining; empty where there is none
  std::string remarks_title{};
  std::array<ReportBand, acoustics::kBandCount> bands{};
  elements::ResultSet result{};
  std::string result_line{};       ///< "Rw(C; Ctr)= 54,0 (-2; -6) dB"
  std::string improvement_line{};  ///< "DRw= 12 dB"; empty where there is none
  std::string further_line{};      ///< "C50-5000= -1; Ctr,50-5000= -5 dB; STC= 44"; empty where there is none
  std::string resulting_line{};    ///< of a lining: the ratings of base and lining together; or empty
  std::string rating_note{};       ///< why the rating shown is not that of the curve; or empty
  std::string messages{};          ///< the ranges left and the interval, a line each
  std::string footer{};            ///< project, code, date and version, for the foot of the pages
  std::string date{};              ///< of the document
  std::string engineer{};          ///< who signs
  std::string signer_caption{};    ///< over who signs
  Letterhead letterhead{};         ///< of the studio
  std::optional<Picture> logo{};
  std::optional<Picture> signature{};
  bool signs = true;  ///< not for a chapter of a report of several projects, which is signed once at its end
  DocumentProperties properties{};
  DocumentLanguage language = DocumentLanguage::kItalian;  ///< of numbers
  std::string laboratory_data{};  ///< what the result was compared with: "Dati di laboratorio: ..."; or empty
  std::string in_situ_data{};

  std::optional<ElementTotals> totals{};  ///< none for a facade's thickness; see surface_mass_kg_m2
  std::optional<double> surface_mass_kg_m2{};
  std::string width{};   ///< m, as entered; empty where the calculation has its own
  std::string height{};  ///< m
  std::string width_caption{};
  std::string height_caption{};
  std::string area{};  ///< m²; empty where there is none
  std::vector<StructureRow> structure{};
  std::string base_element{};  ///< the wall or floor under a lining
  std::string hanger{};        ///< how a ceiling hangs; empty for all else
  std::string hanger_line{};   ///< the same behind its caption, for the spreadsheet

  std::string generic_note{};       ///< what stands in place of the bands; empty where there are bands
  std::string section_title{};      ///< of the layers
  std::string layer_sheet{};        ///< of the spreadsheet: name of the sheet with layers that found no room
  std::string more_layers{};        ///< where the table of layers goes on
  std::string section_sheet{};      ///< of the spreadsheet: name of the sheet with the section
  std::string section_elsewhere{};  ///< where the section stands that found no room
  std::string part_heading{};       ///< over the parts of a facade
  std::string resilient_name{};     ///< heading of the resilient layers
  std::string resilient_heading{};  ///< the same in the spreadsheet

  std::optional<Picture> chart{};
  ReportSection section{};
  CalculationData data{};
};

/// The names of the structures whose measured curves are laid over the chart; empty for none.
struct ComparedStructures {
  std::string laboratory{};
  std::string in_situ{};
};

/// What a report shows beside set-up and result.
struct ReportPictures {
  std::optional<Picture> chart{};  ///< of the curves; none for a calculation without bands
  ReportSection section{};
};

/// The record of `result`, which must belong to `setup`.
/// @param totals as the calculation gives them for `setup`
ReportRecord ReportRecordOf(const elements::Setup& setup, const elements::ResultSet& result,
                            const ElementTotals& totals, const Words& words, ReportPictures pictures = {},
                            const ComparedStructures& compared = {}, const Provenance& provenance = {});

/// Puts the studio's texts and pictures on the document of `record`: who signs where the project names
/// nobody, and the author among its properties.
void PutStudio(ReportRecord& record, const Letterhead& letterhead, std::optional<Picture> logo,
               std::optional<Picture> signature);

/// The same report in both languages: every text of `italian` with that of `english` beside it, or below it
/// where it is a sentence; once where they agree. Numbers are those of `italian`.
ReportRecord InBoth(ReportRecord italian, const ReportRecord& english);

/// Tells in `record` what is known of the error of its result, below the ranges that were left.
void AddConfidence(ReportRecord& record, const Message& confidence, const Words& words);

/// What a reader hears who cannot see the section of an element of `thickness_mm`.
std::string SectionDescription(double thickness_mm, const Words& words);

/// What a reader hears who cannot see the chart of `result`.
std::string ChartDescription(const elements::Setup& setup, const elements::ResultSet& result,
                             const Words& words);

}  // namespace velmar::presentation
