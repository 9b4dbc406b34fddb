// SPDX-License-Identifier: MIT
#include "desktop/studio/QuestionListModel.h"

#include "desktop/controls/QtText.h"
#include "platform/texts/OverviewTexts.h"
#include "platform/texts/ProgramTexts.h"
#include "platform/texts/StudioTexts.h"
#include "text/MessageText.h"
#include "text/NumberText.h"

#include <QLocale>

#include <algorithm>
#include <iterator>

namespace quorvantis {
namespace {

constexpr qsizetype kLongestCell = 300;  // UTF-16 units
constexpr int kStudioHeadings[] = {text_id::kColumnNumber,  text_id::kColumnKind, text_id::kColumnText,
                                   text_id::kColumnOptions, text_id::kColumnKey,  text_id::kColumnNotes};
static_assert(std::size(kStudioHeadings) == QuestionListModel::kColumns);

/// In one line, if `between` is no line break.
QString Tidy(const std::u16string& text, QChar between) {
  QString line = ToQString(text).trimmed();
  if (between != u'\n') line = line.left(kLongestCell).simplified();
  return line;
}

QString OptionsOf(const ReadQuestion& question, QChar between) {
  QStringList options;
  for (std::size_t i = 0; i < kOptionCount; ++i) {
    if (!question.options[i].empty())
      options.push_back(QChar(u'A' + static_cast<char16_t>(i)) + QStringLiteral("  ") +
                        Tidy(question.options[i], between));
  }
  return options.join(between == u'\n' ? QStringLiteral("\n") : QStringLiteral("   "));
}

QString KeyText(const ReadQuestion& question, QChar between) {
  const bool hasLetters = question.kind == ReadKind::Choice || question.kind == ReadKind::TrueFalse;
  return hasLetters ? ToQString(question.letters) : Tidy(question.answer, between);
}

}  // namespace

QuestionListModel::QuestionListModel(const StringTable& strings, QObject* parent)
    : QAbstractTableModel(parent), strings_(strings) {}

void QuestionListModel::ShowStudy(const PaperStudy* study) {
  beginResetModel();
  study_ = study;
  endResetModel();
}

void QuestionListModel::SetNumbers(int first, int count) {
  if (first == first_ && count == count_) return;
  first_ = first;
  count_ = count;
  if (rowCount() > 0) emit dataChanged(index(0, Number), index(rowCount() - 1, Notes));
}

int QuestionListModel::rowCount(const QModelIndex& parent) const {
  if (parent.isValid() || study_ == nullptr) return 0;
  return static_cast<int>(study_->Reading().paper.questions.size());
}

int QuestionListModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(kColumns);
}

QString QuestionListModel::KindText(ReadKind kind) const {
  switch (kind) {
    case ReadKind::FillIn:
      return ToQString(strings_.Text(text_id::kFillIn));
    case ReadKind::Essay:
      return ToQString(strings_.Text(text_id::kEssay));
    default:
      return ToQString(strings_.Text(text_id::kChoice));
  }
}

/// A dash where the exam has no room for the question.
QString QuestionListModel::NumberText(int row) const {
  return row < count_ ? QString::number(first_ + row) : QStringLiteral("\u2013");
}

QStringList QuestionListModel::NotesOf(int row) const {
  const auto& warnings = study_->Warnings();
  const auto [begin, end] = std::equal_range(
      warnings.begin(), warnings.end(), ReadingWarning{ReadingWarning::Kind::NoKey, row},
      [](const ReadingWarning& a, const ReadingWarning& b) { return a.question < b.question; });
  QStringList notes;
  for (auto warning = begin; warning != end; ++warning)
    notes.push_back(QStringLiteral("\u26A0 ") + ToQString(WarningText(*warning, strings_, first_)));
  return notes;
}

QString QuestionListModel::CellText(int row, int column, QChar between) const {
  const ReadQuestion& question = study_->Reading().paper.questions[static_cast<std::size_t>(row)];
  switch (column) {
    case Number:
      return NumberText(row);
    case Kind:
      return KindText(question.kind);
    case Text:
      return Tidy(question.text, between);
    case Options:
      return OptionsOf(question, between);
    case Key:
      return KeyText(question, between);
    case Notes:
      return NotesOf(row).join(between == u'\n' ? QStringLiteral("\n") : QStringLiteral("  "));
    default:
      return {};
  }
}

QVariant QuestionListModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid() || index.row() >= rowCount()) return {};
  switch (role) {
    case Qt::DisplayRole:
      return CellText(index.row(), index.column(), u' ');
    case Qt::ToolTipRole:
      return CellText(index.row(), index.column(), u'\n').toHtmlEscaped().replace('\n', "<br>");
    case Qt::AccessibleTextRole: {
      const QString heading = headerData(index.column(), Qt::Horizontal, Qt::DisplayRole).toString();
      const QString cell = CellText(index.row(), index.column(), u' ');
      return ToQString(
          FillMessage(strings_.Text(text_id::kCellOfQuestion),
                      {FromQString(NumberText(index.row())), FromQString(heading), FromQString(cell)}));
    }
    case Qt::TextAlignmentRole:
      return QVariant(Qt::AlignVCenter | (index.column() == Number ? Qt::AlignHCenter : Qt::AlignLeft));
    default:
      return {};
  }
}

QVariant QuestionListModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || section < 0 || section >= kColumns) return {};
  if (role == Qt::DisplayRole) return ToQString(strings_.Text(kStudioHeadings[section]));
  if (role == Qt::TextAlignmentRole) return QVariant(Qt::AlignVCenter | Qt::AlignLeft);
  return {};
}

}  // namespace quorvantis
