// SPDX-License-Identifier: MIT
#include "desktop/bank/hits/BankThumbnails.h"

#include "desktop/bank/hits/ThumbnailDecoder.h"
#include "examfile/ExamFileReader.h"
#include "examfile/PickedFiles.h"
#include "model/FileKinds.h"
#include "model/document/FrameSetExam.h"
#include "model/document/ServicesWith.h"
#include "platform/QuietProgress.h"
#include "text/PathText.h"

#include <QCryptographicHash>

#include <algorithm>
#include <memory>

namespace quorvantis {
namespace {

constexpr std::int64_t kLargestPicture = std::int64_t{16} << 20;  // bytes
constexpr std::size_t kReadTogether = 4;                          // pictures of one exam
constexpr std::size_t kMostWishes = 60;                           // more than a tall screen has rows
constexpr qsizetype kKnownBytes = qsizetype{24} << 20;
constexpr qsizetype kBytesOfNone = 100;  // of what is known not to be shown

QByteArray KeyOf(const std::string& hash) {
  return QByteArray::fromStdString(hash);
}

std::string HashOf(std::string_view bytes) {
  const auto data = QByteArray::fromRawData(bytes.data(), static_cast<qsizetype>(bytes.size()));
  return QCryptographicHash::hash(data, QCryptographicHash::Sha256).toHex().toStdString();
}

}  // namespace

BankThumbnails::BankThumbnails(const ExamServices& services, QObject* parent)
    : QObject(parent), services_(services), known_(kKnownBytes), reading_(nullptr) {}

BankThumbnails::~BankThumbnails() {
  reading_.Drop();
}

/// The same content may be readable elsewhere.
QByteArray BankThumbnails::PlaceOf(const Wish& wish) {
  return KeyOf(wish.hash) + QByteArray::fromStdString(wish.exam.native());
}

std::optional<unsigned> BankThumbnails::PictureOf(const BankQuestion& question) {
  for (unsigned slot = 0; slot < question.files.size(); ++slot) {
    const IndexedFile& file = question.files[slot];
    const FileKindRow& kind = FileKindOf(ExtensionOrNothing(file.name));
    const bool isDrawing = kind.extension == u"svg";
    if (kind.kind == FileKind::Picture && !isDrawing && file.size > 0 && file.size <= kLargestPicture)
      return slot;
  }
  return std::nullopt;
}

QImage BankThumbnails::Of(const BankQuestion& question) {
  const std::optional<unsigned> slot = PictureOf(question);
  if (!slot) return {};
  Wish wish{question.exam.path, question.number, *slot, question.files[*slot].hash};
  if (const QImage* const known = known_.object(KeyOf(wish.hash))) return *known;
  if (!notRead_.contains(PlaceOf(wish))) AddWish(std::move(wish));
  return {};
}

void BankThumbnails::AddWish(Wish wish) {
  const auto isSame = [&wish](const Wish& other) { return other.hash == wish.hash; };
  if (std::any_of(beingRead_.begin(), beingRead_.end(), isSame)) return;
  wishes_.erase(std::remove_if(wishes_.begin(), wishes_.end(), isSame), wishes_.end());
  wishes_.push_back(std::move(wish));
  if (wishes_.size() > kMostWishes) wishes_.pop_front();
  if (!reading_.IsRunning()) ReadNext();
}

/// The newest, and others that its exam file has.
std::vector<BankThumbnails::Wish> BankThumbnails::NextWishes() {
  std::vector<Wish> next;
  next.reserve(kReadTogether);
  for (auto wish = wishes_.rbegin(); wish != wishes_.rend() && next.size() < kReadTogether; ++wish) {
    if (next.empty() || wish->exam == next.front().exam) next.push_back(*wish);
  }
  const auto isTaken = [&next](const Wish& wish) {
    return std::any_of(next.begin(), next.end(), [&](const Wish& taken) { return taken.hash == wish.hash; });
  };
  wishes_.erase(std::remove_if(wishes_.begin(), wishes_.end(), isTaken), wishes_.end());
  return next;
}

void BankThumbnails::ReadNext() {
  beingRead_ = NextWishes();
  if (beingRead_.empty()) return;
  reading_.Start([this, wishes = beingRead_](const BackgroundRun::Cancelled& isCancelled) {
    const auto pictures = std::make_shared<const Pictures>(Read(services_, wishes, isCancelled));
    return BackgroundRun::Finish([this, pictures] {
      for (const auto& [wish, picture] : *pictures) {
        if (!picture)
          notRead_.insert(PlaceOf(wish));
        else
          known_.insert(KeyOf(wish.hash), new QImage(*picture), picture->sizeInBytes() + kBytesOfNone);
      }
      ReadNext();
      emit Came();
    });
  });
}

/// A file with other content than the index says is not what its row is about; nothing is shown for it.
BankThumbnails::Pictures BankThumbnails::Read(const ExamServices& services, const std::vector<Wish>& wishes,
                                              const BackgroundRun::Cancelled& isCancelled) {
  PickedFiles files(
      [&wishes](const PickedFiles::Place& place, const std::u16string&) {
        return std::any_of(wishes.begin(), wishes.end(), [&place](const Wish& wish) {
          return place == PickedFiles::Place(wish.question, wish.slot);
        });
      },
      kLargestPicture * static_cast<std::int64_t>(kReadTogether));
  QuietProgress progress;
  ExamServices own = ServicesWith(services, progress);
  FrameSetExam exam(own);
  ReadWithoutUnpacking(exam, own, wishes.front().exam, files);
  Pictures pictures;
  pictures.reserve(wishes.size());
  for (const Wish& wish : wishes) {
    const auto content = files.Contents().find({wish.question, wish.slot});
    const bool isIt =
        content != files.Contents().end() && !isCancelled() && HashOf(content->second) == wish.hash;
    pictures.emplace_back(wish, isIt ? std::optional(DecodeThumbnail(content->second)) : std::nullopt);
  }
  return pictures;
}

}  // namespace quorvantis
