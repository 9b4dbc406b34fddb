// SPDX-License-Identifier: MIT
#pragma once

#include "bank/search/BankSearch.h"
#include "desktop/controls/BackgroundRun.h"
#include "model/document/ExamServices.h"

#include <QCache>
#include <QImage>
#include <QObject>
#include <QSet>

#include <deque>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace quorvantis {

/// Small pictures of questions of the bank, for lists. They are read from the exam files on another thread,
/// the newest wish first, and known by their content. What is wished for while much else is waited for may be
/// forgotten; it is wished for again when its row is painted.
class BankThumbnails : public QObject {
  Q_OBJECT

 public:
  /// `services` must outlive this.
  BankThumbnails(const ExamServices& services, QObject* parent);
  ~BankThumbnails() override;

  /// Whether the first picture of the question can be shown, by its name and its size.
  static bool HasPicture(const BankQuestion& question) { return PictureOf(question).has_value(); }

  /// The first picture of the question; null if it has none, if it cannot be shown, and until it has been
  /// read.
  QImage Of(const BankQuestion& question);

  /// What could not be read may be there again.
  void TryAgain() { notRead_.clear(); }

 signals:
  /// Some that were wished for have been read.
  void Came();

 private:
  struct Wish {
    std::filesystem::path exam;
    int question = 0;
    unsigned slot = 0;
    std::string hash;
  };
  /// A null picture cannot be shown; none could not be read.
  using Pictures = std::vector<std::pair<Wish, std::optional<QImage>>>;

  static QByteArray PlaceOf(const Wish& wish);
  static std::optional<unsigned> PictureOf(const BankQuestion& question);
  static Pictures Read(const ExamServices& services, const std::vector<Wish>& wishes,
                       const BackgroundRun::Cancelled& isCancelled);
  void AddWish(Wish wish);
  void ReadNext();
  std::vector<Wish> NextWishes();

  const ExamServices& services_;
  QCache<QByteArray, QImage> known_;  ///< by hash; null pictures of files that cannot be shown
  QSet<QByteArray> notRead_;
  std::deque<Wish> wishes_;  ///< the newest last
  std::vector<Wish> beingRead_;
  BackgroundRun reading_;
};

}  // namespace quorvantis
