// A run through all pages with the keyboard alone.

#include <QAbstractButton>
#include <QAccessible>
#include <QApplication>
#include <QLabel>
#include <QMenuBar>
#include <QScrollArea>
#include <QTabBar>
#include <QTabWidget>
#include <QtTest/QTest>
#include <map>
#include <set>
#include <utility>
#include <vector>

#include "apps/qorvex-gallery/main_window.h"
#include "apps/qorvex-gallery/model/background_work.h"
#include "apps/qorvex-gallery/model/translations.h"
#include "apps/qorvex-gallery/widgets/message_bar.h"
#include "qorvex/base_controls/custom_edit.h"
#include "qorvex/controls/panel/cell_panel.h"
#include "support/test.h"

namespace qorvex::gallery {
namespace {

// The editor that a cell belongs to, or the widget itself.
QWidget* StopOf(QWidget* widget) {
  for (QWidget* w = widget; w != nullptr; w = w->parentWidget())
    if (qobject_cast<CellPanel*>(w) != nullptr) return w;
  return widget;
}

std::string NameOf(QWidget* widget) {
  const QAccessibleInterface* const interface = QAccessible::queryAccessibleInterface(widget);
  return interface == nullptr ? "" : interface->text(QAccessible::Name).toStdString();
}

std::string Described(QWidget* widget) {
  return std::string(widget->metaObject()->className()) + " \"" + NameOf(widget) + "\" (" +
         widget->objectName().toStdString() + ")";
}

QRect PlaceOf(const QWidget& widget) {
  return {widget.mapTo(widget.window(), QPoint()), widget.size()};
}

// Whether the eye goes on from one place to the other: to the right or down.
bool Follows(const QRect& now, const QRect& before) {
  return now.left() >= before.right() || now.top() >= before.bottom() || before.contains(now) ||
         now.contains(before);
}

// The texts of the window in a language.
struct Language {
  explicit Language(QLocale::Language language) {
    QLocale::setDefault(QLocale::c());
    InstallTranslations(QLocale(language));
  }
  ~Language() { InstallTranslations(QLocale::c()); }
};

struct Keyboard : testing::TestWithParam<QLocale::Language> {
  Keyboard() {
    window.show();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
  }

  void Press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QTest::keyClick(window.windowHandle(), static_cast<Qt::Key>(key), modifiers);
  }

