// SPDX-License-Identifier: MIT
#include "desktop/check/FindingsModel.h"

#include "check/CheckedExam.h"
#include "desktop/check/SeverityLook.h"
#include "desktop/controls/Controls.h"
#include "desktop/controls/QtText.h"
#include "platform/texts/CheckTexts.h"
#include "text/MessageText.h"
#include "text/NumberText.h"

namespace quorvantis {
namespace {

enum FindingRole { kFindingRole = Qt::UserRole, kQuestionRole };

QString BeginningOf(std::u16string_view text) {
  constexpr qsizetype kLongest = 80;
  const std::u16string_view begin = WithoutBlanks(text);
  const QString line = ToQString(begin.substr(0, begin.find_first_of(u"\r\n"))).simplified();
  return line.size() > kLongest ? line.left(kLongest - 1) + QChar(u'\u2026') : line;
}

}  // namespace

FindingsModel::FindingsModel(const StringTable& strings, const QWidget& look, QObject* parent)
    : QStandardItemModel(0, kColumns, parent), strings_(strings), look_(look) {
  setHorizontalHeaderLabels({ToQString(strings.Text(text_id::kCheckColumnFinding)),
                             ToQString(strings.Text(text_id::kCheckColumnSeverity))});
}

void FindingsModel::Show(const ExamChecker& checker, bool withIgnored) {
  removeRows(0, rowCount());
  QStandardItem* branch = nullptr;
  for (std::size_t i = 0; i < checker.Findings().size(); ++i) {
    const ShownFinding& shown = checker.Findings()[i];
    if (shown.isIgnored && !withIgnored) continue;
    const int question = shown.finding.place.question;
    const bool isNew = branch == nullptr || branch->data(kQuestionRole).toInt() != question;
    if (isNew) branch = AddBranch(checker, question);
    AddRow(*branch, shown, i);
  }
}

QStandardItem* FindingsModel::AddBranch(const ExamChecker& checker, int question) {
  QString caption = ToQString(strings_.Text(text_id::kCheckWholeExam));
  if (question != 0) {
    caption = ToQString(FillMessage(strings_.Text(text_id::kCheckQuestion), {FormatInteger(question)}));
    const QString beginning = BeginningOf(checker.Checked()->Question(question).text);
    // In its own direction: it may be in another language than the window.
    if (!beginning.isEmpty()) caption += ": " + QString(QChar(0x2068)) + beginning + QChar(0x2069);
  }
  auto* branch = new QStandardItem(caption);
  branch->setData(question, kQuestionRole);
  branch->setEditable(false);
  QFont bold = branch->font();
  bold.setBold(true);
  branch->setFont(bold);
  appendRow(branch);
  return branch;
}

void FindingsModel::AddRow(QStandardItem& branch, const ShownFinding& shown, std::size_t index) {
  const Finding& finding = shown.finding;
  QString word = SeverityWord(finding.severity, strings_);
  if (shown.isIgnored) word += ", " + ToQString(strings_.Text(text_id::kCheckIgnored));
  const QString text = ToQString(finding.text);
  auto* what = new QStandardItem(SeverityIcon(finding.severity, look_), text);
  auto* severity = new QStandardItem(word);
  what->setData(word + ": " + text, Qt::AccessibleTextRole);
  what->setToolTip(
      PlainTip(text + "\n[" +
               QString::fromUtf8(finding.rule.data(), static_cast<qsizetype>(finding.rule.size())) + "]"));
  for (QStandardItem* item : {what, severity}) {
    item->setData(static_cast<qulonglong>(index), kFindingRole);
    item->setData(finding.place.question, kQuestionRole);
    item->setEditable(false);
  }
  branch.appendRow({what, severity});
}

std::optional<std::size_t> FindingsModel::FindingOf(const QModelIndex& index) {
  const QVariant finding = index.data(kFindingRole);
  return finding.isValid() ? std::optional(static_cast<std::size_t>(finding.toULongLong())) : std::nullopt;
}

int FindingsModel::QuestionOf(const QModelIndex& index) {
  return index.data(kQuestionRole).toInt();
}

QModelIndex FindingsModel::RowOf(std::size_t finding) const {
  for (int branch = 0; branch < rowCount(); ++branch) {
    const QModelIndex parent = index(branch, kFinding);
    for (int row = 0; row < rowCount(parent); ++row) {
      const QModelIndex child = index(row, kFinding, parent);
      if (FindingOf(child) == finding) return child;
    }
  }
  return {};
}

}  // namespace quorvantis
