#include "qorvex/base_controls/custom_label.h"

#include <QAccessible>
#include <QFontMetrics>
#include <QKeySequence>
#include <QLayout>
#include <QPainter>
#include <QShortcutEvent>
#include <QStyle>
#include <algorithm>

#include "qorvex/base_controls/detail/accessible_label.h"
#include "qorvex/base_controls/detail/find_by_name.h"

namespace qorvex::inline QorvexBaseControls {

namespace {

constexpr int kWrappedCharacters = 60;

bool IsInLayout(QWidget* widget) {
  const QWidget* const parent = widget->parentWidget();
  const QLayout* const layout = parent == nullptr ? nullptr : parent->layout();
  if (layout == nullptr) return false;
  const auto holds = [widget](const QLayout* l) { return l->indexOf(widget) >= 0; };
  return holds(layout) || std::ranges::any_of(layout->findChildren<QLayout*>(), holds);
}

}  // namespace

TQorCustomLabel::TQorCustomLabel(QWidget* parent) : QWidget(parent) {
  detail::RegisterAccessibleLabels();
}
TQorCustomLabel::~TQorCustomLabel() = default;

void TQorCustomLabel::setCaption(const QString& caption) {
  if (caption == settings_.caption) return;
  settings_.caption = caption;
  TextChanged();
}

void TQorCustomLabel::setShowAccelChar(bool show) {
  if (show == settings_.show_accel_char) return;
  settings_.show_accel_char = show;
  TextChanged();
}

void TQorCustomLabel::setWordWrap(bool wrap) {
  if (wrap == settings_.word_wrap) return;
  settings_.word_wrap = wrap;
  QSizePolicy policy = sizePolicy();
  policy.setHeightForWidth(wrap);
  setSizePolicy(policy);
  TextSizeChanged();
}

QWidget* TQorCustomLabel::FocusControl() const {
  if (focus_control_name_.isEmpty()) return focus_control_;
  return detail::FindByName<QWidget>(*this, focus_control_name_);
}

QString TQorCustomLabel::FocusControlName() const {
  return focus_control_ ? focus_control_->objectName() : focus_control_name_;
}

void TQorCustomLabel::setFocusControl(QWidget* control) {
  focus_control_ = control;
  focus_control_name_.clear();
  GrabAccelerator();
}

void TQorCustomLabel::setFocusControl(const QString& object_name) {
  focus_control_.clear();
  focus_control_name_ = object_name;
  GrabAccelerator();
}

QString TQorCustomLabel::AccessibleText() const {
  QString text = DisplayText();
  if (!ShowAccelChar()) return text;
  // Keep the character after a mark, even another ampersand.
  for (qsizetype i = 0; (i = text.indexOf(u'&', i)) >= 0; ++i) text.remove(i, 1);
  return text;
}

QSize TQorCustomLabel::sizeHint() const {
  return SizeInWidth(WordWrap() ? kWrappedCharacters * fontMetrics().averageCharWidth()
                                : QWIDGETSIZE_MAX);
}

QSize TQorCustomLabel::minimumSizeHint() const {
  if (!WordWrap()) return sizeHint();
  return {SizeInWidth(0).width(), SizeInWidth(QWIDGETSIZE_MAX).height()};
}

int TQorCustomLabel::heightForWidth(int width) const {
  return WordWrap() ? SizeInWidth(width).height() : -1;
}

void TQorCustomLabel::DoDrawLabel(QPainter& painter, QRect& rectangle, int flags) const {
  const QString text = TextFor(Caption(), flags);
  const int text_flags = AddAccelerator(flags & ~kMeasureOnly) | Qt::TextDontClip;
  if ((flags & kMeasureOnly) != 0) {
    rectangle.setSize(fontMetrics().boundingRect(rectangle, text_flags, text).size());
    return;
  }
  painter.setFont(font());
  for (const auto& [offset, color] : TextLayers()) {
    painter.setPen(color);
    painter.drawText(rectangle.translated(offset, offset), text_flags, text);
  }
}

int TQorCustomLabel::AddAccelerator(int flags) const {
  if (!ShowAccelChar()) return flags;
  const bool underline = style()->styleHint(QStyle::SH_UnderlineShortcut, nullptr, this) != 0;
  return flags | (underline ? Qt::TextShowMnemonic : Qt::TextHideMnemonic);
}

QString TQorCustomLabel::TextFor(const QString& text, int flags) const {
  const bool shows_nothing = text.isEmpty() || (ShowAccelChar() && text == u"&");
  return (flags & kMeasureOnly) != 0 && shows_nothing ? QStringLiteral(" ") : text;
}

QList<TQorCustomLabel::TextLayer> TQorCustomLabel::TextLayers() const {
  QList<TextLayer> layers;
  const QColor light = palette().color(QPalette::Light);
  const QColor shadow = palette().color(QPalette::Dark);
  if (EmbossedStyle() == esRaised) layers = {{1, shadow}, {0, light}};
  if (EmbossedStyle() == esLowered) layers = {{1, light}, {0, shadow}};
  layers.append({0, palette().color(foregroundRole())});
  return layers;
}

void TQorCustomLabel::TextSizeChanged() {
  updateGeometry();
  FitToText();
  update();
}

bool TQorCustomLabel::event(QEvent* event) {
  if (event->type() == QEvent::Shortcut &&
      static_cast<QShortcutEvent*>(event)->shortcutId() == shortcut_id_) {
    if (QWidget* const control = FocusControl()) control->setFocus(Qt::ShortcutFocusReason);
    return true;
  }
  const bool handled = QWidget::event(event);
  if (event->type() == QEvent::Polish || event->type() == QEvent::ContentsRectChange) FitToText();
  return handled;
}

void TQorCustomLabel::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) {
    TextSizeChanged();
  }
}

