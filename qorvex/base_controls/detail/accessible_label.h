#pragma once

/// @file
/// Labels for screen readers.

namespace qorvex::inline QorvexBaseControls::detail {

/// Makes every TQorCustomLabel a static text to screen readers, which names the widget that its
/// accelerator focuses. Further calls do nothing.
void RegisterAccessibleLabels();

}  // namespace qorvex::inline QorvexBaseControls::detail
