#pragma once

/// @file
/// The rows of a form of which only some show.

#include <QFormLayout>
#include <QList>
#include <QString>

namespace qorvex::gallery {

/// A field, and its label if it has one beside it.
struct FormRow {
  QWidget* field;
  QString label = {};
  bool is_shown = true;
};

/// Replaces the rows of a form. Fields that do not show are hidden children of its widget. (Rows
/// that are only hidden would leave gaps.)
void SetRows(QFormLayout& form, const QList<FormRow>& rows);

}  // namespace qorvex::gallery
