#pragma once

/// @file
/// MainWindow, the window of the program.

#include <QMainWindow>
#include <QString>

class QTabWidget;

namespace qorvex::gallery {

class DataPage;
class HelpWindow;
class Page;
class Sheet;

/// The pages of the program in tabs. Files that are opened or dropped are shown on the page of
/// data.
class MainWindow : public QMainWindow {
  Q_OBJECT

 public:
  explicit MainWindow(QWidget* parent = nullptr);
  ~MainWindow() override;

  /// Opens a file on the page of data.
  void Open(const QString& path);
  /// Why the last file could not be read; empty if it could.
  [[nodiscard]] const QString& ReadingError() const;

  /// The pages. The object name of a page is the name of its picture.
  [[nodiscard]] QTabWidget* Pages() const { return pages_; }

 protected:
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dropEvent(QDropEvent* event) override;
  void closeEvent(QCloseEvent* event) override;

 private:
  void AddPage(Page* page, const char* name, const QString& title);
  void MakeMenus();
  void ShowTitle();
  void ShowHelp();
  void ShowAbout();

  Sheet* sheet_;
  QTabWidget* pages_;
  DataPage* data_;
  // Made when it is needed first.
  HelpWindow* help_ = nullptr;
};

}  // namespace qorvex::gallery
