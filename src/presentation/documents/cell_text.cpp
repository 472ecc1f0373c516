#include "presentation/documents/cell_text.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <string_view>

#include "foundation/utf8.h"

namespace velmar::presentation {
namespace {

constexpr double kFirstLinePoints = 15.0;
constexpr double kFurtherLinePoints = 12.5;

}  // namespace

int LinesOf(const std::string& text, double width) {
  int lines = 0;
  for (std::size_t begin = 0; begin <= text.size();) {
    const std::size_t end = std::min(text.find('\n', begin), text.size());
    const auto characters =
        static_cast<double>(CountCharacters(std::string_view(text).substr(begin, end - begin)));
    lines += std::max(1, static_cast<int>(std::ceil(characters / width)));
    begin = end + 1;
  }
  return lines;
}

void FitHeight(Worksheet& sheet, int row, const std::string& text, int first, int last) {
  double width = 0.0;
  for (int column = first; column <= last; ++column) width += sheet.WidthOf(column);
  const int lines = LinesOf(text, width);
  const double height = kFirstLinePoints + kFurtherLinePoints * (lines - 1);
  if (lines > 1 && height > sheet.HeightOf(row)) sheet.SetHeight(row, height);
}

}  // namespace velmar::presentation
