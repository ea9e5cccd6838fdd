#pragma once

/// @file
/// Looks up the parts of a form by name.

#include <QString>
#include <QWidget>

namespace qorvex::inline QorvexBaseControls::detail {

/// The object of this class and name in the same window, or a null pointer. Where a window
/// holds a form more than once, each copy finds its own: the nearest ancestor with such a
/// descendant decides.
template <class Object>
[[nodiscard]] Object* FindByName(const QWidget& widget, const QString& name) {
  for (const QWidget* around = &widget; around != nullptr; around = around->parentWidget()) {
    if (auto* const found = around->findChild<Object*>(name)) return found;
    if (around->isWindow()) break;
  }
  return nullptr;
}

}  // namespace qorvex::inline QorvexBaseControls::detail
