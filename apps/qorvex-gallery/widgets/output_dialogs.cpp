#include "apps/qorvex-gallery/widgets/output_dialogs.h"

#include <QCoreApplication>
#include <QFileDialog>
#include <QMessageBox>
#include <QPrintDialog>
#include <QPrinter>
#include <exception>

namespace qorvex::gallery {

void AskAndSave(QWidget* parent, const QString& title, const QList<FileKind>& kinds,
                const std::function<void(const QString& path)>& save) {
  QStringList filters;
  for (const FileKind& kind : kinds)
    filters.append(QStringLiteral("%1 (*.%2)").arg(kind.name, kind.suffix));
  QFileDialog dialog(parent, title, {}, filters.join(QStringLiteral(";;")));
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setDefaultSuffix(kinds.constFirst().suffix);
  QObject::connect(&dialog, &QFileDialog::filterSelected, &dialog, [&](const QString& filter) {
    dialog.setDefaultSuffix(kinds[filters.indexOf(filter)].suffix);
  });
  if (dialog.exec() != QDialog::Accepted) return;
  try {
    save(dialog.selectedFiles().constFirst());
  } catch (const std::exception& error) {
    QMessageBox::warning(parent, title, QString::fromUtf8(error.what()));
  }
}

void AskAndPrint(QWidget* parent, QPageLayout::Orientation orientation,
                 const std::function<void(QPagedPaintDevice& printer)>& print) {
  QPrinter printer(QPrinter::HighResolution);
  printer.setPageOrientation(orientation);
  QPrintDialog dialog(&printer, parent);
  if (dialog.exec() != QDialog::Accepted) return;
  print(printer);
  if (printer.printerState() != QPrinter::Error) return;
  QMessageBox::warning(
      parent, dialog.windowTitle(),
      QCoreApplication::translate("qorvex::gallery::PlotView", "Printing has failed: %1")
          .arg(printer.outputFileName().isEmpty() ? printer.printerName()
                                                  : printer.outputFileName()));
}

}  // namespace qorvex::gallery
