#pragma once

/// @file
/// A catalogue of texts that an application can replace while the program runs.

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

/// Texts by identifier, an enumeration that counts from 0. Every member may be called on any
/// thread.
///
/// A text is found in this order: the look-up function, when one is set and gives a text; the
/// replacement, when one is set; the default.
template <class Id>
class TextCatalog {
 public:
  /// Gives the text for an identifier, or nothing to leave it to the catalogue.
  using Lookup = std::function<std::optional<std::string>(Id)>;

  /// The defaults must outlive the catalogue.
  explicit TextCatalog(std::span<const std::string_view> defaults)
      : defaults_(defaults), replacements_(defaults.size()) {}

  /// The current text. The look-up function is called without any lock held, so it may ask for
  /// other texts of the catalogue.
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

  /// Replaces a text; nothing restores the default.
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
