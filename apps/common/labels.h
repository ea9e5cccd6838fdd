#pragma once

/// @file
/// A column of labels.

#include <cstddef>
#include <cstdint>
#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace qorvex::apps {

/// The labels of a column in the order of its rows. Each text is kept once. Memory: 4 bytes a row.
class Labels {
 public:
  /// Appends a label.
  void Append(std::string_view label);
  /// Appends the labels of another column, as if one by one.
  void Append(const Labels& others);

  [[nodiscard]] std::size_t size() const noexcept { return codes_.size(); }
  [[nodiscard]] bool empty() const noexcept { return codes_.empty(); }
  /// For each row the index of its label among the texts.
  [[nodiscard]] std::span<const std::uint32_t> Codes() const noexcept { return codes_; }
  /// The different labels in the order in which they appear.
  [[nodiscard]] const std::vector<std::string>& Texts() const noexcept { return texts_; }

 private:
  struct Hash : std::hash<std::string_view> {
    using is_transparent = void;
  };
  [[nodiscard]] std::uint32_t CodeOf(std::string_view label);

  std::vector<std::uint32_t> codes_;
  std::vector<std::string> texts_;
  std::unordered_map<std::string, std::uint32_t, Hash, std::equal_to<>> code_of_;
};

}  // namespace qorvex::apps
