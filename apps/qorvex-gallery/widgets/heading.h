#pragma once

/// @file
/// The headings of the parts of a page.

#include <QString>

class QLabel;
class QWidget;

namespace qorvex::gallery {

/// A label in bold, whose mnemonic, if any, leads to the buddy.
[[nodiscard]] QLabel* MakeHeading(const QString& text, QWidget* buddy = nullptr);

}  // namespace qorvex::gallery
