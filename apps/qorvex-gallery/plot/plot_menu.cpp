#include "apps/qorvex-gallery/plot/plot_menu.h"

#include <QKeyEvent>
#include <QKeySequence>
#include <QMenu>
#include <algorithm>

#include "apps/qorvex-gallery/plot/plot_picture.h"
#include "apps/qorvex-gallery/plot/plot_view.h"
#include "apps/qorvex-gallery/widgets/output_dialogs.h"

namespace qorvex::gallery {

namespace {

void Save(PlotView& plot) {
  QList<FileKind> kinds;
  for (const PictureFormat& format : PictureFormats()) kinds.append({format.name, format.suffix});
  AskAndSave(&plot, PlotView::tr("Save the Picture"), kinds,
             [&plot](const QString& path) { SavePicture(plot, path); });
}

void Print(PlotView& plot) {
  AskAndPrint(&plot, QPageLayout::Landscape,
              [&plot](QPagedPaintDevice& printer) { PrintPicture(plot, printer); });
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
     Save},
    {QT_TRANSLATE_NOOP("qorvex::gallery::PlotView", "&Print Picture…"), QKeySequence::Print,
     Print}};

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
