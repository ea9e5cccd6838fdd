#include "apps/qorvex-gallery/pages/matrix_page.h"

#include <QButtonGroup>
#include <QFileDialog>
#include <QFileInfo>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>
#include <exception>
#include <memory>
#include <utility>

#include "apps/qorvex-gallery/model/error_text.h"
#include "apps/qorvex-gallery/model/matrix_calculation.h"
#include "apps/qorvex-gallery/model/matrix_file.h"
#include "apps/qorvex-gallery/model/texts.h"
#include "apps/qorvex-gallery/widgets/figure_table.h"
#include "apps/qorvex-gallery/widgets/matrix_panel.h"
#include "apps/qorvex-gallery/widgets/message_bar.h"
#include "apps/qorvex-gallery/widgets/side_panel.h"
#include "qorvex/controls/QorvexMatrixEdit.h"

namespace qorvex::gallery {

namespace {

// Larger matrices come from files; the settings of the program do not keep them.
constexpr std::uint64_t kMostKept = 10'000;

std::uint64_t ElementsOf(const MatrixPanel& panel) {
  return std::uint64_t{panel.Editor().NoOfRows()} * panel.Editor().NoOfCols();
}

QButtonGroup* AddRadioButtons(QLayout& layout, const QStringList& texts, const char* const* names) {
  auto* const group = new QButtonGroup(&layout);
  for (int i = 0; i < texts.size(); ++i) {
    auto* const button = new QRadioButton(texts[i]);
    button->setObjectName(QLatin1String(names[i]));
    group->addButton(button, i);
    layout.addWidget(button);
  }
  group->button(0)->setChecked(true);
  return group;
}

QPushButton* MakeButton(const QString& text, const char* name, const QString& tip) {
  auto* const button = new QPushButton(text);
  button->setObjectName(QLatin1String(name));
  button->setToolTip(tip);
  return button;
}

}  // namespace

MatrixPage::MatrixPage(QWidget* parent)
    : Page(parent),
      a_(new MatrixPanel(MatrixPanel::Kind::kTyped, "a", tr("A"), tr("Matrix A"))),
      b_(new MatrixPanel(MatrixPanel::Kind::kTyped, "b", tr("B"), tr("Matrix B"))),
      result_(new MatrixPanel(MatrixPanel::Kind::kResult, "result", {}, {})),
      matrices_(new QVBoxLayout),
      typed_(new QHBoxLayout),
      properties_(new FigureTable({FigureTable::kLabel, FigureTable::kFigure})),
      message_(new MessageBar),
      edited_(a_),
      refresh_(this),
      patience_(this),
      work_(this),
      reading_a_(this),
      reading_b_(this) {
  setObjectName(QStringLiteral("matrixPage"));
  properties_->setObjectName(QStringLiteral("properties"));
  auto* const panel = new SidePanel;
  MakeChoices(*panel);
  auto* const body = new QHBoxLayout;
  body->addWidget(panel);
  auto* const layout = new QVBoxLayout(this);
  layout->addLayout(body, 1);
  layout->addWidget(message_);
  MakeMatrices();
  typed_->setSpacing(2 * fontMetrics().height());
  typed_->addWidget(a_, 1);
  typed_->addWidget(b_, 1);
  matrices_->addLayout(typed_, 1);
  matrices_->addSpacing(fontMetrics().height());
  matrices_->addWidget(result_, 1);
  matrices_->addStretch();
  body->addLayout(matrices_, 1);

  refresh_.setSingleShot(true);
  connect(&refresh_, &QTimer::timeout, this, &MatrixPage::Refresh);
  constexpr int patience_ms = 200;
  patience_.setSingleShot(true);
  patience_.setInterval(patience_ms);
  connect(&patience_, &QTimer::timeout, this, [this] { ShowNone(tr("calculating…")); });
  a_->SetMatrix({{2, 0.5L, 1}, {1, 3, 2}, {0.25L, 0, 4}});
  b_->SetMatrix({{1}, {2}, {3}});
  Choose();
}

MatrixPage::~MatrixPage() = default;

void MatrixPage::MakeChoices(SidePanel& panel) {
  static constexpr const char* kResults[] = {"inverse", "echelon", "product", "solution"};
  static constexpr const char* kNumbers[] = {"showDecimals", "showFractions"};
  wanted_ = AddRadioButtons(*panel.AddGroup(tr("Result")),
                            {tr("&Inverse of A"), tr("Row eche&lon form of A"),
                             tr("Product A × &B"), tr("&Solution X of A X = B")},
                            kResults);
  MakeCommands(*panel.AddGroup(tr("Change A")));
  auto* const numbers = new QHBoxLayout;
  panel.AddGroup(tr("Numbers"))->addLayout(numbers);
  numbers_ = AddRadioButtons(*numbers, {tr("De&cimals"), tr("Fr&actions")}, kNumbers);
  panel.AddGroup(tr("Properties of A"))->addWidget(properties_);
  panel.Finish();
  connect(wanted_, &QButtonGroup::idClicked, this, &MatrixPage::Choose);
  connect(numbers_, &QButtonGroup::idClicked, this, &MatrixPage::Choose);
}

void MatrixPage::MakeCommands(QVBoxLayout& group) {
  struct Command {
    QString text;
    const char* name;
    QString tip;
    void (TQorCustomMatrixEdit::*run)();
  };
  const Command commands[] = {
      {tr("&Transpose"), "transpose", tr("Rows become columns"), &TQorCustomMatrixEdit::Transpose},
      {tr("Reci&procals"), "reciprocals", tr("1 divided by each element"),
       &TQorCustomMatrixEdit::Invert},
      {tr("S&quares"), "squares", tr("Each element squared"), &TQorCustomMatrixEdit::Sqr},
      {tr("Square &Roots"), "square_roots", tr("The square root of each element"),
       &TQorCustomMatrixEdit::Sqrt},
      {tr("l&n"), "ln", tr("The natural logarithm of each element"), &TQorCustomMatrixEdit::Ln},
      {tr("lo&g10"), "log10", tr("The decimal logarithm of each element"),
       &TQorCustomMatrixEdit::Log10}};
  auto* const grid = new QGridLayout;
  auto add = [grid, index = 0](QPushButton* button) mutable {
    grid->addWidget(button, index / 2, index % 2);
    ++index;
  };
  for (const Command& command : commands) {
    QPushButton* const button = MakeButton(command.text, command.name, command.tip);
    add(button);
    connect(button, &QPushButton::clicked, this,
            [this, run = command.run] { Run([&] { (a_->Editor().*run)(); }); });
  }
  for (const bool undo : {true, false}) {
    QPushButton* const button =
        undo ? MakeButton(tr("&Undo"), "undo", tr("Takes the last change back"))
             : MakeButton(tr("Re&do"), "redo", tr("Makes the last change again"));
    add(button);
    connect(button, &QPushButton::clicked, this, [this, undo] { Exchange(undo); });
  }
  group.addLayout(grid);
}

void MatrixPage::MakeMatrices() {
  for (MatrixPanel* const panel : {a_, b_}) {
    Connect(*panel);
    QPushButton* const open = MakeButton(panel == a_ ? tr("&Open…") : tr("Open…"), "open",
                                         tr("Reads the matrix from a file without a header"));
    connect(open, &QPushButton::clicked, this, [this, panel] { AskAndOpen(*panel); });
    panel->Head()->addWidget(open);
  }
  QPushButton* const example = MakeButton(tr("E&xample"), "example", tr("A small matrix"));
  connect(example, &QPushButton::clicked, this, &MatrixPage::ShowExample);
  a_->Head()->addWidget(example);
  use_as_a_ = MakeButton(tr("Use as A"), "useAsA", tr("Makes the result A"));
  connect(use_as_a_, &QPushButton::clicked, this, &MatrixPage::UseAsA);
  result_->Head()->addWidget(use_as_a_);
  save_ = MakeButton(tr("Save…"), "save", tr("Writes the result with all its digits to a file"));
  connect(save_, &QPushButton::clicked, this, &MatrixPage::AskAndSave);
  result_->Head()->addWidget(save_);
  for (MatrixPanel* const panel : Panels()) panel->Head()->addStretch(1);
}

void MatrixPage::Connect(MatrixPanel& panel) {
  connect(&panel, &MatrixPanel::Changed, this, [this, &panel] {
    edited_ = &panel;
    message_->SetText({});
    RefreshSoon();
  });
  connect(&panel, &MatrixPanel::SizeRefused, message_, &MessageBar::SetText);
  panel.LetWatch(*message_);
}

MatrixResult MatrixPage::Wanted() const {
  return static_cast<MatrixResult>(wanted_->checkedId());
}

void MatrixPage::Run(const std::function<void()>& command) {
  a_->CommitTexts();
  message_->SetText({});
  try {
    command();
    a_->Update();
  } catch (const std::exception& error) {
    message_->SetText(ErrorText(error));
  }
}

void MatrixPage::Exchange(bool undo) {
  edited_->CommitTexts();
  message_->SetText({});
  undo ? edited_->Editor().Undo() : edited_->Editor().Redo();
}

void MatrixPage::ShowExample() {
  Run([this] { a_->Replace({{2, 0.5L, 1}, {1, 3, 2}, {0.25L, 0, 4}}); });
}

void MatrixPage::AskAndOpen(MatrixPanel& panel) {
  const QString path = QFileDialog::getOpenFileName(
      this, tr("Open a Matrix"), {}, tr("Delimited text (*.csv *.tsv *.txt);;All files (*)"));
  if (!path.isEmpty()) OpenIn(panel, path);
}

void MatrixPage::Open(const QString& path) {
  OpenIn(*a_, path);
}

void MatrixPage::OpenIn(MatrixPanel& panel, const QString& path) {
  const auto matrix = std::make_shared<TQorFloatMatrix>();
  BackgroundWork& reading = &panel == a_ ? reading_a_ : reading_b_;
  message_->SetText({});
  panel.SetRemark(tr("reading %1…").arg(QFileInfo(path).fileName()));
  reading.Start([matrix, path](const Proceed& proceed) { *matrix = ReadMatrixFile(path, proceed); },
                [&panel, matrix] {
                  panel.SetRemark({});
                  panel.Replace(*matrix);
                },
                [this, &panel](const QString& why) {
                  panel.SetRemark({});
                  message_->SetText(why);
                });
}

void MatrixPage::Choose() {
  struct Title {
    QString title, name;
  };
  const Title titles[] = {{tr("Inverse of A"), tr("Result: inverse of A")},
                          {tr("Row echelon form of A"), tr("Result: row echelon form of A")},
                          {tr("A × B"), tr("Result: product of A and B")},
                          {tr("X, where A X = B"), tr("Result: solution X of A X = B")}};
  const Title& title = titles[wanted_->checkedId()];
  result_->SetTitle(title.title, title.name);
  b_->setVisible(TakesB(Wanted()));
  for (MatrixPanel* const panel : Panels()) panel->ShowFractions(numbers_->checkedId() == 1);
  RefreshSoon();
}

// A click can come before the event that announces a change.
void MatrixPage::UseAsA() {
  if (refresh_.isActive() || work_.IsRunning()) return;
  Run([this] { a_->Replace(result_->Matrix()); });
}

void MatrixPage::AskAndSave() {
  const QString path = QFileDialog::getSaveFileName(this, tr("Save the Result"), {},
                                                    tr("Comma-separated values (*.csv)"));
  if (path.isEmpty()) return;
  const QString why = WriteMatrixFile(path, result_->Matrix());
  message_->SetText(why.isEmpty() ? QString()
                                  : QFileInfo(path).fileName() + QStringLiteral(": ") + why);
}

void MatrixPage::RefreshSoon() {
  refresh_.start();
}

void MatrixPage::Refresh() {
  ShareHeight();
  work_.Abandon();
  patience_.start();
  const auto task = std::make_shared<MatrixTask>();
  task->wanted = Wanted();
  task->a = a_->Matrix();
  if (TakesB(task->wanted)) task->b = b_->Matrix();
  const auto outcome = std::make_shared<MatrixOutcome>();
  work_.Start([task, outcome](const Proceed& proceed) { *outcome = Calculate(*task, proceed); },
              [this, outcome] {
                patience_.stop();
                Show(*outcome);
              },
              [this](const QString&) {
                patience_.stop();
                ShowNone(tr("none, the memory does not suffice"));
              });
}

// Matrices with few rows leave the rest of the height to others.
void MatrixPage::ShareHeight() {
  for (MatrixPanel* const panel : {a_, b_})
    typed_->setAlignment(panel, panel->IsLow() ? Qt::AlignTop : Qt::Alignment());
  const bool are_low = a_->IsLow() && (b_->isHidden() || b_->IsLow());
  matrices_->setStretchFactor(typed_, are_low ? 0 : 1);
}

void MatrixPage::Show(const MatrixOutcome& outcome) {
  properties_->SetRows({{tr("Determinant"), outcome.determinant}, {tr("Rank"), outcome.rank}});
  if (!outcome.why_none.isEmpty()) return ShowNone(outcome.why_none);
  result_->SetRemark({});
  result_->SetMatrix(outcome.result);
  use_as_a_->setEnabled(true);
  save_->setEnabled(true);
}

void MatrixPage::ShowNone(const QString& why) {
  result_->SetRemark(why);
  use_as_a_->setEnabled(false);
  save_->setEnabled(false);
}

QVariantMap MatrixPage::State() const {
  QVariantMap state = {{QStringLiteral("result"), wanted_->checkedButton()->objectName()},
                       {QStringLiteral("numbers"), numbers_->checkedButton()->objectName()}};
  for (const MatrixPanel* const panel : {a_, b_}) {
    if (ElementsOf(*panel) <= kMostKept) state[panel->objectName()] = MatrixText(panel->Matrix());
  }
  return state;
}

void MatrixPage::SetState(const QVariantMap& state) {
  for (const auto& [group, key] : {std::pair(wanted_, "result"), std::pair(numbers_, "numbers")}) {
    for (QAbstractButton* const button : group->buttons()) {
      if (button->objectName() == state[QLatin1String(key)].toString()) button->setChecked(true);
    }
  }
  for (MatrixPanel* const panel : {a_, b_}) {
    try {
      const QString text = state[panel->objectName()].toString();
      if (!text.isEmpty()) panel->SetMatrix(MatrixOf(text));
    } catch (const std::exception&) {
      // Settings that were changed by hand; the example stays.
    }
  }
  Choose();
}

PageReport MatrixPage::Report() const {
  constexpr quint32 most_rows = 40;
  constexpr quint32 most_cols = 10;
  PageReport report{tr("Matrices"), {}};
  const auto add = [&](const QString& title, const MatrixPanel& panel) {
    const quint32 row_count = panel.Editor().NoOfRows();
    const quint32 col_count = panel.Editor().NoOfCols();
    if (row_count > most_rows || col_count > most_cols) {
      report.parts.append({title, {{tr("%L1 × %L2 elements").arg(row_count).arg(col_count)}}});
      return;
    }
    QList<QStringList> rows;
    for (const TQorFloatVector& row : panel.Matrix()) {
      QStringList& texts = rows.emplace_back();
      for (const Extended x : row) texts.append(std::isnan(x) ? QString() : ExactText(x));
    }
    report.parts.append({title, rows});
  };
  add(tr("A"), *a_);
  report.parts.append({tr("Properties of A"), properties_->Rows()});
  if (TakesB(Wanted())) add(tr("B"), *b_);
  if (use_as_a_->isEnabled()) add(wanted_->checkedButton()->text().remove('&'), *result_);
  return report;
}

}  // namespace qorvex::gallery
