// SPDX-License-Identifier: MIT
#pragma once

#include "bank/search/BankSearch.h"
#include "desktop/bank/desk/BankExamNames.h"
#include "desktop/bank/desk/BankHitText.h"
#include "desktop/bank/hits/BankThumbnails.h"
#include "desktop/bank/tags/BankTagDesk.h"
#include "platform/StringTable.h"

#include <QAbstractListModel>

#include <vector>

namespace quorvantis {

/// "Biology, spring — 12, choice, 2024-05-12"; `exam` is the name of the exam.
QString BankHeading(const QString& exam, const BankQuestion& question, const StringTable& strings);

/// The questions that a search of the bank has found, the best first.
class BankHitsModel : public QAbstractListModel {
  Q_OBJECT

 public:
  /// What a row shows beside its whole text, which is its DisplayRole.
  enum Role { HeadingRole = Qt::UserRole, ExcerptRole, MarksRole, HasPictureRole, PictureRole };

  /// `strings` must outlive the model.
  BankHitsModel(const StringTable& strings, QObject* parent)
      : QAbstractListModel(parent), strings_(strings) {}

  void Show(std::vector<BankHit> hits);
  /// Rows have the pictures of `thumbnails`, which must outlive the last use of the model.
  void ShowPicturesOf(BankThumbnails& thumbnails);
  /// Tags that have changed since.
  void ShowTags(const std::vector<TagsNow>& now);
  const BankHit& HitAt(int row) const { return hits_.at(static_cast<std::size_t>(row)); }

  /// "Biology, spring — 12, choice, 2 files · cells, class:8b".
  QString HeadingOf(const BankHit& hit) const;

  int rowCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  Qt::ItemFlags flags(const QModelIndex& index) const override;

 private:
  const StringTable& strings_;
  std::vector<BankHit> hits_;
  BankExamNames names_;
  std::vector<BankHitText> excerpts_;  ///< one a hit
  BankThumbnails* thumbnails_ = nullptr;
};

/// Qt's values hold marks as numbers: begin and length of each.
QVariant MarksToVariant(const std::vector<TextSpan>& marks);
std::vector<TextSpan> MarksFromVariant(const QVariant& marks);

}  // namespace quorvantis
