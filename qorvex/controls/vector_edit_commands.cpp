// The commands of the editors of vectors.

#include <QCoreApplication>
#include <memory>
#include <utility>

#include "qorvex/base/swap.h"
#include "qorvex/controls/panel/detail/panel_parts.h"
#include "qorvex/controls/vector_edit.h"
#include "qorvex/vector/building.h"
#include "qorvex/vector/sorting.h"
#include "qorvex/vector/transforms.h"

namespace qorvex::inline QorvexVectorEdit {

void TQorVectorEdit::VectorCommand(const QString& text, const std::function<void()>& command) {
  Command([&] {
    const auto before = std::make_shared<TQorFloatVector>(std::span<const Extended>(FullStore()));
    command();
    const auto bytes = static_cast<qint64>(before->size() * sizeof(Extended));
    Parts().history.RecordCommand(text, bytes, [this, before] { std::swap(store_, *before); });
  });
}

void TQorVectorEdit::Clear() {
  VectorCommand(QCoreApplication::translate("CellPanel", "Clear"), [this] { ClearVector(store_); });
}

void TQorVectorEdit::Fill(Extended value) {
  VectorCommand(QCoreApplication::translate("CellPanel", "Fill"),
                [this, value] { FillVector(store_, value); });
}

void TQorVectorEdit::Invert() {
  VectorCommand(QCoreApplication::translate("CellPanel", "Reciprocals"),
                [this] { InvVector(store_); });
}

void TQorVectorEdit::Sqr() {
  VectorCommand(QCoreApplication::translate("CellPanel", "Squares"),
                [this] { SquareVector(store_); });
}

void TQorVectorEdit::Sqrt() {
  VectorCommand(QCoreApplication::translate("CellPanel", "Square Roots"),
                [this] { SqrtVector(store_); });
}

void TQorVectorEdit::Ln() {
  VectorCommand(QCoreApplication::translate("CellPanel", "Natural Logarithms"),
                [this] { LnVector(store_); });
}

void TQorVectorEdit::Log10() {
  VectorCommand(QCoreApplication::translate("CellPanel", "Common Logarithms"),
                [this] { Log10Vector(store_); });
}

void TQorVectorEdit::LinearTransform(Extended slope, Extended intercept) {
  VectorCommand(QCoreApplication::translate("CellPanel", "Linear Transformation"),
                [=, this] { LinearTransformVector(store_, slope, intercept); });
}

void TQorVectorEdit::Sort() {
  VectorCommand(QCoreApplication::translate("CellPanel", "Sort"),
                [this] { QSortVector(store_, true); });
}

void TQorVectorEdit::SwapElements(quint32 first, quint32 second) {
  Parts().focus.CommitPending();
  CheckRow(first);
  CheckRow(second);
  Command([=, this] {
    const auto swap = [=, this] { SwapXY(FullStore()[first], FullStore()[second]); };
    swap();
    Parts().history.RecordCommand(QCoreApplication::translate("CellPanel", "Swap"), 0, swap);
  });
}

}  // namespace qorvex::inline QorvexVectorEdit
