#pragma once

/// @file
/// Headings on a page.

#include <QString>

class QLabel;
class QWidget;

namespace qorvex::gallery {

/// A bold label. Its mnemonic, if any, moves the focus to the buddy.
[[nodiscard]] QLabel* MakeHeading(const QString& text, QWidget* buddy = nullptr);

}  // namespace qorvex::gallery
