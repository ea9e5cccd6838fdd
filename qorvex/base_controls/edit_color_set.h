#pragma once

/// @file
/// TQorEditColorSet, the colours of a control's cells.

#include <QColor>
#include <QObject>

#include "qorvex/base/export.h"
#include "qorvex/base_controls/cell_settings.h"
#include "qorvex/base_controls/unit.h"

QORVEX_WIDGET_UNIT(QorvexBaseControls) {

/// The colours of cells as an object with a signal. See EditColors for their meaning and for
/// invalid colours. A control owns its colour set; forms reach the colours through the control's
/// properties ColorSetText, ColorSetBackground and so on.
class QORVEX_EXPORT TQorEditColorSet : public QObject {
  Q_OBJECT
  /// @{
  /// Published: see the member of EditColors of the same name.
  QORVEX_PUBLISHED(QColor, Text)
  QORVEX_PUBLISHED(QColor, Background)
  QORVEX_PUBLISHED(QColor, NegativeText)
  QORVEX_PUBLISHED(QColor, FocusBackground)
  QORVEX_PUBLISHED(QColor, ReadOnlyBackground)
  QORVEX_PUBLISHED(QColor, InvalidText)
  QORVEX_PUBLISHED(QColor, InvalidBackground)
  /// @}

 public:
  /// The palette's colours.
  explicit TQorEditColorSet(QObject* owner = nullptr);
  ~TQorEditColorSet() override;

  /// @{
  /// All colours at once.
  [[nodiscard]] const EditColors& Colors() const noexcept { return colors_; }
  void setColors(const EditColors& colors);
  /// @}

/// @cond internal
#define QORVEX_COLOR(Name, member)      \
  [[nodiscard]] QColor Name() const {   \
    return colors_.member;              \
  }                                     \
  void set##Name(const QColor& color) { \
    EditColors colors = colors_;        \
    colors.member = color;              \
    setColors(colors);                  \
  }                                     \
  void reset##Name() {                  \
    set##Name({});                      \
  }
  /// @endcond
  /// @{
  /// One colour.
  QORVEX_COLOR(Text, text)
  QORVEX_COLOR(Background, background)
  QORVEX_COLOR(NegativeText, negative_text)
  QORVEX_COLOR(FocusBackground, focus_background)
  QORVEX_COLOR(ReadOnlyBackground, read_only_background)
  QORVEX_COLOR(InvalidText, invalid_text)
  QORVEX_COLOR(InvalidBackground, invalid_background)
  /// @}
#undef QORVEX_COLOR

 Q_SIGNALS:
  /// A colour has changed.
  void Changed();

 private:
  EditColors colors_;
};

}  // QORVEX_WIDGET_UNIT(QorvexBaseControls)
