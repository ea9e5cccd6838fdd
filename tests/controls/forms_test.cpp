// Editors among the other widgets of a form: the tab key, buddies, menus, and texts that are being
// typed while something else happens.

#include <QContextMenuEvent>
#include <QFormLayout>
#include <QLabel>
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

  /// Where the focus comes to, from the widget before the editor to the one behind it or back: the
  /// texts of the cells.
  std::string Walk(bool forward) {
    QLineEdit* const end = forward ? this->other : before;
    (forward ? before : this->other)->setFocus();
    QStringList texts;
    for (int steps = 0; steps < 50; ++steps) {
      if (forward) this->Press(Qt::Key_Tab);
      if (!forward) this->Press(Qt::Key_Backtab, Qt::ShiftModifier);
      if (end->hasFocus()) break;
      const auto* const cell = qobject_cast<QLineEdit*>(QApplication::focusWidget());
      texts.append(cell != nullptr ? cell->text() : "elsewhere");
    }
    EXPECT_TRUE(end->hasFocus());
    return texts.join(QLatin1Char(' ')).toStdString();
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
  for (int round = 0; round < 2; ++round) {
    EXPECT_EQ(this->Walk(true), "0 1 2 3 4 5");
    EXPECT_EQ(this->Walk(false), "5 4 3 2 1 0");
  }
  EXPECT_EQ(this->Walk(true), "0 1 2 3 4 5");
  EXPECT_EQ(this->editor->DisplayTopRow(), 2U);
  EXPECT_EQ(this->Walk(true), "2 3 4 5") << "from the first one in sight";
  // The event of a cell that is left names the element that it had.
  this->editor->setDisplayTopRow(0);
  this->FocusEdit(3);
  this->Type("7");
  this->Take();
  this->Press(Qt::Key_Tab);
  EXPECT_EQ(this->Get(3), 7);
  if (this->kIsVector) {
    EXPECT_EQ(this->Take(), "change 3, out 3, top 1, current 3 4, after 1, in 4");
  }
  this->FocusEdit(1);
  this->Press(Qt::Key_Tab, Qt::ControlModifier);
  EXPECT_TRUE(this->other->hasFocus());
  this->FocusEdit(1);
  this->Take();
  this->Press(Qt::Key_Backtab, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_TRUE(this->before->hasFocus());
  EXPECT_EQ(this->Take().find("in"), std::string::npos) << "at once";
  // Qt moves the focus on from what is hidden or disabled, but that is not the tab key.
  const quint32 top = this->editor->DisplayTopRow();
  for (const char* const state : {"visible", "enabled"}) {
    this->FocusEdit(3);
    this->editor->setProperty(state, false);
    EXPECT_EQ(this->editor->DisplayTopRow(), top) << state;
    EXPECT_FALSE(this->editor->hasFocus());
    this->editor->setProperty(state, true);
  }

  this->editor->setTabStop(false);
  EXPECT_EQ(this->Walk(true) + this->Walk(false), "");
  this->FocusEdit(3);
  this->Press(Qt::Key_Tab);
  EXPECT_TRUE(this->other->hasFocus());
  this->editor->setTabStop(true);
  this->SetRows(0);
  EXPECT_EQ(this->Walk(true) + this->Walk(false), "");
  // Cells that come later, and a page of tabs.
  for (const int edits : {0, 2, 3}) this->SetCells(edits);
  this->SetRows(2);
  QTabWidget pages;
  pages.addTab(new QWidget, "1");
  pages.addTab(this->window.release(), "2");
  pages.setCurrentIndex(1);
  pages.show();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&pages));
  EXPECT_EQ(this->Walk(true), "0 0");
  EXPECT_EQ(this->Walk(false), "0 0");
}

TYPED_TEST(Forms, TheTabOrderAndBuddiesLeadToTheEditor) {
  auto* const form = new QFormLayout;
  static_cast<QVBoxLayout*>(this->window->layout())->addLayout(form);
  form->addRow("&Values", this->editor);
  QWidget::setTabOrder(this->other, this->editor);
  QWidget::setTabOrder(this->editor, this->before);
  std::swap(this->before, this->other);
  this->Open(5);
  EXPECT_EQ(this->Walk(true), "0 1 2 3 4");
  EXPECT_EQ(this->Walk(false), "4 3 2 1 0");
  this->Cell(2)->setFocus();
  EXPECT_TRUE(this->editor->hasFocus());
  this->other->setFocus();
  this->editor->setFocus();
  EXPECT_TRUE(this->Cell(2)->hasFocus()) << "a program comes back to where the user was";
  this->other->setFocus();
  this->Take();
  this->Press(Qt::Key_V, Qt::AltModifier);
  EXPECT_TRUE(this->Cell(0)->hasFocus());
  EXPECT_EQ(this->Take().find("in 2"), std::string::npos);
  // The focus that an empty editor has got is for its first cell.
  this->SetRows(0);
  this->other->setFocus();
  this->editor->setFocus();
  EXPECT_TRUE(this->Bar()->hasFocus());
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
  for (const quint32 row : {0U, 1U, 2U}) editor->setLabel(row, QChar('a' + row));
  EXPECT_EQ(Walk(true), "0 1 2");
  editor->setLabelsEditable(true);
  editor->ScrollTop();
  EXPECT_EQ(Walk(true), "a 0 b 1 c 2");
  EXPECT_EQ(Walk(false), "2 c 1 b 0 a");
}

