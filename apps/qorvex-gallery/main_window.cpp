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
#include <QUrl>

#include "apps/qorvex-gallery/appearance.h"
#include "apps/qorvex-gallery/model/sheet.h"
#include "apps/qorvex-gallery/pages/data_page.h"
#include "apps/qorvex-gallery/pages/distribution_page.h"
#include "apps/qorvex-gallery/pages/matrix_page.h"
#include "apps/qorvex-gallery/pages/random_page.h"
#include "apps/qorvex-gallery/pages/regression_page.h"
#include "apps/qorvex-gallery/widgets/help_window.h"
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
    : QMainWindow(parent), sheet_(new Sheet(this)), pages_(new QTabWidget), data_(new DataPage) {
  setAcceptDrops(true);
  pages_->setDocumentMode(true);
  pages_->setAccessibleName(tr("Pages"));
  AddPage(data_, "data", tr("Data"));
  AddPage(new MatrixPage, "matrix", tr("Matrix"));
  AddPage(new DistributionPage, "distribution", tr("Distribution"));
  AddPage(new RandomPage, "random", tr("Random"));
  AddPage(new RegressionPage(*sheet_), "regression", tr("Regression"));
  setCentralWidget(pages_);
  MakeMenus();
  connect(data_, &DataPage::TitleChanged, this, &MainWindow::ShowTitle);
  ShowTitle();
  resize(1100, 720);
}

MainWindow::~MainWindow() = default;

void MainWindow::AddPage(Page* page, const char* name, const QString& title) {
  page->setObjectName(QLatin1String(name));
  pages_->addTab(page, title);
}

void MainWindow::MakeMenus() {
  QMenu* const file = menuBar()->addMenu(tr("&File"));
  QAction* const open = file->addAction(tr("&Open…"), this, [this] {
    pages_->setCurrentWidget(data_);
    data_->ChooseFile();
  });
  open->setShortcut(QKeySequence::Open);
  QAction* const save = file->addAction(tr("Save Data &As…"), data_, &DataPage::SaveAs);
  save->setShortcut(QKeySequence::SaveAs);
  file->addSeparator();
  QAction* const quit = file->addAction(tr("&Quit"), this, &QWidget::close);
  quit->setShortcut(QKeySequence::Quit);

  QMenu* const view = menuBar()->addMenu(tr("&View"));
  auto* const appearances = new QActionGroup(this);
  const auto add_appearance = [&](const QString& text, Appearance appearance) {
    QAction* const action =
        view->addAction(text, this, [appearance] { SetAppearance(appearance); });
    action->setCheckable(true);
    action->setActionGroup(appearances);
    return action;
  };
  add_appearance(tr("&System Colors"), Appearance::kSystem)->setChecked(true);
  add_appearance(tr("&Light"), Appearance::kLight);
  add_appearance(tr("&Dark"), Appearance::kDark);

  QMenu* const help = menuBar()->addMenu(tr("&Help"));
  QAction* const this_page = help->addAction(tr("&This Page"), this, &MainWindow::ShowHelp);
  this_page->setShortcut(QKeySequence::HelpContents);
  help->addSeparator();
  help->addAction(tr("&About"), this, &MainWindow::ShowAbout);
}

// A star marks unsaved changes.
void MainWindow::ShowTitle() {
  setWindowTitle(tr("%1[*] – Qorvex Gallery").arg(data_->Title()));
  setWindowModified(data_->IsChanged());
}

void MainWindow::closeEvent(QCloseEvent* event) {
  event->setAccepted(data_->MayGo());
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
  return data_->ReadingError();
}

void MainWindow::Open(const QString& path) {
  pages_->setCurrentWidget(data_);
  data_->Open(path);
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
