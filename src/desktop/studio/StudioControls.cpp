// SPDX-License-Identifier: MIT
#include "desktop/studio/StudioControls.h"

#include "desktop/controls/Controls.h"
#include "desktop/controls/OwnDirection.h"
#include "desktop/controls/QtText.h"
#include "platform/texts/ImportTexts.h"
#include "platform/texts/StudioTexts.h"

#include <QAccessible>
#include <QBoxLayout>
#include <QHeaderView>

#include <iterator>

namespace quorvantis {
namespace {

constexpr int kQuestionWidths[] = {40, 60, 170, 120, 50, 140};  // pixels
static_assert(std::size(kQuestionWidths) == QuestionListModel::kColumns);

}  // namespace

StudioControls::StudioControls(const StringTable& strings, QWidget* window)
    : open(nullptr),
      paste(nullptr),
      undo(nullptr),
      redo(nullptr),
      rulesButton(nullptr),
      saveRules(nullptr),
      headline(nullptr),
      roles(new RoleBar(strings, window)),
      paper(new PaperView(window)),
      marks(new MarksList(strings, window)),
      questions(new QTableView(window)),
      model(new QuestionListModel(strings, questions)),
      findings(new FindingsList(strings, window)),
      rules(new RulesPanel(strings, window)),
      target(new TargetChoice(strings, window)),
      targetPlace(nullptr),
      status(nullptr),
      import(nullptr),
      close(nullptr),
      sides(new QSplitter(Qt::Horizontal, window)),
      strings_(strings) {
  open = MakeButton("studioOpen", text_id::kStudioOpen, window);
  paste = MakeButton("studioPaste", text_id::kStudioPaste, window);
  undo = MakeButton("studioUndo", text_id::kUndoMark, window);
  redo = MakeButton("studioRedo", text_id::kRedoMark, window);
  rulesButton = MakeButton("studioRules", text_id::kRules, window);
  saveRules = MakeButton("studioSaveRules", text_id::kSaveRulesAs, window);
  import = MakeButton("studioImport", text_id::kImportNow, window);
  close = MakeButton("studioClose", text_id::kClose, window);
  headline = MakeText("studioHeadline", window);
  targetPlace = MakeText("targetPlace", window);
  status = MakeText("studioStatus", window);
  QFont bold = headline->font();
  bold.setBold(true);
  headline->setFont(bold);
  rulesButton->setCheckable(true);
  rules->hide();
  NameControl(paper, "studioPaper", ToQString(strings.Text(text_id::kPaperArea)));
  SetUpQuestions();
  Place(window);
}

QPushButton* StudioControls::MakeButton(const char* name, int text, QWidget* window) {
  return MakePushButton(window, name, ToQString(strings_.Text(text)));
}

QLabel* StudioControls::MakeText(const char* name, QWidget* window) {
  auto* label = new QLabel(window);
  NameControl(label, name, {});
  label->setTextFormat(Qt::PlainText);
  label->setWordWrap(true);
  return label;
}

void StudioControls::SetUpQuestions() {
  NameControl(questions, "studioQuestions", ToQString(strings_.Text(text_id::kResultingQuestions)));
  questions->setModel(model);
  questions->setItemDelegate(new OwnDirection(questions));
  questions->setSelectionBehavior(QAbstractItemView::SelectRows);
  questions->setSelectionMode(QAbstractItemView::SingleSelection);
  questions->setTabKeyNavigation(false);
  questions->setWordWrap(false);
  questions->setVerticalScrollMode(QAbstractItemView::ScrollPerItem);
  questions->verticalHeader()->hide();
  questions->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  questions->verticalHeader()->setDefaultSectionSize(questions->fontMetrics().height() + 8);
  questions->horizontalHeader()->setStretchLastSection(true);
  for (int column = 0; column < QuestionListModel::kColumns; ++column)
    questions->setColumnWidth(column, kQuestionWidths[column]);
}

void StudioControls::Place(QWidget* window) {
  auto* layout = new QVBoxLayout(window);
  layout->addLayout(PlaceTop());
  layout->addWidget(headline);
  layout->addWidget(roles);
  PlaceSides();
  auto* parts = new QSplitter(Qt::Vertical, window);
  parts->addWidget(sides);
  parts->addWidget(rules);
  parts->setStretchFactor(0, 3);
  parts->setStretchFactor(1, 2);
  parts->setChildrenCollapsible(false);
  layout->addWidget(parts, 1);
  layout->addWidget(target);
  layout->addLayout(PlaceBottom());
}

QLayout* StudioControls::PlaceTop() {
  auto* row = new QHBoxLayout;
  for (QWidget* button : {open, paste, undo, redo}) row->addWidget(button);
  row->addStretch();
  for (QWidget* button : {rulesButton, saveRules}) row->addWidget(button);
  return row;
}

void StudioControls::PlaceSides() {
  auto* left = new QWidget(sides);
  auto* paperAndMarks = new QVBoxLayout(left);
  paperAndMarks->setContentsMargins(0, 0, 0, 0);
  paperAndMarks->addWidget(paper, 1);
  paperAndMarks->addWidget(marks);
  auto* right = new QWidget(sides);
  auto* questionsAndFindings = new QVBoxLayout(right);
  questionsAndFindings->setContentsMargins(0, 0, 0, 0);
  questionsAndFindings->addWidget(questions, 1);
  questionsAndFindings->addWidget(findings);
  sides->addWidget(left);
  sides->addWidget(right);
  sides->setChildrenCollapsible(false);
}

QLayout* StudioControls::PlaceBottom() {
  auto* row = new QHBoxLayout;
  auto* texts = new QVBoxLayout;
  texts->setSpacing(2);
  texts->addWidget(targetPlace);
  texts->addWidget(status);
  row->addLayout(texts, 1);
  row->addWidget(import);
  row->addWidget(close);
  return row;
}

void StudioControls::SetCompact(bool isCompact) {
  roles->SetCompact(isCompact);
  marks->SetCompact(isCompact);
  findings->SetCompact(isCompact);
  target->SetCompact(isCompact);
  isCompact_ = isCompact;
  ShowRules(rulesButton->isChecked());
}

void StudioControls::ShowRules(bool areShown) {
  rules->setVisible(areShown);
  roles->setVisible(!areShown || !isCompact_);
}

void StudioControls::Tell(const QString& message) {
  status->setText(message);
  status->setAccessibleName(message);
  if (message.isEmpty()) return;
  QAccessibleEvent told(status, QAccessible::Alert);
  QAccessible::updateAccessibility(&told);
}

}  // namespace quorvantis