TYPED_TEST(Forms, KeepWhatIsBeingTypedAsLongAsItsElementStays) {
  this->Open(6);
  this->FocusEdit(1);
  this->Type("1");
  this->Take();
  this->SetRows(7);
  this->Type("2");
  this->SetCells(5);
  this->Type("3");
  this->editor->setNull(true);
  this->Type("4");
  this->WhileInactive([this] { this->SetRows(8); });
  this->Type("5");
  if constexpr (this->kIsVector) {
    this->editor->setVector(this->editor->Vector());
  } else {
    this->editor->setMatrix(this->editor->Matrix());
  }
  this->Type("6");
  EXPECT_EQ(this->Cell(1)->text(), "123456");
  EXPECT_EQ(this->Get(1), 1);
  EXPECT_EQ(this->Take().find("change"), std::string::npos);
  this->editor->ScrollDown(1);
  EXPECT_EQ(this->Get(1), 123456);

  // Other elements, fewer cells, and another widget that gets the focus end the typing.
  this->FocusEdit(2);
  this->Type("8");
  int changes = 0;
  const auto count = this->On(&TypeParam::OnChange, [&changes] { ++changes; });
  if constexpr (this->kIsVector) {
    this->editor->setVector({5, 5, 5, 5, 5, 5});
  } else {
    this->editor->setMatrix({{5}, {5}, {5}, {5}, {5}, {5}});
  }
  EXPECT_EQ(changes, 1);
  EXPECT_EQ(this->Get(3), 5);
  this->Type("9");
  this->SetCells(2);
  EXPECT_EQ(changes, 2);
  this->Type("7");
  this->WhileInactive([this] {
    this->other->setFocus();
    EXPECT_EQ(this->Cell(1)->text(), "7");
  });
  EXPECT_EQ(changes, 3);
  EXPECT_EQ(this->editor->CurrentRow() < 6, true);
}

TYPED_TEST(Forms, ReportATextThatIsRefused) {
  this->Open(6);
  QSignalSpy refused(this->editor, &CellPanel::OnTextRefused);
  const struct {
    int edit;
    Qt::Key key;
    bool stays;
  } cases[] = {{1, Qt::Key_Return, true},
               {1, Qt::Key_Tab, false},
               {3, Qt::Key_Tab, false},
               {0, Qt::Key_Backtab, false}};
  for (const auto& [edit, key, stays] : cases) {
    QToolTip::hideText();
    this->editor->setDisplayTopRow(0);
    QCoreApplication::processEvents();
    this->FocusEdit(static_cast<quint32>(edit));
    const QString value = this->Cell(edit)->text();
    this->Type("1x");
    this->Press(key);
    QCoreApplication::processEvents();
    ASSERT_EQ(refused.count(), 1) << key;
    const QString message = refused.takeFirst().first().toString();
    EXPECT_TRUE(message.contains("\"1x\" is not a number")) << message.toStdString();
    EXPECT_EQ(QToolTip::text(), message);
    EXPECT_EQ(this->Cell(edit)->hasFocus(), stays || edit == 3);
    EXPECT_EQ(this->Cell(edit)->text(), stays ? "1x" : edit == 3 ? "4" : value);
    this->Press(Qt::Key_Escape);
  }
}

TYPED_TEST(Forms, OpenTheMenuThatTheirPolicyNames) {
  this->Open(6);
  this->editor->setDisplayTopRow(2);
  QStringList happened;
  QObject::connect(this->editor, &CellPanel::OnContextMenu, this->editor,
                   [&](QMenu& menu, quint32 row, quint32 col) {
                     menu.addAction("Mine");
                     happened.append(QString("menu %1 %2").arg(row).arg(col));
                   });
  const auto requests = [&](QWidget* widget, const char* name) {
    QObject::connect(widget, &QWidget::customContextMenuRequested, this->editor,
                     [&happened, name, this](QPoint place) {
                       const bool there = place == this->Cell(1)->mapTo(this->editor, QPoint(3, 4));
                       happened.append(QString(name) + (there ? " there" : ""));
                     });
  };
  requests(this->editor, "editor");
  requests(this->window.get(), "window");
  this->window->setContextMenuPolicy(Qt::CustomContextMenu);
  QAction own("Own");
  this->editor->addAction(&own);
  const std::pair<Qt::ContextMenuPolicy, const char*> cases[] = {
      {Qt::DefaultContextMenu, "menu 3 0, Mine"},
      {Qt::CustomContextMenu, "editor there"},
      {Qt::ActionsContextMenu, "Own"},
      {Qt::NoContextMenu, "window"},
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
    QContextMenuEvent event(QContextMenuEvent::Mouse, {3, 4},
                            this->Cell(1)->mapToGlobal(QPoint(3, 4)));
    QApplication::sendEvent(this->Cell(1), &event);
    QCoreApplication::processEvents();
    EXPECT_EQ(happened.join(", ").toStdString(), expected) << policy;
    happened.clear();
  }
}

}  // namespace qorvex
