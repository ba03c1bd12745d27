#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "sizewright/embedded/charts.h"

namespace sizewright {
namespace {

// z = 10 x + log10 y at the corners of each field.
Chart slopedChart() {
  return {{1.0, 2.0, 4.0},
          {0.1, 1.0, 100.0},
          {{9.0, 10.0, 12.0}, {19.0, 20.0, 22.0}, {39.0, 40.0, 42.0}}};
}

TEST(Chart, Answers_its_own_points) {
  const Chart chart = slopedChart();
  for (std::size_t i = 0; i < chart.x.size(); ++i) {
    for (std::size_t j = 0; j < chart.y.size(); ++j) {
      EXPECT_DOUBLE_EQ(chartValue(chart, chart.x[i], chart.y[j]), chart.z[i][j]);
    }
  }
}

TEST(Chart, Is_linear_in_x_and_in_the_logarithm_of_y) {
  const Chart chart = slopedChart();
  EXPECT_DOUBLE_EQ(chartValue(chart, 1.5, 1.0), 15.0);
  EXPECT_DOUBLE_EQ(chartValue(chart, 3.5, 1.0), 35.0);
  EXPECT_NEAR(chartValue(chart, 1.0, 10.0), 11.0, 1e-12);
  EXPECT_NEAR(chartValue(chart, 1.0, std::sqrt(0.1)), 9.5, 1e-12);
  EXPECT_NEAR(chartValue(chart, 3.0, 10.0), 31.0, 1e-12);
}

TEST(Chart, Is_held_at_the_ends) {
  const Chart chart = slopedChart();
  EXPECT_EQ(chartValue(chart, -5.0, 1.0), 10.0);
  EXPECT_EQ(chartValue(chart, 50.0, 1.0), 40.0);
  EXPECT_EQ(chartValue(chart, 2.0, 1e-9), 19.0);
  EXPECT_EQ(chartValue(chart, 2.0, 0.0), 19.0);
  EXPECT_EQ(chartValue(chart, 2.0, -1.0), 19.0);
  EXPECT_EQ(chartValue(chart, 2.0, 1e9), 22.0);
  const double infinity = std::numeric_limits<double>::infinity();
  EXPECT_EQ(chartValue(chart, infinity, infinity), 42.0);
  EXPECT_EQ(chartValue(chart, -infinity, -infinity), 9.0);
}

TEST(Chart, May_have_a_single_row_or_column) {
  EXPECT_EQ(chartValue({{5.0}, {1.0, 10.0}, {{2.0, 4.0}}}, 99.0, std::sqrt(10.0)), 3.0);
  EXPECT_EQ(chartValue({{1.0, 3.0}, {0.0}, {{2.0}, {4.0}}}, 2.0, 7.0), 3.0);
  EXPECT_EQ(chartValue({{1.0}, {1.0}, {{6.0}}}, 0.0, 0.0), 6.0);
}

TEST(Chart, Without_a_sound_grid_answers_0) {
  const Chart faulty[] = {
      {},
      {{1.0}, {}, {{}}},
      {{}, {1.0}, {}},
      {{1.0, 2.0}, {1.0}, {{5.0}}},  // a row too few
      {{1.0}, {1.0, 2.0}, {{5.0}}},  // a row too short
      {{1.0, 2.0}, {1.0, 2.0}, {{5.0, 5.0}, {5.0, 5.0, 5.0}}},
      {{2.0, 1.0}, {1.0}, {{5.0}, {5.0}}},  // falling x
      {{1.0, 1.0}, {1.0}, {{5.0}, {5.0}}},  // equal x
      {{1.0}, {2.0, 1.0}, {{5.0, 5.0}}},    // falling y
      {{1.0}, {0.0, 1.0}, {{5.0, 5.0}}},    // no logarithm
      {{std::nan(""), 2.0}, {1.0}, {{5.0}, {5.0}}},
  };
  for (const Chart& chart : faulty) {
    EXPECT_EQ(chartValue(chart, 1.0, 1.0), 0.0) << "chart " << (&chart - faulty);
  }
}

TEST(Chart, An_argument_that_is_no_number_gives_0) {
  EXPECT_EQ(chartValue(slopedChart(), std::nan(""), 1.0), 0.0);
  EXPECT_EQ(chartValue(slopedChart(), 1.0, std::nan("")), 0.0);
}

}  // namespace
}  // namespace sizewright
