// Editors among the other widgets of a form: the tab key, buddies, menus, and texts that are being
// typed while something else happens.

#include <QContextMenuEvent>
#include <QFormLayout>
#include <QMenu>
#include <QSignalSpy>
#include <QTabWidget>
#include <QTimer>
#include <QToolTip>

#include "controls/editor_fixture.h"

namespace qorvex {

template <class Editor>
struct Forms : EditorFixture<Editor> {
  QLineEdit* before = new QLineEdit;

  Forms() {
    this->editor->setDecimalPlaces(0);
    static_cast<QVBoxLayout*>(this->window->layout())->insertWidget(0, before);
    QWidget::setTabOrder(before, this->other);
    QWidget::setTabOrder(before, this->editor);
  }

  /// The texts of the cells that get the focus on the way from the widget before the editor to the
  /// one behind it, or back.
  std::string Walk(bool forward) {
    QLineEdit* const end = forward ? this->other : before;
    (forward ? before : this->other)->setFocus();
    QStringList texts;
    for (int steps = 0; steps < 20 && !end->hasFocus(); ++steps) {
      this->Press(forward ? Qt::Key_Tab : Qt::Key_Backtab);
      const auto* const cell = qobject_cast<QLineEdit*>(QApplication::focusWidget());
      if (cell != end) texts.append(cell != nullptr ? cell->text() : "elsewhere");
    }
    return texts.join(QLatin1Char(' ')).toStdString();
  }

  std::string ThereAndBack() {
    const std::string there = Walk(true);
    return there + "; " + Walk(false);
  }

  void SetAll(const TQorFloatVector& elements) {
    if constexpr (EditorFixture<Editor>::kIsVector) {
      this->editor->setVector(elements);
    } else {
      auto matrix = TQorFloatMatrix::WithLength(elements.size());
      for (std::size_t row = 0; row < elements.size(); ++row) matrix[row] = {elements[row]};
      this->editor->setMatrix(matrix);
    }
  }

  /// Another window is active meanwhile.
  template <class Action>
  void WhileInactive(Action action) {
    QWidget second;
    second.show();
    second.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&second));
    action();
    this->window->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(this->window.get()));
  }
};
TYPED_TEST_SUITE(Forms, EditorTypes);
using MatrixForms = Forms<TQorMatrixEdit>;
using LabelledForms = Forms<TQorLabelledVectorEdit>;

TYPED_TEST(Forms, TabReachesEveryElementAndLeaves) {
  this->Open(6);
  EXPECT_EQ(this->ThereAndBack(), "0 1 2 3 4 5; 5 4 3 2 1 0");
  this->FocusEdit(3);
  this->Type("7");
  this->Take();
  this->Press(Qt::Key_Tab);
  EXPECT_EQ(this->Get(3), 7);
  EXPECT_EQ(this->Take(), this->kIsVector ? "change 3, out 3, top 1, current 3 4, after 1, in 4"
                                          : "change 3 0, out 3 0, top 1, current 3 4, in 4 0");
  const std::pair<Qt::Key, QWidget*> leave[] = {{Qt::Key_Tab, this->other},
                                                {Qt::Key_Backtab, this->before}};
  for (const auto& [key, end] : leave) {
    this->FocusEdit(1);
    this->Press(key, Qt::ControlModifier);
    EXPECT_TRUE(end->hasFocus());
  }
  // Qt moves the focus on from what is hidden or disabled, but that is not the tab key.
  for (const char* const state : {"visible", "enabled"}) {
    this->FocusEdit(3);
    this->editor->setProperty(state, false);
    EXPECT_EQ(this->editor->DisplayTopRow(), 1U) << state;
    this->editor->setProperty(state, true);
  }
  this->editor->setTabStop(false);
  EXPECT_EQ(this->ThereAndBack(), "; ");
  this->FocusEdit(3);
  this->Press(Qt::Key_Tab);
  EXPECT_TRUE(this->other->hasFocus());
  this->editor->setTabStop(true);
  // A value in the spare row makes another one, which comes next.
  this->editor->setCanGrow(true);
  this->editor->ScrollBottom();
  this->FocusEdit(3);
  for (const char* const value : {"8", "9", ""}) {
    this->Type(value);
    this->Press(Qt::Key_Tab);
  }
  EXPECT_EQ(this->Get(7), 9);
  EXPECT_TRUE(this->other->hasFocus());
  this->editor->setCanGrow(false);
  this->SetRows(0);
  EXPECT_EQ(this->ThereAndBack(), "; ");
  // Cells that come later, on a page of tabs.
  for (const int edits : {0, 2, 3}) this->SetCells(edits);
  this->SetRows(2);
  QTabWidget pages;
  pages.addTab(this->window.release(), "1");
  pages.show();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&pages));
  EXPECT_EQ(this->ThereAndBack(), "0 0; 0 0");
}

