#pragma once

/// @file
/// Unit QorvexBaseControls: TQorCustomLabel, the label that others are made from.

#include <QColor>
#include <QList>
#include <QPointer>
#include <QString>
#include <QWidget>
#include <utility>

#include "qorvex/base/export.h"
#include "qorvex/base_controls/unit.h"

QORVEX_WIDGET_UNIT(QorvexBaseControls) {

/// A label of plain text whose drawing a derived class can replace.
///
/// Its colours come from the palette: the foreground role's colour, which is the grey one while
/// the label is disabled, and for embossed text Light and Dark. In right-to-left layouts leading
/// text stands at the right. Screen readers get AccessibleText, unless the widget's accessible
/// name is set. The setters may be called in any order.
class QORVEX_EXPORT TQorCustomLabel : public QWidget {
  Q_OBJECT
  /// @{
  /// Published: see the accessor of the same name.
  QORVEX_PUBLISHED(TQorLabelAlignment, Alignment)
  QORVEX_PUBLISHED(bool, AutoSize)
  QORVEX_PUBLISHED(QString, Caption)
  QORVEX_PUBLISHED(TQorEmbossedStyle, EmbossedStyle)
  Q_PROPERTY(
      QString FocusControl READ FocusControlName WRITE setFocusControl RESET resetFocusControl)
  QORVEX_PUBLISHED(TQorLabelLayout, Layout)
  QORVEX_PUBLISHED(bool, ShowAccelChar)
  QORVEX_PUBLISHED(bool, Transparent)
  QORVEX_PUBLISHED(bool, WordWrap)
  /// @}

 public:
  /// Where the lines of a text stand.
  enum TQorLabelAlignment {
    laLeading,   ///< At the left, or at the right in right-to-left layouts.
    laTrailing,  ///< On the other side.
    laCentered   ///< In the middle.
  };
  Q_ENUM(TQorLabelAlignment)

  /// Where a text stands that is lower than its label.
  enum TQorLabelLayout {
    llTop,       ///< At the top.
    llCentered,  ///< In the middle.
    llBottom     ///< At the bottom.
  };
  Q_ENUM(TQorLabelLayout)

  /// How a text stands out from its ground.
  enum TQorEmbossedStyle {
    esNone,    ///< It does not.
    esRaised,  ///< Above it, with a shadow at the lower right.
    esLowered  ///< Cut into it, with light on the lower right edges.
  };
  Q_ENUM(TQorEmbossedStyle)

  /// An empty label.
  explicit TQorCustomLabel(QWidget* parent = nullptr);
  ~TQorCustomLabel() override;

  /// @{
  /// Where the lines stand; laLeading at first.
  [[nodiscard]] TQorLabelAlignment Alignment() const noexcept { return settings_.alignment; }
  void setAlignment(TQorLabelAlignment alignment) { Assign(settings_.alignment, alignment); }
  void resetAlignment() { setAlignment(Settings().alignment); }
  /// @}

  /// @{
  /// The label takes the size of its text once it is polished, which is before it is shown, and
  /// whenever the text changes: true at first. The edge at which the text is aligned, or the
  /// middle, and the top stay. With WordWrap the width stays too and the height follows it. A
  /// label in a layout has the size that the layout gives it.
  [[nodiscard]] bool AutoSize() const noexcept { return settings_.auto_size; }
  void setAutoSize(bool auto_size) { Assign(settings_.auto_size, auto_size); }
  void resetAutoSize() { setAutoSize(Settings().auto_size); }
  /// @}

  /// @{
  /// The text, which may have several lines.
  [[nodiscard]] QString Caption() const { return settings_.caption; }
  void setCaption(const QString& caption);
  void resetCaption() { setCaption(Settings().caption); }
  /// @}

  /// @{
  /// How the text stands out; esNone at first.
  [[nodiscard]] TQorEmbossedStyle EmbossedStyle() const noexcept {
    return settings_.embossed_style;
  }
  void setEmbossedStyle(TQorEmbossedStyle style) { Assign(settings_.embossed_style, style); }
  void resetEmbossedStyle() { setEmbossedStyle(Settings().embossed_style); }
  /// @}

  /// @{
  /// The widget that the accelerator focuses; none at first. It may be named, as forms do, before
  /// it exists: when it is needed, the nearest ancestor in its window that has a child of the name
  /// decides.
  [[nodiscard]] QWidget* FocusControl() const;
  [[nodiscard]] QString FocusControlName() const;
  void setFocusControl(QWidget* control);
  void setFocusControl(const QString& object_name);
  void resetFocusControl() { setFocusControl(QString()); }
  /// @}

  /// @{
  /// Where the text stands from top to bottom; llCentered at first.
  [[nodiscard]] TQorLabelLayout Layout() const noexcept { return settings_.layout; }
  void setLayout(TQorLabelLayout layout) { Assign(settings_.layout, layout); }
  void resetLayout() { setLayout(Settings().layout); }
  /// @}
  // The other one would be hidden.
  using QWidget::setLayout;

  /// @{
  /// An ampersand underlines the character after it and makes Alt and that character focus
  /// FocusControl; two of them are one. True at first. False: ampersands are characters like any
  /// other.
  [[nodiscard]] bool ShowAccelChar() const noexcept { return settings_.show_accel_char; }
  void setShowAccelChar(bool show);
  void resetShowAccelChar() { setShowAccelChar(Settings().show_accel_char); }
  /// @}

  /// @{
  /// What is behind the label shows between its characters: true at first. False: it is filled
  /// with the colour of its background role. The opposite of the widget's autoFillBackground.
  [[nodiscard]] bool Transparent() const { return !autoFillBackground(); }
  void setTransparent(bool transparent) { setAutoFillBackground(!transparent); }
  void resetTransparent() { setTransparent(true); }
  /// @}

  /// @{
  /// Lines that are too wide are broken between words; false at first.
  [[nodiscard]] bool WordWrap() const noexcept { return settings_.word_wrap; }
  void setWordWrap(bool wrap);
  void resetWordWrap() { setWordWrap(Settings().word_wrap); }
  /// @}

  /// The caption as it reads, without the marks of accelerators.
  [[nodiscard]] QString AccessibleText() const;

  /// The size of the text. With WordWrap lines end at about 60 characters.
  [[nodiscard]] QSize sizeHint() const override;
  /// The size of the text. With WordWrap the width of its widest word and the height of a line.
  [[nodiscard]] QSize minimumSizeHint() const override;
  /// @{
  /// With WordWrap the height of the text depends on its width.
  [[nodiscard]] bool hasHeightForWidth() const override { return WordWrap(); }
  [[nodiscard]] int heightForWidth(int width) const override;
  /// @}

 protected:
  /// A flag for DoDrawLabel beside those of Qt: draw nothing, find the size.
  static constexpr int kMeasureOnly = 1 << 30;

  /// One of the copies of a text that are drawn above one another.
  struct TextLayer {
    int offset = 0;  ///< Right and down.
    QColor color;    ///< The pen's.
  };

  /// Draws the caption, or finds its size, in a rectangle. The flags are Qt::AlignLeft,
  /// AlignRight or AlignHCenter, and Qt::TextWordWrap; AddAccelerator adds what says how
  /// ampersands are drawn. Text begins at the top. Nothing is clipped. With kMeasureOnly the
  /// painter may be inactive, and the rectangle gets the size of the text instead.
  virtual void DoDrawLabel(QPainter& painter, QRect& rectangle, int flags) const;

  /// The caption as it reads, with the marks of accelerators.
  [[nodiscard]] virtual QString DisplayText() const { return Caption(); }

  /// The flags and Qt::TextShowMnemonic where accelerators are underlined, Qt::TextHideMnemonic
  /// where the style does not want that, neither where ampersands are characters.
  [[nodiscard]] int AddAccelerator(int flags) const;
  /// The text to draw or measure: a space is measured in place of one that shows nothing, so that
  /// a label keeps its height.
  [[nodiscard]] QString TextFor(const QString& text, int flags) const;
  /// The copies that make a text of EmbossedStyle, the lowest first.
  [[nodiscard]] QList<TextLayer> TextLayers() const;

  /// To be called after a change of what DoDrawLabel measures.
  void TextSizeChanged();

  /// @{
  /// The accelerator, and what the size depends on.
  bool event(QEvent* event) override;
  void changeEvent(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  /// @}

 private:
  struct Settings {
    TQorLabelAlignment alignment = laLeading;
    bool auto_size = true;
    QString caption;
    TQorEmbossedStyle embossed_style = esNone;
    TQorLabelLayout layout = llCentered;
    bool show_accel_char = true;
    bool word_wrap = false;
  };

  template <class T>
  void Assign(T& setting, const T& value) {
    if (setting == value) return;
    setting = value;
    TextSizeChanged();
  }
  [[nodiscard]] int DrawFlags() const;
  [[nodiscard]] int EmbossedMargin() const noexcept;
  [[nodiscard]] QSize SizeInWidth(int width) const;
  void FitToText();
  void TextChanged();
  void GrabAccelerator();

  Settings settings_;
  QPointer<QWidget> focus_control_;
  QString focus_control_name_;
  int shortcut_id_ = 0;
};

}  // QORVEX_WIDGET_UNIT(QorvexBaseControls)
