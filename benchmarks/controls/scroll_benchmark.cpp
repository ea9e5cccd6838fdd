// One step down a long column with twenty visible rows, compared with Qt's table view over a model
// of the same vector. Windows are offscreen.

#include <QAbstractTableModel>
#include <QApplication>
#include <QHeaderView>
#include <QScrollBar>
#include <QTableView>
#include <memory>
#include <string>

#include "controls/application.h"
#include "qorvex/base/text.h"
#include "qorvex/controls/QorvexVectorEdit.h"
#include "support/compare.h"

namespace qorvex::benchmarks {
namespace {

constexpr int kVisible = 20;

class VectorModel : public QAbstractTableModel {
 public:
  explicit VectorModel(TQorFloatVector vector) : vector_(std::move(vector)) {}
  int rowCount(const QModelIndex&) const override { return static_cast<int>(vector_.size()); }
  int columnCount(const QModelIndex&) const override { return 1; }
  QVariant data(const QModelIndex& index, int role) const override {
    if (role != Qt::DisplayRole) return {};
    const Extended value = vector_[static_cast<std::size_t>(index.row())];
    return QString::fromStdString(Float2EStr(value, 4));
  }

 private:
  TQorFloatVector vector_;
};

// A shown widget that scrolls to a row.
class Editor {
 public:
  explicit Editor(std::size_t n) {
    widget_.setNoOfEdits(kVisible);
    widget_.setVector(Sample<Extended>(n, 1));
    widget_.show();
  }
  void ScrollTo(std::size_t row) { widget_.setDisplayTopRow(static_cast<quint32>(row)); }
  void Paint() { widget_.repaint(); }

 protected:
  TQorVectorEdit widget_;
};

// All rows are selected, and a command can be undone.
class SelectedEditor : public Editor {
 public:
  explicit SelectedEditor(std::size_t n) : Editor(n) {
    widget_.LinearTransform(1, 0);
    widget_.SelectAll();
  }
};

class View {
 public:
  explicit View(std::size_t n) : model_(Sample<Extended>(n, 1)) {
    view_.horizontalHeader()->hide();
    view_.verticalHeader()->hide();
    view_.setModel(&model_);
    view_.resize(110, kVisible * view_.rowHeight(0));
    view_.show();
  }
  void ScrollTo(std::size_t row) { view_.verticalScrollBar()->setValue(static_cast<int>(row)); }
  void Paint() { view_.viewport()->repaint(); }

 protected:
  VectorModel model_;
  QTableView view_;
};

class SelectedView : public View {
 public:
  explicit SelectedView(std::size_t n) : View(n) { view_.selectAll(); }
};

template <class Widget>
void Register(const std::string& what, const std::string& who, std::size_t n, bool paint) {
  const std::string name = what + "/Float/" + who + "/" + std::to_string(n);
  benchmark::RegisterBenchmark(name.c_str(), [n, paint](benchmark::State& state) {
    StartApplication();
    Widget widget(n);
    QApplication::processEvents();
    std::size_t row = 0;
    for (auto _ : state) {
      row = (row + 1) % (n - kVisible);
      widget.ScrollTo(row);
      if (paint) widget.Paint();
    }
    state.SetItemsProcessed(state.iterations());
  });
}

const bool registered = [] {
  for (const std::size_t n : {30U, 1'000U, 10'000'000U}) {
    Register<Editor>("scroll step", "ours", n, false);
    Register<Editor>("scroll step and paint", "ours", n, true);
    Register<View>("scroll step and paint", "QTableView", n, true);
    Register<SelectedEditor>("scroll step and paint, selected", "ours", n, true);
    Register<SelectedView>("scroll step and paint, selected", "QTableView", n, true);
  }
  return true;
}();

}  // namespace
}  // namespace qorvex::benchmarks
