#pragma once

/// @file
/// ComponentHolder, the base of widgets that put a non-visual component on a form.

#include <QIcon>
#include <QString>
#include <QWidget>

#include "qorvex/base/export.h"
#include "qorvex/base_controls/unit.h"

QORVEX_WIDGET_UNIT(QorvexControls) {

/// Wraps a non-visual component in a widget, because Qt Designer can only place widgets on a form.
/// It publishes the component's properties. In a program it is hidden and takes no space.
class QORVEX_EXPORT ComponentHolder : public QWidget {
  Q_OBJECT

 public:
  ~ComponentHolder() override;

  /// Shows the holder, as this icon and its class name, on a form that is being designed.
  void ShowAtDesignTime(const QIcon& icon);

  /// @{
  /// Room for the icon and the text.
  [[nodiscard]] QSize sizeHint() const override;
  [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }
  /// @}

 protected:
  /// A hidden widget.
  explicit ComponentHolder(QWidget* parent);

  /// Keeps the component's object name equal to the holder's, so that findChild finds it by that
  /// name and its own class.
  void ShareName(QObject* component);
  /// Reports a property that the component rejects: the message goes to Qt's log and is painted in
  /// place of the class name. An empty message clears it.
  void SetProblem(const QString& message);

  /// Draws the icon and the class name or the message.
  void paintEvent(QPaintEvent* event) override;

 private:
  [[nodiscard]] QString Text() const;
  [[nodiscard]] int IconExtent() const;

  QIcon icon_;
  QString problem_;
};

}  // QORVEX_WIDGET_UNIT(QorvexControls)
