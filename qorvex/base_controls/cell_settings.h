#pragma once

/// @file
/// What decides how a cell shows and takes a number: plain values with their defaults.

#include <QColor>
#include <QString>
#include <Qt>

#include "qorvex/base/elementary.h"

namespace qorvex::inline QorvexBaseControls {

/// How a number is written.
struct NumberFormat {
  bool trim_trailing_zeroes = false;  ///< Without the zeroes that end the decimals.
  bool full_accuracy = false;         ///< All digits of the value, whatever decimal_places says.
  int decimal_places = 4;             ///< Decimals, 0 to 255.
  Qt::Alignment alignment = Qt::AlignRight | Qt::AlignVCenter;  ///< Where the text stands.

  /// Equal in all members.
  friend bool operator==(const NumberFormat&, const NumberFormat&) = default;
};

/// What becomes of cells without a value. A null is a NaN.
struct NullHandling {
  bool allow_kbd_null = true;    ///< Emptying a cell by hand makes it null.
  bool blank_when_zero = false;  ///< A zero shows as an empty cell.
  bool blank_when_null = false;  ///< A null shows as an empty cell, whatever null_str says.
  /// What a null shows.
  QString null_str = QString::fromUtf8(QorNullStr.data(), static_cast<int>(QorNullStr.size()));

  /// Equal in all members.
  friend bool operator==(const NullHandling&, const NullHandling&) = default;
};

/// What gets selected.
struct SelectionBehaviour {
  bool auto_select = true;         ///< The whole text when the cell is entered by a key or a call.
  bool auto_select_click = false;  ///< The whole text when the cell is clicked.

  /// Equal in all members.
  friend bool operator==(const SelectionBehaviour&, const SelectionBehaviour&) = default;
};

/// The colours of a cell. An invalid colour, which each is at first, stands for what the palette
/// has, so that dark themes work; the marks of invalid text have shades of red then.
struct EditColors {
  QColor text;                  ///< Numbers.
  QColor background;            ///< Behind them.
  QColor negative_text;         ///< Numbers below zero.
  QColor focus_background;      ///< Behind the number that has the focus.
  QColor read_only_background;  ///< Behind numbers that cannot be changed.
  QColor invalid_text;          ///< A text that is no number.
  QColor invalid_background;    ///< Behind it.

  /// Equal in all members.
  friend bool operator==(const EditColors&, const EditColors&) = default;
};

/// All settings of a cell.
struct CellSettings {
  NumberFormat number;           ///< How numbers are written.
  NullHandling nulls;            ///< Null and zero.
  SelectionBehaviour selection;  ///< What gets selected.
  EditColors colors;             ///< Colours.
  bool read_only = false;        ///< The user cannot change the value.

  /// Equal in all members.
  friend bool operator==(const CellSettings&, const CellSettings&) = default;
};

}  // namespace qorvex::inline QorvexBaseControls
