#pragma once

/// @file
/// A catalogue of texts that an application can replace while the program runs.

#include <cstddef>
#include <functional>
#include <memory>
#include <optional>
#include <shared_mutex>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "qorvex/base/export.h"

namespace qorvex {

/// Texts by index, with defaults, replacements and a look-up function. Every member may be called on any thread.
///
/// A text is found in this order: the look-up function, when one is set and gives a text; the replacement, when one is
/// set; the default.
class QORVEX_EXPORT TextCatalog {
 public:
  /// Gives the text for an index, or nothing to leave it to the catalogue.
  using Lookup = std::function<std::optional<std::string>(std::size_t)>;

  /// The defaults must outlive the catalogue.
  explicit TextCatalog(std::span<const std::string_view> defaults);
  ~TextCatalog();
  TextCatalog(const TextCatalog&) = delete;
  TextCatalog& operator=(const TextCatalog&) = delete;

  /// The current text. The look-up function is called without any lock held, so it may use the catalogue itself.
  [[nodiscard]] std::string Text(std::size_t index) const;
  /// Replaces a text; nothing restores the default.
  void SetText(std::size_t index, std::optional<std::string> text);
  /// Sets the look-up function; an empty one removes it.
  void SetLookup(Lookup lookup);

 private:
  std::span<const std::string_view> defaults_;
  mutable std::shared_mutex mutex_;
  std::vector<std::optional<std::string>> replacements_;
  std::shared_ptr<const Lookup> lookup_;
};

}  // namespace qorvex