void TQorCustomLabel::paintEvent(QPaintEvent*) {
  const int margin = EmbossedMargin();
  const QRect area = contentsRect().adjusted(0, 0, -margin, -margin);
  QPainter painter(this);
  painter.setClipRect(contentsRect());
  QRect text = area;
  DoDrawLabel(painter, text, DrawFlags() | kMeasureOnly);
  const int slack = area.height() - text.height();
  text = area.translated(0, Layout() == llTop ? 0 : Layout() == llBottom ? slack : slack / 2);
  DoDrawLabel(painter, text, DrawFlags());
}

void TQorCustomLabel::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  if (WordWrap()) FitToText();
}

int TQorCustomLabel::DrawFlags() const {
  constexpr Qt::Alignment kAlignments[] = {Qt::AlignLeft, Qt::AlignRight, Qt::AlignHCenter};
  const auto alignment = QStyle::visualAlignment(layoutDirection(), kAlignments[Alignment()]);
  return static_cast<int>(alignment) | (WordWrap() ? Qt::TextWordWrap : 0);
}

int TQorCustomLabel::EmbossedMargin() const noexcept {
  return EmbossedStyle() == esNone ? 0 : 1;
}

QSize TQorCustomLabel::SizeInWidth(int width) const {
  const QMargins margins = contentsMargins();
  const QSize frame(margins.left() + margins.right() + EmbossedMargin(),
                    margins.top() + margins.bottom() + EmbossedMargin());
  QPainter none;
  QRect text(0, 0, std::max(width - frame.width(), 0), QWIDGETSIZE_MAX);
  DoDrawLabel(none, text, DrawFlags() | kMeasureOnly);
  return text.size() + frame;
}

void TQorCustomLabel::FitToText() {
  // Before, a form may still be setting properties.
  if (!AutoSize() || !testAttribute(Qt::WA_WState_Polished) || IsInLayout(this)) return;
  const QSize size = WordWrap() ? QSize(width(), heightForWidth(width())) : sizeHint();
  const int alignment = DrawFlags() & Qt::AlignHorizontal_Mask;
  setGeometry(QStyle::alignedRect(Qt::LeftToRight, Qt::Alignment(alignment) | Qt::AlignTop, size,
                                  geometry()));
}

void TQorCustomLabel::TextChanged() {
  GrabAccelerator();
  TextSizeChanged();
  QAccessibleEvent event(this, QAccessible::NameChanged);
  QAccessible::updateAccessibility(&event);
}

void TQorCustomLabel::GrabAccelerator() {
  if (shortcut_id_ != 0) releaseShortcut(shortcut_id_);
  shortcut_id_ = 0;
  const bool wanted = ShowAccelChar() && (focus_control_ || !focus_control_name_.isEmpty());
  if (wanted) shortcut_id_ = grabShortcut(QKeySequence::mnemonic(DisplayText()));
}

}  // namespace qorvex::inline QorvexBaseControls
