#pragma once

#include <QRectF>
#include <QSizeF>
#include <cstddef>
#include <string>
#include <vector>

#include "presentation/drawing/printed_page.h"
#include "presentation/drawing/section.h"

class QPainter;

namespace velmar::presentation {

/// A line of a cover.
struct CoverLine {
  std::string caption{};
  std::string value{};
};

/// A line of a list of contents.
struct ContentsLine {
  std::string text{};
  int page = 0;  ///< number of the page, from 1
};

/// A table with a small drawing in one of its columns.
struct DrawnRows {
  std::string title{};
  std::vector<std::string> heads{};
  std::vector<double> weights{};  ///< of the columns' widths
  std::vector<std::vector<std::string>> rows{};
  std::vector<Section> sections{};  ///< beside the rows
  std::size_t drawing_column = 0;
  std::size_t left_columns = 2;      ///< so many columns stand left, the others are centred
  std::vector<std::string> notes{};  ///< below the table; "caption: value"
  std::string notes_title{};
};

/// Draws the cover of a document on paper of `paper`, in tenths of a point.
void DrawCover(QPainter& painter, const QSizeF& paper, const std::string& title,
               const std::vector<CoverLine>& lines);

/// Where the lines of a list of contents stand on its pages.
struct ContentsPlace {
  std::size_t line = 0;
  int page = 0;  ///< of the list
  QRectF box{};  ///< in tenths of a point
};

/// The places of `lines`; their page numbers are of no account.
std::vector<ContentsPlace> PlaceContents(const QSizeF& paper, const std::vector<ContentsLine>& lines);

/// Draws page `page` of the list.
void DrawContents(QPainter& painter, const QSizeF& paper, const std::string& title,
                  const std::vector<ContentsLine>& lines, const std::vector<ContentsPlace>& places, int page);

/// For each page of `table` the row behind its last one; then the notes.
std::vector<std::size_t> PagesOfTable(const QSizeF& paper, const DrawnRows& table);

/// Draws page `page` of the table. @param ends as PagesOfTable() gives them
void DrawTablePage(QPainter& painter, const QSizeF& paper, const DrawnRows& table,
                   const std::vector<std::size_t>& ends, int page);

/// What stands at the foot of such a page.
void DrawFrontFoot(QPainter& painter, const QSizeF& paper, const std::string& left,
                   const std::string& number);

}  // namespace velmar::presentation
