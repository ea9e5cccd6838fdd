#pragma once

/// @file
/// MainWindow, the window of the program.

#include <QMainWindow>
#include <QString>
#include <functional>

#include "apps/qorvex-gallery/appearance.h"
#include "apps/qorvex-gallery/model/sheet.h"

class QActionGroup;
class QMenu;
class QTabWidget;
class QTimer;

namespace qorvex::gallery {

class DataPage;
class HelpWindow;
class Page;
class RecentFiles;

/// The pages of the program in tabs, with the table that they share. Files that are opened or
/// dropped are shown on the page of data.
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
  [[nodiscard]] DataPage& Data() const { return *data_; }
  [[nodiscard]] const Sheet& Table() const { return sheet_; }
  [[nodiscard]] RecentFiles& Recent() const { return *recent_; }
  /// @{
  /// The colours that are chosen in the View menu.
  [[nodiscard]] Appearance ChosenAppearance() const;
  void ChooseAppearance(Appearance appearance);
  /// @}

  /// Keeps what the user has done for the next start, unsaved changes included; called when the
  /// window closes, and some seconds after a change of the sheet. If there is no such function, or
  /// it returns false, closing the window asks about unsaved changes.
  std::function<bool()> KeepSession;

 protected:
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dropEvent(QDropEvent* event) override;
  void closeEvent(QCloseEvent* event) override;

 private:
  void AddPage(Page* page, const char* name, const QString& title);
  void MakeFileMenu(QMenu& menu);
  void MakeEditMenu(QMenu& menu);
  void MakeViewMenu(QMenu& menu);
  void MakeHelpMenu(QMenu& menu);
  void ShowTitle();
  void ShowHelp();
  void ShowAbout();

  Sheet sheet_;
  QTabWidget* pages_;
  DataPage* data_;
  RecentFiles* recent_;
  QActionGroup* appearances_;
  QTimer* keep_soon_;
  // Made when it is needed first.
  HelpWindow* help_ = nullptr;
};

}  // namespace qorvex::gallery
