#pragma once

/// @file
/// How a cell shows and reads numbers: plain values with their defaults.

#include <QColor>
#include <QObject>
#include <QString>
#include <Qt>

#include "qorvex/base/elementary.h"
#include "qorvex/base/export.h"
#include "qorvex/base/fitted_text.h"
#include "qorvex/base_controls/unit.h"

QORVEX_WIDGET_UNIT(QorvexBaseControls) {

/// How a number is written.
struct QORVEX_EXPORT NumberSettings {
  Q_GADGET

 public:
  /// TQorNumberFormat for forms.
  enum Format {
    nfFixed = qorvex::nfFixed,              ///< "1234.5000", with decimal_places.
    nfSignificant = qorvex::nfSignificant,  ///< "1234.50", with significant_digits.
    nfScientific = qorvex::nfScientific,    ///< "1.23450e3", with significant_digits.
    nfGeneral = qorvex::nfGeneral           ///< "1234.5", with up to significant_digits.
  };
  Q_ENUM(Format)

  bool trim_trailing_zeroes = false;  ///< Omit trailing zeros of the decimals.
  bool full_accuracy = false;         ///< All digits of the value, regardless of decimal_places.
  int decimal_places = 4;             ///< Decimals of nfFixed, 0 to 255.
  Format format = nfFixed;            ///< The notation; see FloatText.
  int significant_digits = 6;         ///< Digits of the other formats, 1 to 255.
  /// Separates groups of digits as the locale does, except while the number is being edited.
  bool grouping = false;
  Qt::Alignment alignment = Qt::AlignRight | Qt::AlignVCenter;  ///< Alignment of the text.

  /// Equal in all members.
  friend bool operator==(const NumberSettings&, const NumberSettings&) = default;

  /// The digits that FloatText shows.
  [[nodiscard]] FloatDigits Digits() const {
    return {.decimals = decimal_places,
            .all = full_accuracy,
            .trim = trim_trailing_zeroes,
            .format = static_cast<TQorNumberFormat>(format),
            .significant = significant_digits};
  }
};

/// How nulls and zeros are shown and typed. A null is a NaN.
struct NullHandling {
  bool allow_kbd_null = true;    ///< Clearing a cell by typing makes it null.
  bool blank_when_zero = false;  ///< A zero shows as an empty cell.
  bool blank_when_null = false;  ///< A null shows as an empty cell, regardless of null_str.
  /// The text of a null.
  QString null_str = QString::fromUtf8(QorNullStr.data(), static_cast<int>(QorNullStr.size()));

  /// Equal in all members.
  friend bool operator==(const NullHandling&, const NullHandling&) = default;
};

/// When a cell selects its whole text.
struct SelectionBehaviour {
  bool auto_select = true;         ///< When the cell is entered by a key or a call.
  bool auto_select_click = false;  ///< When the cell is clicked.

  /// Equal in all members.
  friend bool operator==(const SelectionBehaviour&, const SelectionBehaviour&) = default;
};

/// The colours of a cell. An invalid colour, the default of each, stands for the palette's, so that
/// dark themes work; invalid text is then marked in shades of red.
struct EditColors {
  QColor text;                  ///< Numbers.
  QColor background;            ///< Behind them.
  QColor negative_text;         ///< Numbers below zero.
  QColor focus_background;      ///< Behind the number that has the focus.
  QColor read_only_background;  ///< Behind numbers that cannot be changed.
  QColor invalid_text;          ///< A text that is not a number.
  QColor invalid_background;    ///< Behind it.

  /// Equal in all members.
  friend bool operator==(const EditColors&, const EditColors&) = default;
};

/// All settings of a cell.
struct CellSettings {
  NumberSettings number;          ///< How numbers are written.
  NullHandling nulls;             ///< Null and zero.
  SelectionBehaviour selection;   ///< When a cell selects its whole text.
  EditColors colors;              ///< Colours.
  bool read_only = false;         ///< The user cannot change the value.
  bool read_expressions = false;  ///< Reads "12%", "(5)", "1/3" and "2*3".

  /// Equal in all members.
  friend bool operator==(const CellSettings&, const CellSettings&) = default;
};

}  // QORVEX_WIDGET_UNIT(QorvexBaseControls)
