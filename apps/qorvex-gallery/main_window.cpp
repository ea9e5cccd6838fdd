#include "apps/qorvex-gallery/main_window.h"

#include <QActionGroup>
#include <QCloseEvent>
#include <QDragEnterEvent>
#include <QKeySequence>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QMimeData>
#include <QTabWidget>
#include <QTimer>
#include <QUrl>
#include <chrono>

#include "apps/qorvex-gallery/pages/data_page.h"
#include "apps/qorvex-gallery/pages/distribution_page.h"
#include "apps/qorvex-gallery/pages/matrix_page.h"
#include "apps/qorvex-gallery/pages/random_page.h"
#include "apps/qorvex-gallery/pages/regression_page.h"
#include "apps/qorvex-gallery/pages/test_page.h"
#include "apps/qorvex-gallery/widgets/help_window.h"
#include "apps/qorvex-gallery/widgets/page_report_actions.h"
#include "apps/qorvex-gallery/widgets/recent_files.h"
#include "apps/qorvex-gallery/widgets/sheet_document.h"
#include "apps/qorvex-gallery/widgets/sheet_view.h"
#include "qorvex/base/version.h"

namespace qorvex::gallery {

namespace {

// The path of the dragged file; empty unless exactly one file is dragged.
QString DraggedFile(const QDropEvent& event) {
  const QList<QUrl> urls = event.mimeData()->urls();
  return urls.size() == 1 ? urls.front().toLocalFile() : QString();
}

}  // namespace

MainWindow::MainWindow(QWidget* parent)
    : QMainWindow(parent),
      pages_(new QTabWidget),
      data_(new DataPage(sheet_)),
      recent_(new RecentFiles(this)),
      appearances_(new QActionGroup(this)),
      keep_soon_(new QTimer(this)) {
  setAcceptDrops(true);
  pages_->setDocumentMode(true);
  pages_->setAccessibleName(tr("Pages"));
  AddPage(data_, "data", tr("Data"));
  AddPage(new MatrixPage, "matrix", tr("Matrix"));
  AddPage(new DistributionPage, "distribution", tr("Distribution"));
  AddPage(new RandomPage, "random", tr("Random"));
  AddPage(new RegressionPage(sheet_), "regression", tr("Regression"));
  auto* const tests = new TestPage(sheet_);
  AddPage(tests, "tests", tr("Tests"));
  // After all pages have taken note of a new sheet.
  connect(data_, &DataPage::ColumnShown, tests, &TestPage::SuggestColumn, Qt::QueuedConnection);
  setCentralWidget(pages_);
  MakeFileMenu(*menuBar()->addMenu(tr("&File")));
  MakeEditMenu(*menuBar()->addMenu(tr("&Edit")));
  MakeViewMenu(*menuBar()->addMenu(tr("&View")));
  MakeHelpMenu(*menuBar()->addMenu(tr("&Help")));
  connect(&data_->Document(), &SheetDocument::TitleChanged, this, &MainWindow::ShowTitle);
  connect(&sheet_, &Sheet::Changed, this, &MainWindow::ShowTitle);
  constexpr std::chrono::seconds delay(20);
  keep_soon_->setSingleShot(true);
  keep_soon_->setInterval(delay);
  connect(&sheet_, &Sheet::Changed, this, [this] {
    if (!keep_soon_->isActive()) keep_soon_->start();
  });
  connect(keep_soon_, &QTimer::timeout, this, [this] {
    if (KeepSession) static_cast<void>(KeepSession());
  });
  ShowTitle();
  resize(1100, 720);
}

MainWindow::~MainWindow() {
  // The pages refer to the sheet.
  sheet_.disconnect(this);
  delete takeCentralWidget();
}

void MainWindow::AddPage(Page* page, const char* name, const QString& title) {
  page->setObjectName(QLatin1String(name));
  pages_->addTab(page, title);
}

void MainWindow::MakeFileMenu(QMenu& menu) {
  SheetDocument* const document = &data_->Document();
  const auto show_data = [this] { pages_->setCurrentWidget(data_); };
  menu.addAction(tr("&New"), QKeySequence::New, document, &SheetDocument::NewSheet);
  menu.addAction(tr("&Open…"), QKeySequence::Open, this, [=] {
    show_data();
    document->ChooseFile();
  });
  menu.addMenu(recent_);
  connect(recent_, &RecentFiles::Chosen, this, &MainWindow::Open);
  connect(document, &SheetDocument::FileUsed, recent_, &RecentFiles::Add);
  menu.addAction(tr("&Format of the File…"), document, &SheetDocument::ChooseFormat);
  menu.addSeparator();
  menu.addAction(tr("&Save Data"), QKeySequence::Save, document, &SheetDocument::Save);
  menu.addAction(tr("Save Data &As…"), QKeySequence::SaveAs, document, &SheetDocument::SaveAs);
  menu.addSeparator();
  AddReportActions(menu, [this] { return static_cast<Page*>(pages_->currentWidget()); });
  menu.addSeparator();
  menu.addAction(tr("&Quit"), QKeySequence::Quit, this, &QWidget::close);
}

// The commands on the sheet. Its editor has the keys itself.
void MainWindow::MakeEditMenu(QMenu& menu) {
  SheetView* const view = &data_->View();
  menu.addAction(tr("&Undo"), QKeySequence::Undo, view, &SheetView::UndoLast);
  menu.addAction(tr("&Redo"), QKeySequence::Redo, &view->Editor(), &CellPanel::Redo);
  menu.addSeparator();
  menu.addAction(tr("Insert Ro&ws"), view, &SheetView::InsertRowsHere);
  menu.addAction(tr("Insert &Columns"), view, &SheetView::InsertColumnsHere);
  menu.addAction(tr("&Delete Rows"), view, &SheetView::DeleteRowsHere);
  menu.addAction(tr("De&lete Columns"), view, &SheetView::DeleteColumnsHere);
  menu.addSeparator();
  view->AddCommands(menu);
  const auto enable = [this, &menu] {
    const bool shows_data = pages_->currentWidget() == data_;
    for (QAction* const action : menu.actions()) action->setEnabled(shows_data);
  };
  connect(pages_, &QTabWidget::currentChanged, &menu, enable);
}

void MainWindow::MakeViewMenu(QMenu& menu) {
  const auto add = [&](const QString& text, Appearance appearance) {
    QAction* const action = menu.addAction(text, this, [appearance] { SetAppearance(appearance); });
    action->setCheckable(true);
    action->setData(static_cast<int>(appearance));
    action->setActionGroup(appearances_);
  };
  add(tr("&System Colors"), Appearance::kSystem);
  add(tr("&Light"), Appearance::kLight);
  add(tr("&Dark"), Appearance::kDark);
  appearances_->actions().constFirst()->setChecked(true);
}

Appearance MainWindow::ChosenAppearance() const {
  return static_cast<Appearance>(appearances_->checkedAction()->data().toInt());
}

void MainWindow::ChooseAppearance(Appearance appearance) {
  for (QAction* const action : appearances_->actions())
    if (action->data().toInt() == static_cast<int>(appearance)) action->trigger();
}

void MainWindow::MakeHelpMenu(QMenu& menu) {
  menu.addAction(tr("&This Page"), QKeySequence::HelpContents, this, &MainWindow::ShowHelp);
  menu.addSeparator();
  menu.addAction(tr("&About"), this, &MainWindow::ShowAbout);
}

// A star marks unsaved changes.
void MainWindow::ShowTitle() {
  setWindowTitle(tr("%1[*] – Qorvex Gallery").arg(data_->Document().Title()));
  setWindowModified(sheet_.IsChanged());
}

void MainWindow::closeEvent(QCloseEvent* event) {
  data_->View().CommitText();
  event->setAccepted((KeepSession && KeepSession()) || data_->Document().MayGo());
}

// The sections of the document have the names of the pages.
void MainWindow::ShowHelp() {
  if (help_ == nullptr) help_ = new HelpWindow(this);
  help_->Open(QStringLiteral("gallery.md"), pages_->currentWidget()->objectName());
}

void MainWindow::ShowAbout() {
  QMessageBox::about(
      this, tr("About Qorvex Gallery"),
      tr("<h3>Qorvex %1</h3><p>Vectors, matrices, statistics and Qt components in 80-bit "
         "arithmetic.</p><p>Copyright © 2026 The Qorvex developers, under the MIT licence.</p>"
         "<p>Uses Qt %2 under the LGPL, version 3.</p>")
          .arg(QStringLiteral(QORVEX_VERSION), QString::fromLatin1(qVersion())));
}

const QString& MainWindow::ReadingError() const {
  return data_->Document().ReadingError();
}

void MainWindow::Open(const QString& path) {
  pages_->setCurrentWidget(data_);
  data_->Document().Open(path);
}

void MainWindow::dragEnterEvent(QDragEnterEvent* event) {
  if (!DraggedFile(*event).isEmpty()) event->acceptProposedAction();
}

void MainWindow::dropEvent(QDropEvent* event) {
  event->acceptProposedAction();
  // The program that the file comes from waits until this returns, and Open may ask a question.
  QMetaObject::invokeMethod(
      this, [this, file = DraggedFile(*event)] { Open(file); }, Qt::QueuedConnection);
}

}  // namespace qorvex::gallery
