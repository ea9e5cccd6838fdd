#pragma once

/// @file
/// SidePanel, the choices on a page.

#include <QScrollArea>
#include <QString>

class QVBoxLayout;

namespace qorvex::gallery {

/// Titled groups of widgets in a column of the same width on every page. It scrolls if the window
/// is too low.
class SidePanel : public QScrollArea {
  Q_OBJECT

 public:
  explicit SidePanel(QWidget* parent = nullptr);

  /// Adds a group below the others and returns its layout.
  QVBoxLayout* AddGroup(const QString& title);
  /// To be called after the last group.
  void Finish();

 private:
  QVBoxLayout* groups_;
};

}  // namespace qorvex::gallery
