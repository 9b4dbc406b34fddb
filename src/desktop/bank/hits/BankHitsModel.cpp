// SPDX-License-Identifier: MIT
#include "desktop/bank/hits/BankHitsModel.h"

#include "desktop/bank/desk/BankExamCaption.h"
#include "desktop/controls/KindCaption.h"
#include "desktop/controls/QtText.h"
#include "platform/texts/BankTexts.h"
#include "text/MessageText.h"
#include "text/NumberText.h"

#include <algorithm>
#include <utility>

namespace quorvantis {
namespace {

/// Behind a heading; each tag in its own direction.
QString TagsOf(const BankHit& hit) {
  QStringList tags;
  for (const std::u16string& tag : hit.tags) tags.append(QChar(0x2068) + ToQString(tag) + QChar(0x2069));
  return tags.isEmpty() ? QString() : QString(" \u00B7 ") + tags.join(", ");
}

}  // namespace

void BankHitsModel::Show(std::vector<BankHit> hits) {
  if (thumbnails_ != nullptr) thumbnails_->TryAgain();
  beginResetModel();
  hits_ = std::move(hits);
  excerpts_.clear();
  excerpts_.reserve(hits_.size());
  std::vector<const BankExam*> exams;
  exams.reserve(hits_.size());
  for (const BankHit& hit : hits_) {
    excerpts_.push_back(ExcerptOf(hit));
    exams.push_back(&hit.question.exam);
  }
  names_ = BankExamNames(exams, strings_);
  endResetModel();
}

/// Only rows that are in view are painted again.
void BankHitsModel::ShowPicturesOf(BankThumbnails& thumbnails) {
  thumbnails_ = &thumbnails;
  connect(&thumbnails, &BankThumbnails::Came, this, [this] {
    if (!hits_.empty()) emit dataChanged(index(0), index(rowCount() - 1), {PictureRole});
  });
}

QString BankHeading(const QString& exam, const BankQuestion& question, const StringTable& strings) {
  const std::u16string kind = FromQString(KindCaption(question.kind, strings));
  return ToQString(FillMessage(
      strings.Text(text_id::kBankHeading),
      {FromQString(exam), FormatInteger(question.number), kind, FromQString(BankExamDay(question.exam))}));
}

QString BankHitsModel::HeadingOf(const BankHit& hit) const {
  return BankHeading(names_.Of(hit.question.exam), hit.question, strings_) + TagsOf(hit);
}

void BankHitsModel::ShowTags(const std::vector<TagsNow>& now) {
  for (std::size_t row = 0; row < hits_.size(); ++row) {
    const BankQuestion& question = hits_[row].question;
    const auto last = std::find_if(now.rbegin(), now.rend(), [&question](const TagsNow& each) {
      return each.key == question.key && each.folder == question.exam.path.parent_path();
    });
    if (last == now.rend()) continue;
    hits_[row].tags = last->tags;
    emit dataChanged(index(static_cast<int>(row)), index(static_cast<int>(row)));
  }
}

int BankHitsModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(hits_.size());
}

QVariant BankHitsModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid() || index.row() >= rowCount()) return {};
  const auto row = static_cast<std::size_t>(index.row());
  switch (role) {
    case Qt::DisplayRole:
      return QString(HeadingOf(hits_[row]) + ": " + ToQString(excerpts_[row].text));
    case Qt::ToolTipRole:
      return PathToQString(hits_[row].question.exam.path);
    case HeadingRole:
      return HeadingOf(hits_[row]);
    case ExcerptRole:
      return ToQString(excerpts_[row].text);
    case MarksRole:
      return MarksToVariant(excerpts_[row].marks);
    case HasPictureRole:
      return thumbnails_ != nullptr && BankThumbnails::HasPicture(hits_[row].question);
    case PictureRole:
      return thumbnails_ != nullptr ? thumbnails_->Of(hits_[row].question) : QImage();
    default:
      return {};
  }
}

Qt::ItemFlags BankHitsModel::flags(const QModelIndex& index) const {
  return QAbstractListModel::flags(index) | (index.isValid() ? Qt::ItemIsDragEnabled : Qt::NoItemFlags);
}

QVariant MarksToVariant(const std::vector<TextSpan>& marks) {
  QVariantList numbers;
  for (const TextSpan& mark : marks) numbers << static_cast<int>(mark.begin) << static_cast<int>(mark.Size());
  return numbers;
}

std::vector<TextSpan> MarksFromVariant(const QVariant& marks) {
  const QVariantList numbers = marks.toList();
  std::vector<TextSpan> spans;
  for (qsizetype i = 0; i + 1 < numbers.size(); i += 2) {
    const auto begin = static_cast<std::size_t>(numbers[i].toInt());
    spans.push_back({begin, begin + static_cast<std::size_t>(numbers[i + 1].toInt())});
  }
  return spans;
}

}  // namespace quorvantis