TYPED_TEST(Forms, TheTabOrderAndBuddiesLeadToTheEditor) {
  auto* const form = new QFormLayout;
  static_cast<QVBoxLayout*>(this->window->layout())->addLayout(form);
  form->addRow("&Values", this->editor);
  QWidget::setTabOrder(this->other, this->editor);
  QWidget::setTabOrder(this->editor, this->before);
  std::swap(this->before, this->other);
  this->Open(5);
  EXPECT_EQ(this->ThereAndBack(), "0 1 2 3 4; 4 3 2 1 0");
  this->Cell(2)->setFocus();
  EXPECT_TRUE(this->editor->hasFocus());
  this->other->setFocus();
  this->editor->setFocus();
  EXPECT_TRUE(this->Cell(2)->hasFocus()) << "a program comes back to where the user was";
  this->other->setFocus();
  this->Press(Qt::Key_V, Qt::AltModifier);
  EXPECT_TRUE(this->Cell(0)->hasFocus());
  // The focus that an empty editor has got is for its first cell.
  this->SetRows(0);
  this->other->setFocus();
  this->editor->setFocus();
  this->SetRows(1);
  EXPECT_TRUE(this->Cell(0)->hasFocus());
}

TEST_F(MatrixForms, TabReadsRowByRow) {
  editor->setNoOfRowEdits(2);
  editor->setNoOfColEdits(2);
  editor->setMatrix({{0, 1, 2}, {3, 4, 5}, {6, 7, 8}});
  Show();
  EXPECT_EQ(Walk(true), "0 1 2 3 4 5 6 7 8");
  editor->ScrollRightMost();
  EXPECT_EQ(Walk(false), "8 7 6 5 4 3 2 1 0");
}

TEST_F(LabelledForms, TabStopsAtLabelsThatCanBeTyped) {
  Open(3, 2);
  editor->setLabelType(TQorLabelledVectorEdit::ltCustom);
  editor->setLabelsEditable(true);
  for (const quint32 row : {0U, 1U, 2U}) editor->setLabel(row, QChar('a' + row));
  EXPECT_EQ(ThereAndBack(), "a 0 b 1 c 2; 2 c 1 b 0 a");
}

