#pragma once

/// @file
/// Unit QorvexBaseControls: TQorCustomLabel, the base of labels.

#include <QColor>
#include <QList>
#include <QPointer>
#include <QString>
#include <QWidget>
#include <utility>

#include "qorvex/base/export.h"
#include "qorvex/base_controls/unit.h"

QORVEX_WIDGET_UNIT(QorvexBaseControls) {

/// A label for plain text. Derived classes can override how it is drawn.
///
/// Its colours come from the palette: that of the foreground role, which is grey while the label is
/// disabled, and Light and Dark for embossed text. In right-to-left layouts leading text is at the
/// right. Screen readers get AccessibleText, unless the widget has an accessible name. The setters
/// may be called in any order.
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
  /// The alignment of the lines of a text.
  enum TQorLabelAlignment {
    laLeading,   ///< Left, or right in right-to-left layouts.
    laTrailing,  ///< The opposite side.
    laCentered   ///< Centred.
  };
  Q_ENUM(TQorLabelAlignment)

  /// The vertical position of a text that is lower than its label.
  enum TQorLabelLayout {
    llTop,       ///< At the top.
    llCentered,  ///< In the middle.
    llBottom     ///< At the bottom.
  };
  Q_ENUM(TQorLabelLayout)

  /// The embossing of a text.
  enum TQorEmbossedStyle {
    esNone,    ///< Flat.
    esRaised,  ///< Raised, with a shadow at the lower right.
    esLowered  ///< Lowered, with light on the lower right edges.
  };
  Q_ENUM(TQorEmbossedStyle)

  /// An empty label.
  explicit TQorCustomLabel(QWidget* parent = nullptr);
  ~TQorCustomLabel() override;

  /// @{
  /// The alignment of the lines; laLeading by default.
  [[nodiscard]] TQorLabelAlignment Alignment() const noexcept { return settings_.alignment; }
  void setAlignment(TQorLabelAlignment alignment) { Assign(settings_.alignment, alignment); }
  void resetAlignment() { setAlignment(Settings().alignment); }
  /// @}

  /// @{
  /// Whether the label takes the size of its text when it is polished, which is before it is shown,
  /// and whenever the text changes; true by default. The top, and the edge or middle to which the
  /// text is aligned, stay where they are. With WordWrap the width is kept and the height follows
  /// it. In a layout, the layout determines the size.
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
  /// The embossing; esNone by default.
  [[nodiscard]] TQorEmbossedStyle EmbossedStyle() const noexcept {
    return settings_.embossed_style;
  }
  void setEmbossedStyle(TQorEmbossedStyle style) { Assign(settings_.embossed_style, style); }
  void resetEmbossedStyle() { setEmbossedStyle(Settings().embossed_style); }
  /// @}

  /// @{
  /// The widget that the accelerator focuses; none by default. Forms name it, possibly before it
  /// exists: it is looked up when needed, in the nearest ancestor in the window that has a child of
  /// that name.
  [[nodiscard]] QWidget* FocusControl() const;
  [[nodiscard]] QString FocusControlName() const;
  void setFocusControl(QWidget* control);
  void setFocusControl(const QString& object_name);
  void resetFocusControl() { setFocusControl(QString()); }
  /// @}

  /// @{
  /// The vertical position of the text; llCentered by default.
  [[nodiscard]] TQorLabelLayout Layout() const noexcept { return settings_.layout; }
  void setLayout(TQorLabelLayout layout) { Assign(settings_.layout, layout); }
  void resetLayout() { setLayout(Settings().layout); }
  /// @}
  // Otherwise it would be hidden.
  using QWidget::setLayout;

  /// @{
  /// If true, the default, an ampersand underlines the character after it, Alt and that character
  /// focus FocusControl, and two ampersands stand for one. If false, ampersands are ordinary
  /// characters.
  [[nodiscard]] bool ShowAccelChar() const noexcept { return settings_.show_accel_char; }
  void setShowAccelChar(bool show);
  void resetShowAccelChar() { setShowAccelChar(Settings().show_accel_char); }
  /// @}

  /// @{
  /// Whether the background shows through, which is the default, or the label is filled with the
  /// colour of its background role: the opposite of the widget's autoFillBackground.
  [[nodiscard]] bool Transparent() const { return !autoFillBackground(); }
  void setTransparent(bool transparent) { setAutoFillBackground(!transparent); }
  void resetTransparent() { setTransparent(true); }
  /// @}

  /// @{
  /// Whether lines that are too wide are broken between words; false by default.
  [[nodiscard]] bool WordWrap() const noexcept { return settings_.word_wrap; }
  void setWordWrap(bool wrap);
  void resetWordWrap() { setWordWrap(Settings().word_wrap); }
  /// @}

  /// The displayed caption without the marks of accelerators.
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
  /// A flag for DoDrawLabel in addition to Qt's: only measure the text.
  static constexpr int kMeasureOnly = 1 << 30;

  /// One of the copies of an embossed text.
  struct TextLayer {
    int offset = 0;  ///< Right and down.
    QColor color;    ///< The pen's.
  };

  /// Draws the caption in a rectangle, from its top, without clipping. The flags are Qt::AlignLeft,
  /// AlignRight or AlignHCenter, and Qt::TextWordWrap; AddAccelerator adds the one for ampersands.
  /// With kMeasureOnly the painter may be inactive, and the rectangle gets the size of the text
  /// instead.
  virtual void DoDrawLabel(QPainter& painter, QRect& rectangle, int flags) const;

  /// The displayed caption with the marks of accelerators.
  [[nodiscard]] virtual QString DisplayText() const { return Caption(); }

  /// Adds Qt::TextShowMnemonic if accelerators are underlined, Qt::TextHideMnemonic if the style
  /// does not underline them, and nothing if ampersands are ordinary characters.
  [[nodiscard]] int AddAccelerator(int flags) const;
  /// The text to draw or measure. A space is measured in place of an empty text, so that the label
  /// keeps its height.
  [[nodiscard]] QString TextFor(const QString& text, int flags) const;
  /// The copies of a text in EmbossedStyle, the lowest first.
  [[nodiscard]] QList<TextLayer> TextLayers() const;

  /// Call after a change that affects the size of the text.
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
