#pragma once

/// @file
/// Page, what the window knows of its pages.

#include <QList>
#include <QString>
#include <QStringList>
#include <QVariantMap>
#include <QWidget>

namespace qorvex::gallery {

class PlotView;

/// The parts of a report, in their order: tables of texts and diagrams under headings.
struct PageReport {
  struct Part {
    QString heading;
    QList<QStringList> rows = {};
    const PlotView* plot = nullptr;
  };

  QString title;
  QList<Part> parts = {};
};

/// A page of the window. Its object name is the name of its picture and of its state. The tab key
/// goes through it in the order of its layouts, also when widgets are added.
class Page : public QWidget {
  Q_OBJECT

 public:
  using QWidget::QWidget;
  ~Page() override;

  /// @{
  /// What the user has chosen and typed on the page, for the next start of the program.
  [[nodiscard]] virtual QVariantMap State() const { return {}; }
  virtual void SetState(const QVariantMap& /*state*/) {}
  /// @}
  /// What a report shows of the page; without parts if there is nothing to report.
  [[nodiscard]] virtual PageReport Report() const { return {}; }

 protected:
  bool event(QEvent* event) override;

 private:
  void OrderStops();
};

}  // namespace qorvex::gallery
