// Any bytes: FromBytes raises rsInvalidValue with a reason, or reads a sample that has these bytes
// and figures. Read as values instead, they give the same sample in one range and one by one.

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <span>
#include <string_view>
#include <vector>

#include "fuzz/require.h"
#include "qorvex/base/errors.h"
#include "qorvex/stats/exact/exact_sample.h"

namespace {

using namespace qorvex;

template <int kPowerSums>
void ReadSample(std::span<const std::byte> bytes) {
  try {
    const auto sample = ExactSample<kPowerSums>::FromBytes(bytes);
    const auto written = sample.ToBytes();
    Require(std::equal(written.begin(), written.end(), bytes.begin(), bytes.end()),
            "other bytes are written than were read");
    if (sample.Count() == 0) return;
    Require(!(sample.PopulationVariance() < 0), "a negative variance");
    const auto twice = [&] {
      auto merged = sample;
      merged.Merge(sample);
      return merged;
    }();
    Require(twice.Count() == 2 * sample.Count(), "a merge loses values");
    const Extended mean = sample.Mean();
    Require(std::isnan(mean) ? std::isnan(twice.Mean()) : mean == twice.Mean(),
            "a merge with itself changes the mean");
  } catch (const EMathError& error) {
    Require(error.message_id() == rsInvalidValue, "an unexpected error");
    Require(std::string_view(error.what()).starts_with("Not the bytes"), "no reason");
  }
}

template <class T>
void AddValues(std::span<const std::byte> bytes) {
  std::vector<T> values(bytes.size() / sizeof(T));
  if (values.empty()) return;
  std::memcpy(values.data(), bytes.data(), values.size() * sizeof(T));
  ExactSample<2> whole;
  whole.Add(values);
  ExactSample<2> one_by_one;
  for (auto x = values.rbegin(); x != values.rend(); ++x) one_by_one.Add(*x);
  Require(whole == one_by_one, "the order makes a difference");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::span bytes(reinterpret_cast<const std::byte*>(data), size);
  ReadSample<2>(bytes);
  ReadSample<4>(bytes);
  AddValues<double>(bytes);
  AddValues<float>(bytes);
  AddValues<std::int64_t>(bytes);
  return 0;
}
