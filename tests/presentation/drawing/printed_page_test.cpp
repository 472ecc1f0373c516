#include "presentation/drawing/printed_page.h"

#include <QPainter>
#include <map>
#include <memory>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "presentation/drawing/page_scale.h"
#include "tests/presentation/drawing/catalogue_words.h"
#include "tests/presentation/drawing/recording_device.h"
#include "tests/presentation/sample_setups.h"

namespace velmar::presentation {
namespace {

using elements::Calculation;
using testing::ElementsAre;

constexpr double kDotsPerInch = 300.0;
constexpr double kSmallestPixels = 7.0 / 72.0 * kDotsPerInch;
const QSizeF kPortrait(8.27, 11.69);
const QSizeF kLandscape(11.69, 8.27);

/// `page` on paper of `paper` inches.
std::unique_ptr<RecordingDevice> Printed(const PaginaDiStampa& page, const QSizeF& paper = kPortrait,
                                         int index = 0) {
  auto device = std::make_unique<RecordingDevice>((paper * kDotsPerInch).toSize());
  QPainter painter(device.get());
  ComponiPagina(painter, kDotsPerInch, paper, page, index);
  return device;
}

PaginaDiStampa PageOf(const elements::Setup& setup, const elements::ResultSet& result = samples::Result()) {
  return PaginaDi(setup, {373.0, 720.3}, &result, CatalogueWords());
}

elements::ResultSet ImpactResult() {
  elements::ResultSet result;
  result.spectrum.emplace().fill(60.0);
  result.shift = 60.0;
  result.lnw = 58.0;
  result.ci = 1.0;
  return result;
}

TEST(PreparaPagina, FollowsTheNarrowerSide) {
  const PrinterPaper portrait{.paper_twips = {11909, 16834}, .printable_twips = {11189, 16114}};
  const PageScale scale = PreparaPagina(portrait, {8.27, 8.27});
  EXPECT_NEAR(scale.paper_inches.width(), 8.27, 0.001);
  EXPECT_NEAR(scale.unprintable_inches.x(), 0.25, 1e-9);
  EXPECT_NEAR(scale.unprintable_inches.y(), 0.25, 1e-9);
  EXPECT_NEAR(scale.factor, 8.27 / 11.69, 0.001);
  EXPECT_NEAR(PreparaPagina(portrait, scale.paper_inches).factor, 1.0, 1e-12);
}

TEST(PreparaPagina, FollowsTheHeightOfALandscapePaper) {
  const PrinterPaper landscape{.paper_twips = {14400, 7200}, .printable_twips = {14400, 7200}};
  EXPECT_NEAR(PreparaPagina(landscape, {10.0, 2.5}).factor, 0.5, 1e-12);
  EXPECT_EQ(PreparaPagina(landscape, {10.0, 2.5}).unprintable_inches, QPointF(0.0, 0.0));
  EXPECT_EQ(PreparaPagina({}, {10.0, 2.5}).factor, 0.0);
}

TEST(PaginaDi, OfAWallNamesWhatItPrints) {
  elements::Setup setup = samples::PlasteredBrickWall();
  samples::TellTheProject(setup);
  const PaginaDiStampa page = PageOf(setup);
  EXPECT_EQ(page.title, "Calcolo previsionale del potere fonoisolante");
  EXPECT_EQ(page.information.size(), 7U);
  EXPECT_EQ(page.fields[0].caption, "Tipo di parete");
  EXPECT_EQ(page.fields[0].value, "Parete singola in laterizio");
  EXPECT_EQ(page.fields[1].value, "relazione sperimentale [1]");
  EXPECT_THAT(page.results, ElementsAre("Rw(C; Ctr)= 51,0 (\u22121; \u22123)\u202FdB"));
  EXPECT_THAT(page.bands.heads, ElementsAre("Frequenza [Hz]", "Ri [dB]", "rif [dB]"));
  ASSERT_EQ(page.bands.rows.size(), 21U);
  EXPECT_THAT(page.bands.rows[0], ElementsAre("50", "32,0", ""));
  EXPECT_THAT(page.bands.rows[3], ElementsAre("100", "36,8", "32"));
  EXPECT_TRUE(page.chart);
}

TEST(PaginaDi, OfAFloorPrintsImpactSound) {
  const PaginaDiStampa page = PageOf(samples::FloatingFloor(), ImpactResult());
  EXPECT_EQ(page.title, "Calcolo previsionale del livello di rumore di calpestio");
  EXPECT_THAT(page.results, ElementsAre("Lnw(Ci)= 58,0 (1)\u202FdB"));
  EXPECT_THAT(page.further_results, testing::StartsWith("CI,50-2500= "));
  EXPECT_EQ(page.bands.heads[1], "Li [dB]");
}

TEST(PaginaDi, OfALiningPrintsTheRatedBandsAndItsHeads) {
  elements::ResultSet result = samples::Result();
  result.delta_rw = 9.0;
  const PaginaDiStampa page = PageOf(samples::Lining(Calculation::kLiningFrame), result);
  EXPECT_EQ(page.bands.rows.size(), 16U);
  EXPECT_EQ(page.bands.rows.front().front(), "100");
  EXPECT_THAT(page.elements.heads, ElementsAre("m'", "Rw (dB)", "m' add", "\u0394Rw (dB)"));
  EXPECT_THAT(page.elements.rows.at(0), ElementsAre("310,0", "52", "26,7", "9"));
  EXPECT_TRUE(Printed(page)->Says("C e Ctr sono riferiti all'indice di valutazione dell'elemento base."));
  EXPECT_EQ(PageOf(samples::PlasteredBrickWall()).results_note, "");
}

TEST(PaginaDi, OfAGenericLiningHasNeitherChartNorBands) {
  elements::ResultSet result;
  result.rw = 60.0;
  result.delta_rw = 8.0;
  for (const Calculation calculation : {Calculation::kLiningGeneric, Calculation::kCeilingGeneric}) {
    const PaginaDiStampa page = PageOf(samples::Lining(calculation), result);
    EXPECT_FALSE(page.chart);
    EXPECT_TRUE(page.bands.heads.empty());
    EXPECT_THAT(page.results, ElementsAre("Rw= 60,0\u202FdB", "\u0394Rw= 8\u202FdB"));
    EXPECT_EQ(page.results_note, "") << "there are no adaptation terms";
  }
}

TEST(PaginaDi, OfAFacadeListsItsPartsWithShareAndClass) {
  const PaginaDiStampa page = PageOf(samples::FacadeOfNine());
  EXPECT_THAT(page.elements.heads,
              ElementsAre("Elemento", "Rw; Dn,e,w (dB)", "Area (m²)", "Area (%)", "Note"));
  ASSERT_EQ(page.elements.rows.size(), 10U);
  EXPECT_TRUE(page.elements.rows[0][0].starts_with("parte opaca"));
  EXPECT_THAT(std::vector(page.elements.rows[2].begin() + 1, page.elements.rows[2].end()),
              ElementsAre("39", "1,55", "3,2%", "Classe 1"));
  EXPECT_THAT(page.elements.rows[9],
              ElementsAre("infisso: Bocchetta di ventilazione", "Dn,e,w 46", "-", "-", ""));
  EXPECT_TRUE(page.structure.empty());
  EXPECT_TRUE(page.section.strips.empty());
}

TEST(PaginaDi, OfAFacadeWithoutSmallElementsRatesAllPartsByRw) {
  elements::Setup setup = samples::FacadeOfNine();
  setup.facade.components[8].area_text = "0,5";
  const PaginaDiStampa page = PageOf(setup);
  EXPECT_EQ(page.elements.heads.at(1), "Rw (dB)");
  EXPECT_EQ(page.elements.rows[9].at(1), "46");
}

TEST(PaginaDi, OfAFloorNamesTheImprovementByItsCovering) {
  elements::ResultSet result = ImpactResult();
  result.delta_lnw = 21.34;
  elements::Setup setup = samples::FloatingFloor();
  setup.calculation = Calculation::kImpactFloatingFloor;
  EXPECT_THAT(PageOf(setup, result).results,
              ElementsAre("Lnw(Ci)= 58,0 (1)\u202FdB", "\u0394Lw= 21,3\u202FdB"));
}

TEST(PaginaDi, PrintsWhatBelongsBesideTheResultInFull) {
  elements::ResultSet result = samples::Result();
  result.ranges_left = {{MessageRow{195}, 504, 80, 400, "kg/m²", MessageRow{3300}}};
  elements::Setup setup = samples::PlasteredBrickWall();
  setup.calculation = Calculation::kSingleWallBrick;
  const PaginaDiStampa page =
      PaginaDi(setup, {373.0, 720.3}, &result, CatalogueWords(), std::nullopt,
               {{std::string("Rw 52 dB, nessuna stima")}, {std::string("Il risultato sta fuori")}});
  EXPECT_EQ(page.results_note,
            "Fuori dal campo di validità della relazione [1]: m' = 504\u202Fkg/m² (da 80 a 400). Calcolo "
            "proseguito per scelta dell'utente.\nRw 52\u202FdB, nessuna stima\nIl risultato sta fuori");
  for (const QSizeF& paper : {kPortrait, kLandscape}) {
    const auto printed = Printed(page, paper);
    EXPECT_TRUE(printed->Says("Rw 52\u202FdB, nessuna stima"));
    EXPECT_TRUE(printed->Says("Il risultato sta fuori"));
  }
}

TEST(PaginaDi, OfTheFloorsInHollowBrickAddsTheirLines) {
  elements::Setup setup = samples::FloatingFloor();
  elements::ResultSet result = samples::Result();
  result.delta_rw = 5.25;
  setup.calculation = Calculation::kFloorWithFloatingScreed;
  EXPECT_THAT(PageOf(setup, result).structure_notes,
              ElementsAre("S= 373\u202Fmm", "m'= 720,3\u202Fkg/m²", "\u0394Rw= 5,2\u202FdB"));
  setup.calculation = Calculation::kFloorHollowBrickConcrete;
  EXPECT_THAT(PageOf(setup, result).structure_notes, ElementsAre("S= 373\u202Fmm", "m'= 720,3\u202Fkg/m²"));
  setup.calculation = Calculation::kImpactFloatingFloor;
  EXPECT_TRUE(PageOf(setup, ImpactResult()).structure_notes.empty());
}

TEST(PaginaDi, BeforeARunShowsTheSetUpAlone) {
  const PaginaDiStampa page =
      PaginaDi(samples::PlasteredBrickWall(), {150.0, 141.0}, nullptr, CatalogueWords());
  EXPECT_FALSE(page.chart);
  EXPECT_TRUE(page.results.empty());
  EXPECT_FALSE(page.structure.empty());
  EXPECT_TRUE(Printed(page)->Says("Laterizio forato"));
}

TEST(PaginaDi, CountsLayersAsTheSectionDoes) {
  for (const elements::Setup& setup :
       {samples::PlasteredBrickWall(), samples::PlasterboardDoubleWall(), samples::FullSeaWall(),
        samples::FloatingFloor(), samples::Lining(Calculation::kCeilingSea), samples::ManyThinLayers(10)}) {
    const PaginaDiStampa page = PageOf(setup);
    std::map<int, std::string> drawn;
    for (const Strip& strip : page.section.strips) {
      if (strip.number != 0) drawn[strip.number] = strip.name;
    }
    std::map<int, std::string> listed;
    for (const StructureBlock& block : page.structure) {
      for (const StructureLine& line : block.lines) {
        if (line.number != 0) listed[line.number] = line.name;
      }
    }
    EXPECT_EQ(drawn, listed);
  }
}

struct Print {
  const char* name;
  elements::Setup setup;
  QSizeF paper;
};

/// A wall of twenty layers with long names, under project information that fills its lines.
elements::Setup Crowded() {
  elements::Setup setup = samples::ManyThinLayers(10);
  samples::TellTheProject(setup);
  for (auto* leaf : {&setup.leaf1, &setup.leaf2}) {
    for (auto& row : leaf->rows) {
      row.slot.name = "Lastra in gesso rivestito ad alta densità con fibre di vetro, additivata";
      row.multiplicity = 3;
    }
  }
  for (auto& row : setup.information) {
    if (!row.value.empty())
      row.value += " - testo molto lungo che deve andare a capo più volte nella sua riga";
  }
  setup.cavity.kind = elements::CavityKind::kGenericMaterial;
  setup.cavity.layers.count = 7;
  for (auto& row : setup.cavity.layers.rows) samples::SetRow(row, "Lana di roccia 40", 40.0, 40.0);
  return setup;
}

elements::Setup CrowdedFloor() {
  elements::Setup setup = Crowded();
  setup.calculation = Calculation::kImpactFloatingFloor;
  setup.resilient.count = 10;
  for (auto& row : setup.resilient.rows) samples::SetRow(row, "Tappetino in granuli di gomma", 8.0, 760.0);
  return setup;
}

class PrintTest : public testing::TestWithParam<Print> {};

TEST_P(PrintTest, StaysWithinTheFrameAndLegible) {
  const QSizeF& paper = GetParam().paper;
  const auto device = Printed(PageOf(GetParam().setup), paper);
  const QRectF frame =
      QRectF(QPointF(), paper * kDotsPerInch)
          .adjusted(0.29 * kDotsPerInch, 0.29 * kDotsPerInch, -0.29 * kDotsPerInch, -0.29 * kDotsPerInch);
  EXPECT_TRUE(frame.contains(device->Extent()));
  EXPECT_EQ(device->Pictures(), 0) << "chart and section are vectors";
  ASSERT_GT(device->Texts().size(), 30U);
  for (const RecordedText& text : device->Texts()) {
    EXPECT_GE(text.pixels, kSmallestPixels - 0.5) << text.text.toStdString();
    EXPECT_TRUE(frame.contains(text.box)) << text.text.toStdString();
  }
}

/// The texts of all pages, a line each.
QString AllText(const PaginaDiStampa& page, const QSizeF& paper) {
  QString all;
  for (int index = 0; index < PageCountOf(paper, page); ++index) {
    const auto device = Printed(page, paper, index);
    for (const RecordedText& text : device->Texts()) all += text.text + '\n';
  }
  return all;
}

TEST_P(PrintTest, LeavesNothingOutAndCutsNothing) {
  const PaginaDiStampa page = PageOf(GetParam().setup);
  const QString all = AllText(page, GetParam().paper).simplified();
  EXPECT_FALSE(all.contains(QChar(0x2026)));
  const auto expect_told = [&](const std::string& text) {
    EXPECT_TRUE(all.contains(QString::fromStdString(text).simplified())) << text;
  };
  for (const StructureBlock& block : page.structure) {
    for (const StructureLine& line : block.lines) expect_told(line.amount);
  }
  for (const auto& row : page.elements.rows) expect_told(row[1]);
  for (const DataField& field : page.data.fields) expect_told(field.value);
  for (const DataTable& table : page.data.tables) {
    for (const auto& row : table.rows) expect_told(row.back());
  }
}

TEST_P(PrintTest, KeepsItsFurtherPagesWithinTheFrameToo) {
  const PaginaDiStampa page = PageOf(GetParam().setup);
  const QSizeF& paper = GetParam().paper;
  const QRectF frame =
      QRectF(QPointF(), paper * kDotsPerInch)
          .adjusted(0.29 * kDotsPerInch, 0.29 * kDotsPerInch, -0.29 * kDotsPerInch, -0.29 * kDotsPerInch);
  const int count = PageCountOf(paper, page);
  EXPECT_GT(count, 1);
  for (int index = 0; index < count; ++index) {
    const auto device = Printed(page, paper, index);
    EXPECT_TRUE(frame.contains(device->Extent())) << "page " << index + 1;
    EXPECT_TRUE(device->Says("pagina " + QString::number(index + 1) + " di " + QString::number(count)));
  }
}

TEST_P(PrintTest, LaysNoTextOverAnother) {
  const auto device = Printed(PageOf(GetParam().setup), GetParam().paper);
  const auto& texts = device->Texts();
  for (std::size_t i = 0; i < texts.size(); ++i) {
    for (std::size_t j = 0; j < i; ++j) {
      const double slack = 0.22 * std::min(texts[i].pixels, texts[j].pixels);
      const QRectF inner = texts[i].box.adjusted(slack, slack, -slack, -slack);
      EXPECT_FALSE(inner.isValid() && inner.intersects(texts[j].box.adjusted(slack, slack, -slack, -slack)))
          << texts[i].text.toStdString() << " over " << texts[j].text.toStdString();
    }
  }
}

INSTANTIATE_TEST_SUITE_P(
    Pages, PrintTest,
    testing::Values(Print{"Wall", samples::PlasteredBrickWall(), kPortrait},
                    Print{"WallLandscape", samples::PlasteredBrickWall(), kLandscape},
                    Print{"Facade", samples::FacadeOfNine(), kPortrait},
                    Print{"FacadeLandscape", samples::FacadeOfNine(), kLandscape},
                    Print{"Floor", samples::FloatingFloor(), kPortrait},
                    Print{"Ceiling", samples::Lining(Calculation::kCeilingSea), kPortrait},
                    Print{"Sea", samples::FullSeaWall(), kLandscape}, Print{"Crowded", Crowded(), kPortrait},
                    Print{"CrowdedLandscape", Crowded(), kLandscape},
                    Print{"CrowdedFloor", CrowdedFloor(), kPortrait},
                    Print{"CrowdedFloorLandscape", CrowdedFloor(), kLandscape}),
    [](const auto& test) { return test.param.name; });

TEST(ComponiPagina, SetsTitleAndResultBoldAtTheirSizes) {
  const auto device = Printed(PageOf(samples::PlasteredBrickWall()));
  const RecordedText title = device->Find("Calcolo previsionale");
  EXPECT_TRUE(title.bold);
  EXPECT_NEAR(title.pixels, 16.0 / 72.0 * kDotsPerInch, 0.5);
  const RecordedText result = device->Find("Rw(C; Ctr)= 51,0 (\u22121; \u22123)\u202FdB");
  EXPECT_TRUE(result.bold);
  EXPECT_NEAR(result.pixels, 12.0 / 72.0 * kDotsPerInch, 0.5);
  EXPECT_FALSE(device->Find("Tipo di parete").bold);
}

TEST(ComponiPagina, IsThePageInSmallInAPreview) {
  const PaginaDiStampa page = PageOf(samples::PlasterboardDoubleWall());
  RecordingDevice small((kPortrait * 50.0).toSize());
  {
    QPainter painter(&small);
    ComponiPagina(painter, 50.0, kPortrait, page);
  }
  const auto large = Printed(page);
  ASSERT_EQ(small.Texts().size(), large->Texts().size());
  for (std::size_t i = 0; i < small.Texts().size(); ++i) {
    EXPECT_EQ(small.Texts()[i].text, large->Texts()[i].text);
    EXPECT_NEAR(small.Texts()[i].box.left() / 50.0, large->Texts()[i].box.left() / kDotsPerInch, 1e-6);
    EXPECT_NEAR(small.Texts()[i].box.top() / 50.0, large->Texts()[i].box.top() / kDotsPerInch, 1e-6);
  }
}

TEST(ComponiPagina, BreaksATitleThatNoLineHolds) {
  PaginaDiStampa page = PageOf(samples::FacadeOfNine());
  page.title =
      "Calcolo previsionale del potere fonoisolante di una parete composta / Prediction of the sound "
      "reduction index of a composite wall";
  const auto device = Printed(page);
  EXPECT_TRUE(device->Says(QStringLiteral("Calcolo previsionale")));
  EXPECT_TRUE(device->Says(QStringLiteral("composite wall")));
}

TEST(ComponiPagina, SetsWordsOfTheInputsLeftAndTheirNumbersInTheMiddle) {
  PaginaDiStampa page;
  page.title = "Titolo";
  page.data.title = "Dati di calcolo";
  page.data.tables.push_back({.title = "Strati",
                              .heads = {"Materiale", "E"},
                              .weights = {1.0, 1.0},
                              .rows = {{"Gesso", "1"}, {"Calcestruzzo armato", "2"}}});
  const auto device = Printed(page, kPortrait, 1);
  const QRectF head = device->Find(QStringLiteral("Materiale")).box;
  EXPECT_NEAR(device->Find(QStringLiteral("Gesso")).box.left(), head.left(), 1.0);
  EXPECT_NEAR(device->Find(QStringLiteral("Calcestruzzo")).box.left(), head.left(), 1.0);
  EXPECT_GT(device->Find(QStringLiteral("1")).box.left(), kPortrait.width() * kDotsPerInch * 0.6);
}

TEST(PageStudio, SignsUnlessAnotherPageIsSigned) {
  PageStudio studio{.signer = "ing. Anna Bassi"};
  studio.words.signer = "ing. Anna Bassi";
  EXPECT_TRUE(studio.Signs());
  PaginaDiStampa page;
  page.title = "Titolo";
  page.studio = studio;
  EXPECT_EQ(PageCountOf(kPortrait, page), 2);
  page.studio.signs = false;
  EXPECT_EQ(PageCountOf(kPortrait, page), 1);
}

TEST(ComponiPagina, DrawsNothingOnPaperWithoutSize) {
  RecordingDevice device(QSize(100, 100));
  QPainter painter(&device);
  ComponiPagina(painter, 0.0, kPortrait, PageOf(samples::PlasteredBrickWall()));
  ComponiPagina(painter, 100.0, {}, PageOf(samples::PlasteredBrickWall()));
  EXPECT_TRUE(device.Texts().empty());
}

}  // namespace
}  // namespace velmar::presentation
