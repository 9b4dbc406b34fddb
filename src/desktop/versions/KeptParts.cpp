// SPDX-License-Identifier: MIT
#include "desktop/versions/KeptParts.h"

#include "desktop/controls/Controls.h"
#include "desktop/controls/QtText.h"
#include "model/AnswerLetters.h"
#include "model/QuestionKinds.h"
#include "platform/texts/VersionTexts.h"
#include "text/MessageText.h"
#include "text/NumberText.h"
#include "versions/folder/VersionReport.h"

#include <QHeaderView>
#include <QSignalBlocker>

#include <algorithm>

namespace quorvantis {
namespace {

enum Column { kWhat, kWhy, kKeptColumns };

/// Of an option's item: 0 for A to 4 for E.
constexpr int kOptionRole = Qt::UserRole;

constexpr qsizetype kLongestLine = 120;  // units
constexpr int kWidestReason = 30;        // characters of a usual width; the rest is in the tool tip

QString FirstLine(std::u16string_view text) {
  return ToQString(text).left(kLongestLine).simplified();
}

QTreeWidgetItem* AddItem(QTreeWidgetItem* item, const QString& what) {
  item->setText(kWhat, what);
  item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
  item->setCheckState(kWhat, Qt::Unchecked);
  return item;
}

}  // namespace

KeptParts::KeptParts(const ExamPaper& exam, int questionCount, const StringTable& strings, QWidget* parent)
    : QTreeWidget(parent), strings_(strings) {
  const QString heading = ToQString(strings.Text(text_id::kVersionsKept));
  NameControl(this, "versionKept", heading);
  setColumnCount(kKeptColumns);
  setHeaderLabels({heading, {}});
  setUniformRowHeights(true);
  setTabKeyNavigation(false);
  header()->setStretchLastSection(false);
  header()->setSectionResizeMode(kWhat, QHeaderView::Stretch);
  for (int number = 1; number <= questionCount; ++number) AddQuestion(exam.Question(number), number);
  connect(this, &QTreeWidget::itemChanged, this, [this](QTreeWidgetItem*, int column) {
    if (column == kWhat) emit Changed();
  });
}

void KeptParts::AddQuestion(const ExamQuestion& question, int number) {
  const std::u16string row = FillMessage(strings_.Text(text_id::kVersionsQuestionRow),
                                         {FormatInteger(number), FromQString(FirstLine(question.text))});
  QTreeWidgetItem* const item = AddItem(new QTreeWidgetItem(this), ToQString(row));
  if (!AnswerOf(question.kind).options) return;
  for (std::size_t i = 0; i < kOptionCount; ++i) {
    if (question.options[i].empty()) continue;
    const QString letter(QChar(OptionLetter(i)));
    AddItem(new QTreeWidgetItem(item), letter + QStringLiteral(". ") + FirstLine(question.options[i]))
        ->setData(kWhat, kOptionRole, static_cast<int>(i));
  }
}

TeacherPins KeptParts::Pins() const {
  TeacherPins pins;
  for (int i = 0; i < topLevelItemCount(); ++i) {
    const QTreeWidgetItem* const question = topLevelItem(i);
    if (question->checkState(kWhat) == Qt::Checked) pins.questions.insert(i + 1);
    for (int j = 0; j < question->childCount(); ++j) {
      const QTreeWidgetItem* const option = question->child(j);
      if (option->checkState(kWhat) == Qt::Checked)
        pins.options.insert({i + 1, static_cast<std::size_t>(option->data(kWhat, kOptionRole).toInt())});
    }
  }
  return pins;
}

void KeptParts::ShowPins(const TeacherPins& pins) {
  const QSignalBlocker quiet(this);
  const auto tick = [](QTreeWidgetItem* item, bool isKept) {
    item->setCheckState(kWhat, isKept ? Qt::Checked : Qt::Unchecked);
  };
  for (int i = 0; i < topLevelItemCount(); ++i) {
    QTreeWidgetItem* const question = topLevelItem(i);
    tick(question, pins.questions.contains(i + 1));
    bool hasKept = false;
    for (int j = 0; j < question->childCount(); ++j) {
      const int option = question->child(j)->data(kWhat, kOptionRole).toInt();
      const bool isKept = pins.options.contains({i + 1, static_cast<std::size_t>(option)});
      tick(question->child(j), isKept);
      hasKept = hasKept || isKept;
    }
    if (hasKept) question->setExpanded(true);
  }
}

/// That of the question if the part is not listed by itself.
QTreeWidgetItem* KeptParts::ItemOf(const PinnedPart& part) const {
  QTreeWidgetItem* const question = topLevelItem(part.question - 1);
  if (question == nullptr || !part.option) return question;
  for (int j = 0; j < question->childCount(); ++j) {
    if (question->child(j)->data(kWhat, kOptionRole).toInt() == static_cast<int>(*part.option))
      return question->child(j);
  }
  return question;
}

void KeptParts::ShowReasons(const std::vector<PinnedPart>& pinned) {
  const QSignalBlocker quiet(this);
  for (int i = 0; i < topLevelItemCount(); ++i) {
    topLevelItem(i)->setText(kWhy, {});
    for (int j = 0; j < topLevelItem(i)->childCount(); ++j) topLevelItem(i)->child(j)->setText(kWhy, {});
  }
  for (const PinnedPart& part : pinned) {
    QTreeWidgetItem* const item = ItemOf(part);
    const bool isTeachers = part.reason == PinReason::Teacher || part.reason == PinReason::TeacherOption;
    if (item == nullptr || isTeachers) continue;
    const QString why = ToQString(PinText(part, strings_));
    item->setText(kWhy, item->text(kWhy).isEmpty() ? why : item->text(kWhy) + u' ' + why);
    item->setToolTip(kWhy, PlainTip(item->text(kWhy)));
    if (!saysWhy_ && item->parent() != nullptr) item->parent()->setExpanded(true);
  }
  resizeColumnToContents(kWhy);
  setColumnWidth(kWhy, std::min(columnWidth(kWhy), fontMetrics().averageCharWidth() * kWidestReason));
  saysWhy_ = true;
  viewport()->update();
}

}  // namespace quorvantis