  void ShowPage(int page) {
    window.Pages()->setCurrentIndex(page);
    const QList<BackgroundWork*> works = window.findChildren<BackgroundWork*>();
    EXPECT_TRUE(QTest::qWaitFor(
        [&] { return std::ranges::none_of(works, &BackgroundWork::IsRunning); }, 60'000));
    QApplication::processEvents();
    window.Pages()->tabBar()->setFocus();
  }

  // The stops of the page from its tab on; the last one is the tab again unless there is a trap.
  std::vector<QWidget*> Stops(const std::string& page) {
    constexpr int kMostStops = 500;
    std::vector<QWidget*> stops = {QApplication::focusWidget()};
    for (int i = 0; i < kMostStops; ++i) {
      QWidget* const before = stops.back();
      // In an editor, the tab key alone goes to the next cell.
      const bool is_editor = qobject_cast<CellPanel*>(before) != nullptr;
      Press(Qt::Key_Tab, is_editor ? Qt::ControlModifier : Qt::NoModifier);
      QWidget* const now = StopOf(QApplication::focusWidget());
      stops.push_back(now);
      if (now == stops.front() || now == before) break;
      // At once: a part that scrolls moves its widgets on the way.
      EXPECT_TRUE(i == 0 || Follows(PlaceOf(*now), PlaceOf(*before)))
          << page << ": from " << Described(before) << " to " << Described(now);
    }
    return stops;
  }

  // Everything in the window that a mnemonic leads to.
  std::map<QKeySequence, std::vector<std::string>> Mnemonics() {
    std::map<QKeySequence, std::vector<std::string>> found;
    const auto add = [&](const QString& text) {
      const QKeySequence key = QKeySequence::mnemonic(text);
      if (!key.isEmpty()) found[key].push_back(text.toStdString());
    };
    for (const QAction* const menu : window.menuBar()->actions()) add(menu->text());
    for (int i = 0; i < window.Pages()->count(); ++i) add(window.Pages()->tabText(i));
    for (const auto* const button : window.findChildren<QAbstractButton*>())
      if (button->isVisible()) add(button->text());
    for (const auto* const label : window.findChildren<QLabel*>())
      if (label->isVisible() && label->buddy() != nullptr) add(label->text());
    return found;
  }

  Language language{GetParam()};
  MainWindow window;
};

INSTANTIATE_TEST_SUITE_P(Languages, Keyboard, testing::Values(QLocale::English, QLocale::German),
                         [](const auto& of) {
                           return QLocale::languageToString(of.param).toStdString();
                         });

TEST_P(Keyboard, ReachesEveryStopInTheOrderOfTheEye) {
  for (int page = 0; page < window.Pages()->count(); ++page) {
    ShowPage(page);
    const std::string name = window.Pages()->tabText(page).toStdString();
    const std::vector<QWidget*> stops = Stops(name);
    EXPECT_EQ(stops.back(), stops.front()) << name << ": a trap at " << Described(stops.back());
    EXPECT_GE(stops.size(), 4U) << name;
    std::set<std::string> editors;
    for (std::size_t i = 0; i + 1 < stops.size(); ++i) {
      EXPECT_NE(NameOf(stops[i]), "") << name << ": " << Described(stops[i]);
      // A screen reader says the name of the table with the element.
      const bool is_editor = qobject_cast<CellPanel*>(stops[i]) != nullptr;
      EXPECT_TRUE(!is_editor || editors.insert(NameOf(stops[i])).second)
          << name << ": " << Described(stops[i]);
    }
    // Back by the same way: from the tab to the last stop.
    Press(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(StopOf(QApplication::focusWidget()), stops[stops.size() - 2]) << name;
  }
}

TEST_P(Keyboard, HasNoMnemonicTwice) {
  for (int page = 0; page < window.Pages()->count(); ++page) {
    ShowPage(page);
    for (const auto& [key, texts] : Mnemonics()) {
      EXPECT_EQ(texts.size(), 1U) << window.Pages()->tabText(page).toStdString() << ": "
                                  << testing::PrintToString(texts);
    }
  }
  for (QAction* const menu : window.menuBar()->actions()) {
    std::map<QKeySequence, std::string> found;
    for (const QAction* const action : menu->menu()->actions()) {
      const QKeySequence key = QKeySequence::mnemonic(action->text());
      if (action->isSeparator()) continue;
      EXPECT_FALSE(key.isEmpty()) << action->text().toStdString();
      EXPECT_TRUE(found.emplace(key, action->text().toStdString()).second)
          << found[key] << " and " << action->text().toStdString();
    }
  }
}

TEST_P(Keyboard, ReportsATextThatIsNoNumberWhenItsCellIsLeft) {
  for (int page = 0; page < window.Pages()->count(); ++page) {
    ShowPage(page);
    QWidget& shown = *window.Pages()->currentWidget();
    if (shown.objectName() == "data") continue;  // the sheet takes any text
    const auto& message = *shown.findChild<MessageBar*>();
    QWidget* editor = nullptr;
    for (auto* const cell : shown.findChildren<TQorCustomEdit*>()) {
      // One cell stands for all of its editor.
      const bool is_same = StopOf(cell) != cell && std::exchange(editor, StopOf(cell)) == editor;
      if (is_same || !cell->isVisible() || !cell->isEnabled() || cell->isReadOnly()) continue;
      cell->setFocus();
      const QString before = cell->text();
      cell->selectAll();
      QTest::keyClicks(cell, "12z");
      window.Pages()->tabBar()->setFocus();
      EXPECT_TRUE(message.Text().contains("12z"))
          << window.Pages()->tabText(page).toStdString() << ", " << Described(cell) << ": "
          << message.Text().toStdString();
      EXPECT_EQ(cell->text(), before) << Described(cell);
    }
  }
}

// In either language, on a screen of 1280 by 800 pixels.
TEST_P(Keyboard, HasRoomForEveryPage) {
  for (int page = 0; page < window.Pages()->count(); ++page) {
    ShowPage(page);
    const std::string name = window.Pages()->tabText(page).toStdString();
    const QSize least = window.minimumSizeHint();
    EXPECT_TRUE(least.width() <= 1280 && least.height() <= 760)
        << name << ": " << least.width() << " by " << least.height();
    for (const auto* const area : window.Pages()->currentWidget()->findChildren<QScrollArea*>()) {
      if (area->horizontalScrollBarPolicy() == Qt::ScrollBarAlwaysOff) {
        EXPECT_LE(area->widget()->minimumSizeHint().width(), area->viewport()->width()) << name;
      }
    }
  }
}

}  // namespace
}  // namespace qorvex::gallery
