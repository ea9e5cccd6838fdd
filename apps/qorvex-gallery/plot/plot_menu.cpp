#include "apps/qorvex-gallery/plot/plot_menu.h"

#include <QFileDialog>
#include <QKeyEvent>
#include <QKeySequence>
#include <QMenu>
#include <QMessageBox>
#include <QPrintDialog>
#include <QPrinter>
#include <algorithm>
#include <exception>

#include "apps/qorvex-gallery/plot/plot_picture.h"
#include "apps/qorvex-gallery/plot/plot_view.h"

namespace qorvex::gallery {

namespace {

void AskAndSave(PlotView& plot) {
  QStringList filters;
  for (const PictureFormat& format : PictureFormats())
    filters.append(QStringLiteral("%1 (*.%2)").arg(format.name, format.suffix));
  QFileDialog dialog(&plot, PlotView::tr("Save the Picture"), {},
                     filters.join(QStringLiteral(";;")));
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setDefaultSuffix(PictureFormats().front().suffix);
  // The suffix follows the chosen format.
  QObject::connect(&dialog, &QFileDialog::filterSelected, &dialog, [&](const QString& filter) {
    dialog.setDefaultSuffix(
        PictureFormats()[static_cast<std::size_t>(filters.indexOf(filter))].suffix);
  });
  if (dialog.exec() != QDialog::Accepted) return;
  try {
    SavePicture(plot, dialog.selectedFiles().constFirst());
  } catch (const std::exception& error) {
    QMessageBox::warning(&plot, dialog.windowTitle(), QString::fromUtf8(error.what()));
  }
}

void AskAndPrint(PlotView& plot) {
  QPrinter printer(QPrinter::HighResolution);
  printer.setPageOrientation(QPageLayout::Landscape);
  QPrintDialog dialog(&printer, &plot);
  if (dialog.exec() == QDialog::Accepted) PrintPicture(plot, printer);
}

void Copy(PlotView& plot) {
  CopyPicture(plot);
}

struct Entry {
  const char* text;
  QKeySequence::StandardKey key;  // UnknownKey for Ctrl+E.
  void (*run)(PlotView& plot);

  [[nodiscard]] QKeySequence Keys() const {
    return key == QKeySequence::UnknownKey ? QKeySequence(Qt::CTRL | Qt::Key_E) : QKeySequence(key);
  }
};

constexpr Entry kEntries[] = {
    {QT_TRANSLATE_NOOP("qorvex::gallery::PlotView", "&Copy Picture"), QKeySequence::Copy, Copy},
    {QT_TRANSLATE_NOOP("qorvex::gallery::PlotView", "&Save Picture…"), QKeySequence::UnknownKey,
     AskAndSave},
    {QT_TRANSLATE_NOOP("qorvex::gallery::PlotView", "&Print Picture…"), QKeySequence::Print,
     AskAndPrint}};

const Entry* EntryOf(const QKeyEvent& key) {
  const auto entry = std::ranges::find_if(
      kEntries, [&key](const Entry& of) { return of.Keys()[0] == key.keyCombination(); });
  return entry == std::end(kEntries) ? nullptr : entry;
}

}  // namespace

void ShowPlotMenu(PlotView& plot, const QPoint& at) {
  auto* const menu = new QMenu(&plot);
  menu->setAttribute(Qt::WA_DeleteOnClose);
  const auto add = [&](const QString& text, const QKeySequence& keys, auto run) {
    menu->addAction(text + u'\t' + keys.toString(QKeySequence::NativeText), &plot, run);
  };
  for (const Entry& entry : kEntries)
    add(PlotView::tr(entry.text), entry.Keys(), [&plot, run = entry.run] { run(plot); });
  menu->addSeparator();
  const auto zoom = [&plot](double factor) {
    plot.Zoom(factor, factor, {plot.Shown().x.At(0.5), plot.Shown().y.At(0.5)});
  };
  constexpr double step = 1.5;
  add(PlotView::tr("Zoom &In"), Qt::Key_Plus, [zoom] { zoom(step); });
  add(PlotView::tr("Zoom &Out"), Qt::Key_Minus, [zoom] { zoom(1 / step); });
  add(PlotView::tr("Show &All"), Qt::Key_0, [&plot] { plot.ShowAll(); });
  menu->popup(at);
}

bool IsPlotMenuKey(const QKeyEvent& key) {
  return EntryOf(key) != nullptr;
}

bool HandlePlotMenuKey(PlotView& plot, const QKeyEvent& key) {
  const Entry* const entry = EntryOf(key);
  if (entry != nullptr) entry->run(plot);
  return entry != nullptr;
}

}  // namespace qorvex::gallery
