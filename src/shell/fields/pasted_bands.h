#pragma once

#include <QString>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace velmar::shell {

/// Whether `text` has more than one cell: lines, or cells beside one another, as a spreadsheet copies them.
bool IsTableOfCells(const QString& text);

/// The cells of `text`, line by line, without blanks around them.
std::vector<std::vector<std::string>> CellsOfTable(const QString& text);

/// The bands that a pasted table fills, by their index, with their numbers as texts. Lines that begin with
/// the frequency of a band ("100<tab>35,2", "1,25 kHz;41") go to that band; a plain column or line of numbers
/// goes to the bands from `band` on, 21 numbers to all and 16 to those from 100 Hz to 3150 Hz.
/// @return nothing when a cell is no number or there are more numbers than bands
std::optional<std::map<std::size_t, std::string>> ReadPastedBands(const QString& text, std::size_t band);

}  // namespace velmar::shell
