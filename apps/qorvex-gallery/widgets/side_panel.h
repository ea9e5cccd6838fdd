#pragma once

/// @file
/// SidePanel, what can be chosen on a page.

#include <QScrollArea>
#include <QString>

class QVBoxLayout;

namespace qorvex::gallery {

/// Titled groups below one another, as wide on every page, which scroll where the window is low.
class SidePanel : public QScrollArea {
  Q_OBJECT

 public:
  explicit SidePanel(QWidget* parent = nullptr);

  /// A new group below the others, whose layout takes its widgets.
  QVBoxLayout* AddGroup(const QString& title);
  /// After the last group.
  void Finish();

 private:
  QVBoxLayout* groups_;
};

}  // namespace qorvex::gallery
