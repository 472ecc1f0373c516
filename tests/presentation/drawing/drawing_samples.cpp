// Paints charts, sections and printed pages of typical elements into PNG and PDF files, to be looked at.
// drawing_samples FOLDER

#include <QGuiApplication>
#include <QImage>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <QString>
#include <functional>
#include <iostream>

#include "acoustics/impact_rating.h"
#include "presentation/drawing/curve_chart.h"
#include "presentation/drawing/printed_page.h"
#include "presentation/drawing/section_drawing.h"
#include "tests/presentation/drawing/catalogue_words.h"
#include "tests/presentation/sample_setups.h"

namespace velmar::presentation {
namespace {

using Paint = std::function<void(QPainter&, const QRectF&)>;

class Folder {
 public:
  explicit Folder(QString path) : path_(std::move(path)) {}

  /// Paints into `size` at `scale` device pixels a unit.
  void Save(const QString& name, QSize size, double scale, const Paint& paint) const {
    QImage image(size * scale, QImage::Format_ARGB32);
    image.setDevicePixelRatio(scale);
    image.fill(Qt::white);
    QPainter painter(&image);
    paint(painter, QRectF(QPointF(), QSizeF(size)));
    painter.end();
    const QString file = path_ + "/" + name + ".png";
    if (!image.save(file)) std::cerr << "cannot write " << file.toStdString() << '\n';
  }

  void SavePdf(const QString& name, const PaginaDiStampa& page) const {
    QPdfWriter writer(path_ + "/" + name + ".pdf");
    writer.setPageSize(QPageSize(QPageSize::A4));
    writer.setPageMargins({0.0, 0.0, 0.0, 0.0});
    QPainter painter(&writer);
    ComponiPagina(painter, writer.resolution(), QPageSize::size(QPageSize::A4, QPageSize::Inch), page);
  }

 private:
  QString path_;
};

void SaveSections(const Folder& folder) {
  const std::pair<const char*, elements::Setup> setups[] = {
      {"brick", samples::PlasteredBrickWall()},
      {"double", samples::PlasterboardDoubleWall()},
      {"sea", samples::FullSeaWall()},
      {"floor", samples::FloatingFloor()},
      {"lining", samples::Lining(elements::Calculation::kLiningFrame)},
      {"thin", samples::ManyThinLayers(10)},
  };
  for (const auto& [name, setup] : setups) {
    const Section section = SectionOf(setup);
    const Paint paint = [&](QPainter& painter, const QRectF& area) {
      DrawSection(painter, area, section, {.highlighted_number = 2});
    };
    folder.Save(QStringLiteral("section_%1").arg(name), {560, 260}, 1.0, paint);
    folder.Save(QStringLiteral("section_%1_200").arg(name), {560, 260}, 2.0, paint);
    folder.Save(QStringLiteral("section_%1_tall").arg(name), {320, 420}, 1.0, paint);
    folder.Save(QStringLiteral("section_%1_small").arg(name), {220, 160}, 1.0, paint);
  }
}

void SaveCharts(const Folder& folder, const Words& words) {
  CurveChart wall = *CurveChartOf(samples::PlasteredBrickWall(), samples::Result(), words);
  CurveChart lining =
      *CurveChartOf(samples::Lining(elements::Calculation::kLiningFrame), samples::Result(56.0, 1.9), words);
  CurveChart compared = wall;
  compared.laboratory = samples::Result(45.0, 1.4).spectrum;
  compared.in_situ = samples::Result(42.0, 1.3).spectrum;
  (*compared.in_situ)[5] = 0.0;
  compared.autoscale = true;
  compared.highlighted_band = 10;
  const std::pair<const char*, CurveChart> charts[] = {
      {"empty", EmptyChart(words)}, {"wall", wall}, {"lining", lining}, {"compared", compared}};
  for (const auto& [name, chart] : charts) {
    const Paint paint = [&chart = chart](QPainter& painter, const QRectF& area) {
      DrawCurveChart(painter, area, chart);
    };
    folder.Save(QStringLiteral("chart_%1").arg(name), {620, 380}, 1.0, paint);
    folder.Save(QStringLiteral("chart_%1_200").arg(name), {620, 380}, 2.0, paint);
    folder.Save(QStringLiteral("chart_%1_small").arg(name), {300, 200}, 1.0, paint);
  }
}

elements::ResultSet ImpactResult() {
  elements::ResultSet result;
  acoustics::Spectrum spectrum{};
  for (std::size_t i = 0; i < spectrum.size(); ++i) spectrum[i] = 66.0 - 1.3 * static_cast<double>(i);
  result.spectrum = spectrum;
  result.shift = acoustics::FindImpactShift(spectrum);
  result.lnw = acoustics::ImpactRatingOfShift(*result.shift);
  result.ci = acoustics::FindImpactAdaptationTerm(spectrum, *result.lnw);
  return result;
}

void SavePages(const Folder& folder, const Words& words) {
  elements::ResultSet ceiling = samples::Result(56.0, 1.9);
  ceiling.delta_rw = 9.0;
  const struct {
    const char* name;
    elements::Setup setup;
    elements::ResultSet result;
    PageTotals totals;
  } pages[] = {
      {"wall", samples::PlasteredBrickWall(), samples::Result(), {150.0, 141.0}},
      {"double", samples::PlasterboardDoubleWall(), samples::Result(), {150.0, 44.7}},
      {"sea", samples::FullSeaWall(), samples::Result(), {222.0, 71.6}},
      {"thin", samples::ManyThinLayers(10), samples::Result(), {340.0, 34.0}},
      {"facade", samples::FacadeOfNine(), samples::Result(), {}},
      {"floor", samples::FloatingFloor(), ImpactResult(), {373.0, 720.3}},
      {"ceiling", samples::Lining(elements::Calculation::kCeilingSea), ceiling, {339.0, 339.4}},
  };
  for (const auto& [name, setup, result, totals] : pages) {
    elements::Setup told = setup;
    samples::TellTheProject(told);
    const PaginaDiStampa page = PaginaDi(told, totals, &result, words);
    const auto save = [&](const QString& file, const QSizeF& paper, double scale) {
      folder.Save(file, (paper * 96.0).toSize(), scale,
                  [&](QPainter& painter, const QRectF&) { ComponiPagina(painter, 96.0, paper, page); });
    };
    folder.SavePdf(QStringLiteral("page_%1").arg(name), page);
    save(QStringLiteral("page_%1").arg(name), {8.27, 11.69}, 1.0);
    save(QStringLiteral("page_%1_200").arg(name), {8.27, 11.69}, 2.0);
    save(QStringLiteral("page_%1_landscape").arg(name), {11.69, 8.27}, 1.0);
  }
}

}  // namespace
}  // namespace velmar::presentation

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QGuiApplication application(argc, argv);
  if (argc != 2) {
    std::cerr << "drawing_samples FOLDER\n";
    return 2;
  }
  const velmar::presentation::Folder folder(QString::fromLocal8Bit(argv[1]));
  const velmar::presentation::Words words = velmar::presentation::CatalogueWords();
  SaveSections(folder);
  SaveCharts(folder, words);
  SavePages(folder, words);
  return 0;
}
