#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "acoustics/bands.h"
#include "foundation/message.h"
#include "storage/tables/schema.h"

namespace velmar::measurements {

/// The centres of the octave bands of the library, Hz.
inline constexpr std::array<double, storage::kOctaveCount> kOctaveCentres = {63,   125,  250,  500,
                                                                             1000, 2000, 4000, 8000};

/// Whether a level, a rating or an adaptation term can be `level_db`: from -50 dB to 150 dB.
bool IsPossibleLevel(double level_db);

/// The values of a text with frequencies and levels, dB.
struct BandText {
  std::array<std::optional<double>, acoustics::kBandCount> thirds{};
  std::array<std::optional<double>, storage::kOctaveCount> octaves{};
  bool in_octaves = false;  ///< the values are octave bands; the thirds are empty then, else the octaves
  int left_out = 0;         ///< bands of the text that lie below or above those of the library

  bool operator==(const BandText&) const = default;
};

/// Why lines of a text cannot be taken: a line of words each, with the number of the line. Never empty.
struct RefusedText {
  Message lines{};
};

/// Reads a text with a column of frequencies and one of levels, as an analyser writes it or a spreadsheet
/// copies it. Cells are separated by tabulators, semicolons, commas or blanks; frequencies may have a unit
/// and may be exact (1258.9) or nominal (1250) centres, in Hz or kHz; levels may have a comma or a point and
/// "dB". Lines above the first frequency and below the last one are headings and remarks when they do not
/// begin with a number. Of several columns of levels the one whose heading is `symbol` is taken. The table
/// may lie on its side: a line of frequencies and below it one of levels. Numbers without frequencies are
/// taken when there are 16 (from 100 Hz to 3150 Hz), 18 (100 Hz to 5000 Hz) or 21 (50 Hz to 5000 Hz) of them.
/// Values at octave centres alone, five or more, are octave bands.
///
/// An empty level, "-" and "n.d." stand for a band that was not measured. Nothing is guessed and nothing left
/// out silently: one line that cannot be taken refuses the whole text, and all such lines are named.
/// @param symbol of the levels, such as "R" or "Ln"; case and a unit in brackets are ignored
std::variant<BandText, RefusedText> ReadBandText(std::string_view text, std::string_view symbol);

/// `bytes` of a file as UTF-8 text: UTF-16 by its byte order mark, UTF-8 where it is well-formed, else
/// Windows-1252, as analysers write.
std::string TextOfFile(std::string_view bytes);

}  // namespace velmar::measurements
