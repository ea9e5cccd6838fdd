#pragma once

/// @file
/// DataPage, which shows and edits the sheet and describes its columns.

#include "apps/qorvex-gallery/widgets/page.h"

class QLabel;
class QLayout;

namespace qorvex::gallery {

class ColumnBox;
class ColumnReport;
class GroupReport;
class MessageBar;
class Sheet;
class SheetDocument;
class SheetView;
class TableLoader;

/// The columns of the sheet in an editor; the statistics of the chosen column with a diagram, and
/// on request those of its groups. Every edit updates all of these. Missing values are left out.
/// The page starts with an empty sheet.
///
/// While a large file is read in the background, the page keeps showing the sheet as it was but
/// does not let it be edited.
class DataPage : public Page {
  Q_OBJECT

 public:
  /// The sheet must outlive the page.
  explicit DataPage(Sheet& sheet, QWidget* parent = nullptr);
  ~DataPage() override;

  /// @{
  /// The file of the sheet, and its editor.
  [[nodiscard]] SheetDocument& Document() const { return *document_; }
  [[nodiscard]] SheetView& View() const { return *view_; }
  /// @}
  /// Whether a file is being read in the background.
  [[nodiscard]] bool IsReading() const;
  /// @{
  /// The chosen columns, and what the report shows of them.
  [[nodiscard]] QVariantMap State() const override;
  void SetState(const QVariantMap& state) override;
  /// @}
  [[nodiscard]] PageReport Report() const override;

 Q_SIGNALS:
  /// A reading in the background has ended: its table is shown, or it was refused or stopped.
  void ReadingEnded();
  /// Another column is shown, -1 for none.
  void ColumnShown(int column);

 private:
  QLayout* MakeHeader();
  QLayout* MakeStatistics();
  void ConnectParts();
  void ShowColumn(const QString& name);
  void Say(const QString& message);
  void Refresh();
  [[nodiscard]] QString WarningOfTexts() const;

  Sheet& sheet_;
  // A message that the next refresh does not clear.
  QString note_;

  QLabel* file_;
  SheetView* view_;
  ColumnBox* columns_;
  ColumnBox* groups_;
  ColumnReport* report_;
  GroupReport* group_report_;
  TableLoader* loader_;
  MessageBar* message_;
  SheetDocument* document_;
};

}  // namespace qorvex::gallery
