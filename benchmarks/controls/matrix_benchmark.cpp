// Editors of matrices. A step through a large matrix with 20 x 20 visible cells, compared with as
// many bare line edits and with Qt's table view over a model of the same matrix; a grid of cells,
// compared with one of bare line edits and with a table view; and commands, compared with the
// routines that they call. Windows are offscreen.

#include <QAbstractTableModel>
#include <QApplication>
#include <QHeaderView>
#include <QLineEdit>
#include <QScrollBar>
#include <QTableView>
#include <functional>
#include <string>
#include <utility>

#include "controls/application.h"
#include "qorvex/base/text.h"
#include "qorvex/controls/QorvexMatrixEdit.h"
#include "qorvex/matrix/QorvexMatrix.h"
#include "support/compare_matrices.h"

namespace qorvex::benchmarks {
namespace {

constexpr int kVisible = 20;

class MatrixModel : public QAbstractTableModel {
 public:
  explicit MatrixModel(TQorFloatMatrix matrix, QObject* parent = nullptr)
      : QAbstractTableModel(parent), matrix_(std::move(matrix)) {}
  int rowCount(const QModelIndex&) const override { return static_cast<int>(matrix_.size()); }
  int columnCount(const QModelIndex&) const override { return static_cast<int>(matrix_.size()); }
  QVariant data(const QModelIndex& index, int role) const override {
    if (role != Qt::DisplayRole) return {};
    const auto row = static_cast<std::size_t>(index.row());
    const auto col = static_cast<std::size_t>(index.column());
    return QString::fromStdString(Float2EStr(std::as_const(matrix_)[row][col], 4));
  }

 private:
  TQorFloatMatrix matrix_;
};

// A shown widget that scrolls down to a row or right to a column.
class Editor {
 public:
  explicit Editor(std::size_t order) {
    widget_.setNoOfRowEdits(kVisible);
    widget_.setNoOfColEdits(kVisible);
    widget_.setMatrix(OurMatrix<Extended>(order));
    widget_.show();
  }
  void ScrollDown(std::size_t row) { widget_.setDisplayTopRow(static_cast<quint32>(row)); }
  void ScrollRight(std::size_t col) { widget_.setDisplayLeftCol(static_cast<quint32>(col)); }
  void Paint() { widget_.repaint(); }

 protected:
  TQorMatrixEdit widget_;
};

// All elements are selected, and a command can be undone.
class SelectedEditor : public Editor {
 public:
  explicit SelectedEditor(std::size_t order) : Editor(order) {
    widget_.Transpose();
    widget_.SelectAll();
  }
};

// The line edits alone, with the same texts.
class Lines {
 public:
  explicit Lines(std::size_t order) : matrix_(OurMatrix<Extended>(order)) {
    const QSize size(81, 21);
    for (int cell = 0; cell < kVisible * kVisible; ++cell) {
      auto* const line = new QLineEdit(&window_);
      line->setGeometry(
          QRect({cell % kVisible * size.width(), cell / kVisible * size.height()}, size));
      line->setAlignment(Qt::AlignRight);
      lines_.append(line);
    }
    window_.resize(kVisible * size);
    window_.show();
  }
  void ScrollDown(std::size_t row) {
    for (qsizetype cell = 0; cell < lines_.size(); ++cell) {
      const auto r = row + static_cast<std::size_t>(cell / kVisible);
      const Extended value = std::as_const(matrix_)[r][static_cast<std::size_t>(cell % kVisible)];
      lines_[cell]->setText(QString::fromStdString(Float2EStr(value, 4)));
    }
  }
  void Paint() { window_.repaint(); }

 private:
  TQorFloatMatrix matrix_;
  QWidget window_;
  QList<QLineEdit*> lines_;
};

class View {
 public:
  explicit View(std::size_t order) : model_(OurMatrix<Extended>(order)) {
    view_.horizontalHeader()->hide();
    view_.verticalHeader()->hide();
    view_.setHorizontalScrollMode(QAbstractItemView::ScrollPerItem);
    view_.setModel(&model_);
    view_.horizontalHeader()->setDefaultSectionSize(81);
    view_.resize(kVisible * view_.columnWidth(0), kVisible * view_.rowHeight(0));
    view_.show();
  }
  void ScrollDown(std::size_t row) { view_.verticalScrollBar()->setValue(static_cast<int>(row)); }
  void ScrollRight(std::size_t col) {
    view_.horizontalScrollBar()->setValue(static_cast<int>(col));
  }
  void Paint() { view_.viewport()->repaint(); }

