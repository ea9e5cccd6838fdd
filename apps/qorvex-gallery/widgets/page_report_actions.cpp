#include "apps/qorvex-gallery/widgets/page_report_actions.h"

#include <QAction>
#include <QFileDialog>
#include <QKeySequence>
#include <QMenu>
#include <QMessageBox>
#include <QPrintDialog>
#include <QPrinter>
#include <exception>
#include <utility>

#include "apps/qorvex-gallery/widgets/page.h"
#include "apps/qorvex-gallery/widgets/page_document.h"

namespace qorvex::gallery {

namespace {

void AskAndSave(const Page& page, QWidget* window) {
  const QStringList filters = {Page::tr("HTML (*.html)"), Page::tr("PDF (*.pdf)")};
  QFileDialog dialog(window, Page::tr("Save the Report"), {}, filters.join(QStringLiteral(";;")));
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setDefaultSuffix(QStringLiteral("html"));
  QObject::connect(&dialog, &QFileDialog::filterSelected, &dialog, [&](const QString& filter) {
    dialog.setDefaultSuffix(filter == filters.constFirst() ? QStringLiteral("html")
                                                           : QStringLiteral("pdf"));
  });
  if (dialog.exec() != QDialog::Accepted) return;
  try {
    SaveReport(page.Report(), dialog.selectedFiles().constFirst());
  } catch (const std::exception& error) {
    QMessageBox::warning(window, dialog.windowTitle(), QString::fromUtf8(error.what()));
  }
}

void AskAndPrint(const Page& page, QWidget* window) {
  QPrinter printer(QPrinter::HighResolution);
  QPrintDialog dialog(&printer, window);
  if (dialog.exec() == QDialog::Accepted) PrintReport(page.Report(), printer);
}

}  // namespace

void AddReportActions(QMenu& menu, std::function<const Page*()> current_page) {
  QAction* const save = menu.addAction(Page::tr("Save Repor&t…"));
  QAction* const print = menu.addAction(Page::tr("&Print Report…"));
  print->setShortcut(QKeySequence::Print);
  // Runs an entry, unless its key was pressed on a page without a report.
  const auto run = [&menu, current_page](auto ask) {
    return [&menu, current_page, ask] {
      const Page* const page = current_page();
      if (page != nullptr && !page->Report().parts.empty()) ask(*page, menu.parentWidget());
    };
  };
  QObject::connect(save, &QAction::triggered, &menu, run(AskAndSave));
  QObject::connect(print, &QAction::triggered, &menu, run(AskAndPrint));
  const auto enable = [save, print, current_page = std::move(current_page)] {
    const Page* const page = current_page();
    const bool has_report = page != nullptr && !page->Report().parts.empty();
    save->setEnabled(has_report);
    print->setEnabled(has_report);
  };
  QObject::connect(&menu, &QMenu::aboutToShow, &menu, enable);
  // Otherwise the key of an entry that was disabled would do nothing on another page.
  QObject::connect(&menu, &QMenu::aboutToHide, &menu, [save, print] {
    save->setEnabled(true);
    print->setEnabled(true);
  });
}

}  // namespace qorvex::gallery
