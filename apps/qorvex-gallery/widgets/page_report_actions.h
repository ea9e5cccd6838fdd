#pragma once

/// @file
/// The entries of a menu for reports of pages.

#include <functional>

class QMenu;

namespace qorvex::gallery {

class Page;

/// Adds entries that save and print the report of the page that the function gives. They are
/// disabled while that page has nothing to report.
void AddReportActions(QMenu& menu, std::function<const Page*()> current_page);

}  // namespace qorvex::gallery