 protected:
  MatrixModel model_;
  QTableView view_;
};

class SelectedView : public View {
 public:
  explicit SelectedView(std::size_t order) : View(order) { view_.selectAll(); }
};

template <class Widget, class Base>
void RegisterStep(const std::string& what, const std::string& who,
                  void (Base::*scroll)(std::size_t), bool paint) {
  constexpr std::size_t order = 2'000;
  const std::string name = what + "/Float/" + who + "/" + std::to_string(order);
  benchmark::RegisterBenchmark(name.c_str(), [=](benchmark::State& state) {
    StartApplication();
    Widget widget(order);
    QApplication::processEvents();
    std::size_t place = 0;
    for (auto _ : state) {
      place = (place + 1) % (order - kVisible);
      (widget.*scroll)(place);
      if (paint) widget.Paint();
    }
    state.SetItemsProcessed(state.iterations());
  });
}

template <class Widget>
void RegisterSteps(const std::string& who, bool paint) {
  const std::string suffix = paint ? " and paint" : "";
  RegisterStep<Widget>("step down a matrix" + suffix, who, &Widget::ScrollDown, paint);
  RegisterStep<Widget>("step across a matrix" + suffix, who, &Widget::ScrollRight, paint);
}

// Makes and shows a grid of cells; an item is a cell.
void RegisterGrid(const std::string& who,
                  const std::function<void(QWidget& window, int edits)>& fill) {
  constexpr int edits = 100;
  const std::string name = "grid of cells/Float/" + who + "/" + std::to_string(edits * edits);
  benchmark::RegisterBenchmark(name.c_str(), [=](benchmark::State& state) {
    StartApplication();
    for (auto _ : state) {
      QWidget window;
      fill(window, edits);
      window.show();
      QApplication::processEvents();
    }
    state.SetItemsProcessed(state.iterations() * edits * edits);
  });
}

void FillWithCells(QWidget& window, int edits) {
  auto* const editor = new TQorMatrixEdit(&window);
  editor->setNoOfRowEdits(edits);
  editor->setNoOfColEdits(edits);
  editor->setMatrix(OurMatrix<Extended>(static_cast<std::size_t>(edits)));
  editor->resize(editor->sizeHint());
  window.resize(editor->size());
}

void FillWithLineEdits(QWidget& window, int edits) {
  const auto matrix = OurMatrix<Extended>(static_cast<std::size_t>(edits));
  const QSize size(81, 21);
  for (int row = 0; row < edits; ++row) {
    for (int col = 0; col < edits; ++col) {
      auto* const cell = new QLineEdit(&window);
      cell->setGeometry(QRect({col * size.width(), row * size.height()}, size));
      const auto& elements = matrix[static_cast<std::size_t>(row)];
      const Extended value = elements[static_cast<std::size_t>(col)];
      cell->setText(QString::fromStdString(Float2EStr(value, 4)));
    }
  }
  window.resize(edits * size);
}

// Qt's table view paints its cells instead of making them.
void FillWithView(QWidget& window, int edits) {
  auto* const view = new QTableView(&window);
  view->setModel(new MatrixModel(OurMatrix<Extended>(static_cast<std::size_t>(edits)), view));
  view->horizontalHeader()->setDefaultSectionSize(81);
  view->verticalHeader()->setDefaultSectionSize(21);
  view->resize(edits * QSize(81, 21));
  window.resize(view->size());
}

// A command of the editor, which copies the matrix for undo and shows the result, and the routine
// alone. Each call changes the result of the one before.
void RegisterCommand(const std::string& what, std::size_t order, int power,
                     const std::function<void(TQorMatrixEdit& editor)>& command,
                     const std::function<void(TQorFloatMatrix& matrix)>& routine) {
  const auto add = [&](const std::string& who, const auto& run) {
    const std::string name = what + "/Float/" + who + "/" + std::to_string(order);
    benchmark::RegisterBenchmark(name.c_str(), [=](benchmark::State& state) {
      run(state);
      std::size_t items = 1;
      for (int i = 0; i < power; ++i) items *= order;
      state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(items));
    });
  };
  add("ours", [=](benchmark::State& state) {
    StartApplication();
    TQorMatrixEdit editor;
    editor.setMatrix(OurMatrix<Extended>(order));
    editor.show();
    QApplication::processEvents();
    for (auto _ : state) command(editor);
  });
  add("routine alone", [=](benchmark::State& state) {
    auto matrix = OurMatrix<Extended>(order);
    for (auto _ : state) routine(matrix);
  });
}

const bool registered = [] {
  RegisterSteps<Editor>("ours", false);
  RegisterSteps<Editor>("ours", true);
  RegisterSteps<View>("QTableView", true);
  const std::string selected = "step down a matrix and paint, selected";
  RegisterStep<SelectedEditor>(selected, "ours", &Editor::ScrollDown, true);
  RegisterStep<SelectedView>(selected, "QTableView", &View::ScrollDown, true);
  RegisterStep<Lines>("step down a matrix", "QLineEdit", &Lines::ScrollDown, false);

  RegisterGrid("ours", FillWithCells);
  RegisterGrid("QLineEdit", FillWithLineEdits);
  RegisterGrid("QTableView", FillWithView);

  using Edit = TQorMatrixEdit;
  using Matrix = TQorFloatMatrix;
  constexpr std::size_t large = 2'000;
  RegisterCommand(
      "command Sqr", large, 2, [](Edit& editor) { editor.Sqr(); },
      [](Matrix& matrix) { SquareMatrix(matrix); });
  // Does not let the elements grow or vanish; nor do repeated squares.
  RegisterCommand(
      "command LinearTransform", large, 2, [](Edit& editor) { editor.LinearTransform(-1, 0.5L); },
      [](Matrix& matrix) { LinearTransformMatrix(matrix, Extended{-1}, Extended{0.5L}); });
  RegisterCommand(
      "command Transpose", large, 2, [](Edit& editor) { editor.Transpose(); },
      [](Matrix& matrix) { matrix = TransposeMatrix(matrix); });
  RegisterCommand(
      "command Inverse", 200, 3, [](Edit& editor) { editor.Inverse(); },
      [](Matrix& matrix) {
        Matrix inverse;
        benchmark::DoNotOptimize(MatrixInverse(matrix, inverse));
        matrix = inverse;
      });
  return true;
}();

}  // namespace
}  // namespace qorvex::benchmarks
