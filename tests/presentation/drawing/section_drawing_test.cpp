#include "presentation/drawing/section_drawing.h"

#include <QFont>

#include <gtest/gtest.h>

#include "presentation/drawing/colours.h"
#include "presentation/drawing/section_layout.h"
#include "tests/presentation/drawing/picture.h"
#include "tests/presentation/sample_setups.h"

namespace velmar::presentation {
namespace {

Section Horizontal(Section section) {
  section.horizontal = true;
  return section;
}

class LabelTest : public testing::TestWithParam<std::tuple<int, QSizeF>> {};

TEST_P(LabelTest, NeverOverlapAndStayInTheArea) {
  const auto& [rows, size] = GetParam();
  const QRectF area(QPointF(20.0, 10.0), size);
  for (const Section& section : {SectionOf(samples::ManyThinLayers(rows)), SectionOf(samples::FullSeaWall()),
                                 Horizontal(SectionOf(samples::ManyThinLayers(rows)))}) {
    const SectionLayout layout = LayoutOf(area, section, QFont(), {});
    ASSERT_EQ(layout.labels.size(), static_cast<std::size_t>(section.strips.back().number));
    for (std::size_t i = 0; i < layout.labels.size(); ++i) {
      EXPECT_TRUE(area.adjusted(-0.01, -0.01, 0.01, 0.01).contains(layout.labels[i].box)) << i;
      for (std::size_t j = 0; j < i; ++j) {
        // Neighbours may share an edge.
        EXPECT_FALSE(layout.labels[i].box.adjusted(0.01, 0.01, -0.01, -0.01).intersects(layout.labels[j].box))
            << i << " and " << j;
      }
    }
    EXPECT_GT(layout.body.width(), 0.2 * size.width());
    EXPECT_GT(layout.body.height(), 0.2 * size.height());
  }
}

INSTANTIATE_TEST_SUITE_P(Sizes, LabelTest,
                         testing::Combine(testing::Values(1, 3, 10),
                                          testing::Values(QSizeF(560, 260), QSizeF(320, 420),
                                                          QSizeF(260, 200), QSizeF(1200, 300))));

TEST(SectionLayout, PointsEveryNumberAtItsStrip) {
  for (const Section& section : {SectionOf(samples::FullSeaWall()), SectionOf(samples::FloatingFloor()),
                                 SectionOf(samples::ManyThinLayers(10))}) {
    const SectionLayout layout = LayoutOf(QRectF(0, 0, 500, 300), section, QFont(), {});
    for (const SectionLabel& label : layout.labels) {
      for (std::size_t i = 0; i < section.strips.size(); ++i) {
        const bool own = section.strips[i].number == label.number;
        EXPECT_EQ(layout.strips[i].contains(label.leader.last()), own) << label.number << " at strip " << i;
      }
    }
  }
}

TEST(SectionLayout, LeavesNoNumberOutWhereRoomIsScarce) {
  const Section wall = SectionOf(samples::ManyThinLayers(10));
  for (const Section& section : {wall, Horizontal(wall)}) {
    for (const QSizeF& size : {QSizeF(300, 150), QSizeF(200, 300), QSizeF(215, 210), QSizeF(400, 120)}) {
      const SectionLayout layout = LayoutOf(QRectF(QPointF(), size), section, QFont(),
                                            {.list_names = false, .smallest_number_px = 9.0});
      ASSERT_EQ(layout.labels.size(), 20U);
      for (std::size_t i = 0; i < layout.labels.size(); ++i) {
        const QRectF inner = layout.labels[i].box.adjusted(0.01, 0.01, -0.01, -0.01);
        for (std::size_t j = 0; j < i; ++j)
          EXPECT_FALSE(inner.intersects(layout.labels[j].box)) << i << " and " << j << ", " << size.width();
      }
      EXPECT_GT(layout.body.width(), 0.0);
      EXPECT_GT(layout.body.height(), 0.0);
    }
  }
}

TEST(SectionLayout, OnPaperTellsTheThicknessOfEachLayerAndOfAir) {
  const Section section = SectionOf(samples::PlasterboardDoubleWall());
  const SectionLayout layout = LayoutOf(QRectF(0, 0, 600, 200), section, QFont(), {.paper = true});
  std::vector<double> told;
  for (const SectionDimension& dimension : layout.dimensions) told.push_back(dimension.thickness_mm);
  EXPECT_EQ(told, (std::vector<double>{25.0, 60.0, 40.0, 12.5, 12.5}));
  ASSERT_EQ(layout.list.size(), 4U);
  EXPECT_EQ(layout.list[0].text, "Cartongesso standard, 2 x 12,5\u202Fmm");
  EXPECT_TRUE(LayoutOf(QRectF(0, 0, 600, 200), section, QFont(), {}).dimensions.empty());
}

TEST(SectionLayout, IsToScale) {
  const Section section = SectionOf(samples::PlasteredBrickWall());
  const SectionLayout layout = LayoutOf(QRectF(0, 0, 500, 300), section, QFont(), {});
  EXPECT_NEAR(layout.strips[1].width() / layout.strips[0].width(), 8.0, 1e-9);
  EXPECT_NEAR(layout.strips[0].left(), layout.body.left(), 1e-9);
  EXPECT_NEAR(layout.strips[2].right(), layout.body.right(), 1e-9);
}

TEST(DrawSection, DrawsOnlyPaperWithoutThickness) {
  const Picture picture({300, 200},
                        [](QPainter& painter, const QRectF& area) { DrawSection(painter, area, {}); });
  EXPECT_EQ(picture.Count(kPaperColour), 300 * 200);
}

TEST(DrawSection, LightsUpTheHighlightedRowAlone) {
  const Section section = SectionOf(samples::PlasterboardDoubleWall());
  const QRectF area(0, 0, 500, 300);
  const SectionLayout layout = LayoutOf(area, section, QFont(), {});
  const auto draw = [&](int number) {
    return Picture({500, 300}, [&](QPainter& painter, const QRectF&) {
      DrawSection(painter, area, section, {.highlighted_number = number});
    });
  };
  const Picture plain = draw(0);
  const Picture lit = draw(1);
  for (std::size_t i = 0; i < section.strips.size(); ++i) {
    // The tint between the hatch's lines, near the far end of the strip.
    const QPointF point = layout.strips[i].bottomLeft() + QPointF(2.0, -3.0);
    EXPECT_EQ(plain.At(point) != lit.At(point), section.strips[i].number == 1) << i;
  }
}

TEST(DrawSection, TellsAirFromFilling) {
  const Section section = SectionOf(samples::PlasterboardDoubleWall());
  const SectionLayout layout = LayoutOf(QRectF(0, 0, 500, 300), section, QFont(), {});
  const Picture picture({500, 300},
                        [&](QPainter& painter, const QRectF& area) { DrawSection(painter, area, section); });
  const QColor fill(0xFF, 0xFF, 0xC0);
  EXPECT_GT(picture.Count(fill, layout.strips[2]), 1000);
  EXPECT_EQ(picture.Count(fill, layout.strips[3].adjusted(2, 2, -2, -2)), 0);
  EXPECT_EQ(picture.At(layout.strips[3].center()), kAirColour);
}

TEST(LayerAt, FindsTheRowUnderTheMouse) {
  const Section section = SectionOf(samples::FloatingFloor());
  const QRectF area(0, 0, 500, 300);
  const SectionLayout layout = LayoutOf(area, section, QFont(), {});
  const LayerPlace resilient{elements::LayerGroup::kResilient, 0};
  EXPECT_EQ(LayerAt(layout.strips[2].center(), area, section, QFont()), resilient);
  EXPECT_EQ(LayerAt(layout.labels[2].box.center(), area, section, QFont()), resilient);
  ASSERT_EQ(layout.list.size(), 6U);
  EXPECT_EQ(LayerAt(layout.list[2].box.center(), area, section, QFont()), resilient);
  EXPECT_EQ(LayerAt({1.0, 1.0}, area, section, QFont()), std::nullopt);
}

}  // namespace
}  // namespace velmar::presentation
