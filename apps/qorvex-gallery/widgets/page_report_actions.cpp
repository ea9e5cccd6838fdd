#include "apps/qorvex-gallery/widgets/page_report_actions.h"

#include <QAction>
#include <QKeySequence>
#include <QMenu>
#include <utility>

#include "apps/qorvex-gallery/widgets/output_dialogs.h"
#include "apps/qorvex-gallery/widgets/page.h"
#include "apps/qorvex-gallery/widgets/page_document.h"

namespace qorvex::gallery {

namespace {

void Save(const Page& page, QWidget* window) {
  AskAndSave(window, Page::tr("Save the Report"),
             {{QStringLiteral("HTML"), QStringLiteral("html")},
              {QStringLiteral("PDF"), QStringLiteral("pdf")}},
             [&page](const QString& path) { SaveReport(page.Report(), path); });
}

void Print(const Page& page, QWidget* window) {
  AskAndPrint(window, QPageLayout::Portrait,
              [&page](QPagedPaintDevice& printer) { PrintReport(page.Report(), printer); });
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
  QObject::connect(save, &QAction::triggered, &menu, run(Save));
  QObject::connect(print, &QAction::triggered, &menu, run(Print));
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