TYPED_TEST(Forms, KeepWhatIsBeingTypedAsLongAsItsElementStays) {
  this->Open(6);
  this->FocusEdit(1);
  const std::function<void()> changes[] = {
      [this] { this->SetRows(7); },
      [this] { this->SetCells(5); },
      [this] { this->editor->setNull(true); },
      [this] { this->WhileInactive([this] { this->SetRows(8); }); },
      [this] {
        this->SetAll({0, 1, 2, 3, 4, 5, 6, 7});
      },
      [this] { this->editor->CopyCells({.row = 2, .rows = 3, .col = 0, .cols = 1}); },
  };
  for (const auto& change : changes) {
    this->Type("3");
    change();
  }
  EXPECT_EQ(this->Cell(1)->text(), "333333");
  EXPECT_EQ(this->Get(1), 1);
  this->editor->ScrollDown(1);
  EXPECT_EQ(this->Get(1), 333333);

  // Other elements, fewer cells, and a widget that gets the focus end the typing.
  this->FocusEdit(2);
  QSignalSpy committed(this->editor, &TypeParam::OnChange);
  const std::function<void()> ends[] = {
      [this] {
        this->SetAll({5, 5, 5, 5, 5, 5});
      },
      [this] { this->SetCells(2); },
      [this] { this->WhileInactive([this] { this->other->setFocus(); }); },
  };
  for (const auto& end : ends) {
    this->Type("8");
    end();
    EXPECT_EQ(committed.count(), 1);
    committed.clear();
  }
}

TYPED_TEST(Forms, ReportATextThatIsRefused) {
  this->Open(6);
  QSignalSpy refused(this->editor, &CellPanel::OnTextRefused);
  // The cell, the key, and what the cell shows then; at the edge the tab key scrolls.
  const std::tuple<int, Qt::Key, const char*> cases[] = {
      {1, Qt::Key_Return, "1x"}, {1, Qt::Key_Tab, "1"}, {3, Qt::Key_Tab, "4"}};
  for (const auto& [edit, key, text] : cases) {
    QToolTip::hideText();
    this->FocusEdit(static_cast<quint32>(edit));
    this->Type("1x");
    this->Press(key);
    QCoreApplication::processEvents();
    ASSERT_EQ(refused.count(), 1) << key;
    EXPECT_EQ(QToolTip::text(), refused.takeFirst().first().toString());
    EXPECT_TRUE(QToolTip::text().contains("\"1x\" is not a number"));
    EXPECT_EQ(this->Cell(edit)->text(), text);
    this->Press(Qt::Key_Escape);
  }
}

TYPED_TEST(Forms, OpenTheMenuThatTheirPolicyNames) {
  this->Open(6);
  this->editor->setDisplayTopRow(2);
  QStringList happened;
  QObject::connect(this->editor, &CellPanel::OnContextMenu, this->editor,
                   [&](QMenu& menu, quint32 row, quint32 col) {
                     menu.addAction(QString("Mine %1 %2").arg(row).arg(col));
                   });
  const QPoint place(3, 4);
  for (QWidget* const widget : {static_cast<QWidget*>(this->editor), this->window.get()}) {
    QObject::connect(widget, &QWidget::customContextMenuRequested, widget, [&, widget](QPoint at) {
      EXPECT_EQ(at, this->Cell(1)->mapTo(widget, place));
      happened.append(widget == this->editor ? "editor" : "window");
    });
  }
  this->window->setContextMenuPolicy(Qt::CustomContextMenu);
  QAction own("Own");
  this->editor->addAction(&own);
  const std::pair<Qt::ContextMenuPolicy, const char*> cases[] = {
      {Qt::DefaultContextMenu, "Mine 3 0"}, {Qt::CustomContextMenu, "editor"},
      {Qt::ActionsContextMenu, "Own"},      {Qt::NoContextMenu, "window"},
      {Qt::PreventContextMenu, ""},
  };
  for (const auto& [policy, expected] : cases) {
    this->editor->setContextMenuPolicy(policy);
    // The menu of actions runs a loop of its own.
    QTimer::singleShot(0, [&happened] {
      auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
      if (menu == nullptr) return;
      happened.append(menu->actions().last()->text());
      menu->close();
    });
    QContextMenuEvent event(QContextMenuEvent::Mouse, place, this->Cell(1)->mapToGlobal(place));
    QApplication::sendEvent(this->Cell(1), &event);
    QCoreApplication::processEvents();
    EXPECT_EQ(happened.join(' ').toStdString(), expected) << policy;
    happened.clear();
  }
}

}  // namespace qorvex
