#pragma once

/// @file
/// A window with an editor in it, whose signals are written down as one short text each.

#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QLineEdit>
#include <QScrollBar>
#include <QStringList>
#include <QVBoxLayout>
#include <QWheelEvent>
#include <QtTest/QTest>
#include <QtTest/qtestspontaneevent.h>
#include <concepts>
#include <memory>
#include <string>

#include "qorvex/base/text.h"
#include "qorvex/controls/QorvexMatrixEdit.h"
#include "qorvex/controls/QorvexMatrixFractEdit.h"
#include "qorvex/controls/QorvexVectorEdit.h"
#include "support/test.h"

namespace qorvex {

/// A wheel event as from a mouse: the parent gets it if the widget does not handle it.
inline void TurnWheel(QWidget* widget, int amount, Qt::ScrollPhase phase = Qt::NoScrollPhase) {
  const QPointF place(2, 2);
  QWheelEvent event(place, widget->mapToGlobal(place), {}, {0, amount}, Qt::NoButton,
                    Qt::NoModifier, phase, false);
  QSpontaneKeyEvent::setSpontaneous(&event);
  QApplication::instance()->notify(widget, &event);
}

template <class Editor>
struct EditorFixture : testing::Test {
  // Declared first, so that signals of widgets on their way out find it.
  QStringList log;
  std::unique_ptr<QWidget> window = std::make_unique<QWidget>();
  Editor* editor = new Editor;
  QLineEdit* other = new QLineEdit;

  EditorFixture() {
    QLocale::setDefault(QLocale::c());
    // As while a screen reader runs.
    QAccessible::setActive(true);
    auto* const layout = new QVBoxLayout(window.get());
    layout->addWidget(editor);
    layout->addWidget(other);
    other->setFocus();
    RecordAll();
  }

  void Show() {
    window->show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
    log.clear();
  }

  static constexpr bool kIsVector = std::derived_from<Editor, TQorVectorEdit>;

  /// One column of cells and elements in any editor.
  /// @{
  void SetCells(int edits) {
    if constexpr (kIsVector) {
      editor->setNoOfEdits(edits);
    } else {
      editor->setNoOfColEdits(1);
      editor->setNoOfRowEdits(edits);
    }
  }
  void SetRows(quint32 rows) {
    if constexpr (!kIsVector) editor->setNoOfCols(1);
    editor->setNoOfRows(rows);
  }
  Extended Get(quint32 row) const {
    if constexpr (kIsVector)
      return editor->Element(row);
    else
      return editor->Element(row, 0);
  }
  void Set(quint32 row, Extended value) {
    if constexpr (kIsVector)
      editor->setElement(row, value);
    else
      editor->setElement(row, 0, value);
  }
  void FocusEdit(quint32 edit) {
    if constexpr (kIsVector)
      editor->setEditFocus(edit);
    else
      editor->setRowEditFocus(edit);
  }
  /// @}

  /// Rows 0, 1, 2, ... behind the given number of cells, in a window that is shown.
  void Open(quint32 rows, int edits = 4) {
    SetCells(edits);
    SetRows(rows);
    for (quint32 row = 0; row < rows; ++row) Set(row, row);
    Show();
  }

  /// Calls a handler as long as the result lives.
  template <class Signal, class Handler>
  std::unique_ptr<QObject> On(Signal signal, Handler handler) {
    auto context = std::make_unique<QObject>();
    QObject::connect(editor, signal, context.get(), handler);
    return context;
  }

  /// What has happened since the last call.
  std::string Take() {
    const std::string text = log.join(QLatin1String(", ")).toStdString();
    log.clear();
    return text;
  }

  QList<TQorCustomEdit*> Cells() const {
    auto cells = editor->template findChildren<TQorCustomEdit*>();
    // Dropped cells are hidden until they are deleted.
    cells.removeIf([](const TQorCustomEdit* cell) { return cell->isHidden(); });
    return cells;
  }
  TQorCustomEdit* Cell(int edit) const { return Cells().at(edit); }
  QScrollBar* Bar() const { return editor->template findChild<QScrollBar*>(); }

  void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QTest::keyClick(editor->window()->windowHandle(), key, modifiers);
  }
  void Type(const char* text) { QTest::keyClicks(QApplication::focusWidget(), text); }
  void Enter(const char* text) {
    Type(text);
    Press(Qt::Key_Return);
  }

  std::string Texts() const {
    QStringList texts;
    for (const TQorCustomEdit* cell : Cells()) texts.append(cell->text());
    return texts.join(QLatin1Char('|')).toStdString();
  }

 private:
  template <class Sender, class... Arguments>
  void Record(void (Sender::*signal)(Arguments...), const char* name) {
    QObject::connect(editor, signal, editor, [this, name](Arguments... arguments) {
      QStringList words{QLatin1String(name)};
      (words.append(Word(arguments)), ...);
      log.append(words.join(QLatin1Char(' ')));
    });
  }
  static QString Word(quint32 row) { return QString::number(row); }
  static QString Word(Extended value) { return QString::fromStdString(Float2Str(value)); }
  static QString Word(const QString& text) { return text; }

  void RecordAll() {
    Record(&Editor::OnChange, "change");
    Record(&Editor::OnChangeText, "text");
    Record(&Editor::OnNull, "null");
    Record(&Editor::OnSetElement, "set");
    if constexpr (kIsVector) {
      Record(&Editor::OnRowNoChange, "rows");
      Record(&Editor::OnAfterTopChange, "after");
    } else {
      Record(&Editor::OnNoRowsChange, "rows");
      Record(&Editor::OnNoColsChange, "cols");
      Record(&Editor::OnLeftChange, "left");
      Record(&Editor::OnCurrColChange, "column");
    }
    Record(&Editor::ontopChange, "top");
    Record(&Editor::OnCurrRowChange, "current");
    Record(&Editor::OnCellEnter, "in");
    Record(&Editor::OnCellExit, "out");
    Record(&Editor::OnBlockRefused, "refused");
  }
};

using EditorTypes =
    testing::Types<TQorVectorEdit, TQorLabelledVectorEdit, TQorMatrixEdit, TQorMatrixFractEdit>;

}  // namespace qorvex
