#include "qorvex/controls/detail/element_sizes.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <numeric>
#include <string>
#include <tuple>
#include <vector>

#include "qorvex/controls/detail/shift_keys.h"

namespace qorvex::inline QorvexControls::detail {
namespace {

// Against plain sums over every axis of up to six elements, each of the usual size or of one of
// two others.
TEST(ElementSizes, AddUpAndFit) {
  for (std::uint32_t count = 0; count <= 6; ++count) {
    const int axes = static_cast<int>(std::pow(3, count));
    for (int axis = 0; axis < axes; ++axis) {
      SCOPED_TRACE(std::to_string(count) + " elements, " + std::to_string(axis));
      ElementSizes sizes(10);
      std::vector<int> plain(count + 4, 10);
      int digits = axis;
      for (std::uint32_t element = 0; element < count; ++element, digits /= 3) {
        if (digits % 3 == 0) continue;
        plain[element] = digits % 3 == 1 ? 3 : 25;
        // The largest sum is kept, and follows.
        std::ignore = sizes.LargestSum(3, count);
        if (element % 2 == 0) sizes.Set(element, 28 - plain[element]);
        std::ignore = sizes.LargestSum(2, count);
        sizes.Set(element, plain[element]);
      }
      const auto sum = [&](std::uint32_t first, std::uint32_t neighbours) {
        return std::accumulate(plain.begin() + first, plain.begin() + first + neighbours, 0);
      };
      for (std::uint32_t edits = 0; edits <= 4; ++edits) {
        int largest = 0;
        for (std::uint32_t first = 0; first + edits <= std::max(count, edits); ++first) {
          EXPECT_EQ(sizes.Sum(first, edits), sum(first, edits));
          largest = std::max(largest, sum(first, edits));
        }
        EXPECT_EQ(sizes.LargestSum(edits, count), largest);
      }
      for (std::uint32_t first = 0; first < count; ++first) {
        for (int room : {0, 10, 26, 40, 200}) {
          // The longest window that begins there, or that ends at the end and begins before.
          std::uint32_t fitting = 1;
          for (std::uint32_t begin = 0; begin <= first; ++begin) {
            for (std::uint32_t end = begin + 1; end <= count; ++end) {
              const bool is_one = begin == first || end == count;
              if (is_one && end > first && sum(begin, end - begin) <= room) {
                fitting = std::max(fitting, end - begin);
              }
            }
          }
          EXPECT_EQ(sizes.Fitting(first, count, room), fitting) << first << ' ' << room;
        }
      }
    }
  }
}

TEST(ElementSizes, AreClampedAndFollowTheirElements) {
  ElementSizes sizes(-5);
  EXPECT_EQ(sizes.Usual(), 0);
  EXPECT_EQ(sizes.Fitting(0, 1000, 10), 255U) << "as many as there may be";
  sizes.SetUsual(1 << 30);
  EXPECT_EQ(sizes.Sum(4'294'967'290U, 255), 255 * 32'767);
  constexpr std::uint32_t last = 4'294'967'295U;
  sizes.Set(last, 7);
  EXPECT_EQ(sizes.LargestSum(2, last), 2 * 32'767);
  sizes.Set(2, 2);
  sizes.Set(3, 3);
  sizes.Set(5, 5);
  sizes.Replace(3, 1, 3);
  EXPECT_EQ(sizes.Size(2), 2);
  EXPECT_EQ(sizes.Size(7), 5);
  EXPECT_EQ(sizes.Size(3) + sizes.Size(6) + sizes.Size(last), 3 * 32'767)
      << "an element that went, new ones, and one that was pushed off the end";
  sizes.Replace(0, 3, 0);
  EXPECT_EQ(sizes.Size(4), 5);
  sizes.Reset(4);
  EXPECT_TRUE(sizes.AreUsual());
}

}  // namespace
}  // namespace qorvex::inline QorvexControls::detail
