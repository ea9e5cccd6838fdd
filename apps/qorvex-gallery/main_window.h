#pragma once

/// @file
/// MainWindow, the pages of the program.

#include <QMainWindow>
#include <QString>

class QTabWidget;

namespace qorvex::gallery {

class DataPage;

/// The pages behind tabs. A file that is opened or dropped goes to the page of data.
class MainWindow : public QMainWindow {
  Q_OBJECT

 public:
  explicit MainWindow(QWidget* parent = nullptr);
  ~MainWindow() override;

  /// Shows the file on the page of data.
  void Open(const QString& path);

  /// The pages, each with the name of its picture as objectName.
  [[nodiscard]] QTabWidget* Pages() const { return pages_; }

 protected:
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dropEvent(QDropEvent* event) override;
  void closeEvent(QCloseEvent* event) override;

 private:
  void AddPage(QWidget* page, const char* name, const QString& title);
  void MakeMenus();
  void ShowTitle();
  void ShowAbout();

  QTabWidget* pages_;
  DataPage* data_;
};

}  // namespace qorvex::gallery
