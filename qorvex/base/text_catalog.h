#pragma once

/// @file
/// A catalogue of texts that applications can replace at run time.

#include <cstddef>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <shared_mutex>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace qorvex {

/// Texts by identifier, an enumeration that starts from 0. All members are thread-safe.
///
/// A text is the result of the look-up function if it has one, otherwise the replacement if one is
/// set, otherwise the default.
template <class Id>
class TextCatalog {
 public:
  /// Returns the text for an identifier, or std::nullopt to use that of the catalogue.
  using Lookup = std::function<std::optional<std::string>(Id)>;

  /// The defaults must outlive the catalogue.
  explicit TextCatalog(std::span<const std::string_view> defaults)
      : defaults_(defaults), replacements_(defaults.size()) {}

  /// The current text. The look-up function is called without a lock held, so it may use other
  /// texts of the catalogue.
  [[nodiscard]] std::string Text(Id id) const {
    const auto index = static_cast<std::size_t>(id);
    std::shared_ptr<const Lookup> lookup;
    std::string stored;
    {
      const std::shared_lock lock(mutex_);
      lookup = lookup_;
      stored = replacements_.at(index).value_or(std::string(defaults_[index]));
    }
    if (lookup != nullptr) {
      if (std::optional<std::string> found = (*lookup)(id)) return *std::move(found);
    }
    return stored;
  }

  /// Replaces a text; std::nullopt restores the default.
  void SetText(Id id, std::optional<std::string> text) {
    const std::unique_lock lock(mutex_);
    replacements_.at(static_cast<std::size_t>(id)) = std::move(text);
  }

  /// Sets the look-up function; an empty one removes it.
  void SetLookup(Lookup lookup) {
    auto shared = lookup ? std::make_shared<const Lookup>(std::move(lookup)) : nullptr;
    const std::unique_lock lock(mutex_);
    lookup_.swap(shared);
  }

 private:
  std::span<const std::string_view> defaults_;
  mutable std::shared_mutex mutex_;
  std::vector<std::optional<std::string>> replacements_;
  std::shared_ptr<const Lookup> lookup_;
};

}  // namespace qorvex
