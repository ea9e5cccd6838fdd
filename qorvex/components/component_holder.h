#pragma once

/// @file
/// ComponentHolder, the base of widgets that put a component without a picture on a form.

#include <QIcon>
#include <QString>
#include <QWidget>

#include "qorvex/base/export.h"
#include "qorvex/base_controls/unit.h"

QORVEX_WIDGET_UNIT(QorvexControls) {

/// A widget around a component that is none, since designers and loaders of forms know nothing but
/// widgets. It publishes the component's properties and is hidden: it takes no room in a program's
/// window.
class QORVEX_EXPORT ComponentHolder : public QWidget {
  Q_OBJECT

 public:
  ~ComponentHolder() override;

  /// Shows the holder, as this icon with the name of its class, on a form that is being designed.
  void ShowAtDesignTime(const QIcon& icon);

  /// @{
  /// The size of the icon and the name.
  [[nodiscard]] QSize sizeHint() const override;
  [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }
  /// @}

 protected:
  /// A hidden widget.
  explicit ComponentHolder(QWidget* parent);

  /// Gives the component the holder's object name for as long as both are there, so that it can be
  /// found by that name and its own class.
  void ShareName(QObject* component);
  /// Warns of a property that the component cannot take, and shows the message on the form; an
  /// empty one takes it away.
  void SetProblem(const QString& message);

  /// Draws the icon and the name.
  void paintEvent(QPaintEvent* event) override;

 private:
  [[nodiscard]] QString Text() const;
  [[nodiscard]] int IconExtent() const;

  QIcon icon_;
  QString problem_;
};

}  // QORVEX_WIDGET_UNIT(QorvexControls)
