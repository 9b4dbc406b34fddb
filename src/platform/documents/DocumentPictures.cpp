// SPDX-License-Identifier: MIT
#include "platform/documents/DocumentPictures.h"

#include "platform/documents/Gunzip.h"
#include "platform/documents/PictureDecoder.h"

#include <utility>

namespace quorvantis {
namespace {

constexpr std::size_t kMostPictureBytes = std::size_t{64} << 20;

/// Metafiles in older documents do not state their size, so that of their place counts.
PictureFormat WithSize(PictureFormat format, const PicturePlace& place) {
  if (format.width != 0 && format.height != 0) return format;
  return {format.kind, place.width, place.height};
}

}  // namespace

DocumentPictures::DocumentPictures(const ZipPackage& package, std::vector<PicturePlace> places,
                                   OfficeConverter converter)
    : package_(package), places_(std::move(places)), converter_(std::move(converter)) {}

WordResult DocumentPictures::Decode(std::size_t picture, PixelGrid& pixels) {
  if (picture >= places_.size() || places_[picture].source.empty()) return WordResult::NotFound;
  const PackagePart part = Read(places_[picture].source);
  if (part.result != WordResult::Done) return part.result;
  const auto format = PictureFormat::Of(part.bytes);
  if (!format) return WordResult::UnknownFormat;
  return format->IsMetafile() ? DecodeMetafile(places_[picture].source, pixels)
                              : DecodePicture(*format, part.bytes, pixels);
}

WordResult DocumentPictures::DecodeMetafile(const std::string& part, PixelGrid& pixels) {
  if (!metafiles_) DrawMetafiles();
  const auto number = metafileNumbers_.find(part);
  if (number == metafileNumbers_.end()) return WordResult::TooLarge;
  if (drawn_ != WordResult::Done) return drawn_;
  const std::string image = metafiles_->Bytes(number->second);
  const auto format = PictureFormat::Of(image);
  return format ? DecodePicture(*format, image, pixels) : WordResult::Damaged;
}

/// All at once: starting the program takes most of the time.
void DocumentPictures::DrawMetafiles() {
  metafiles_.emplace();
  for (const PicturePlace& place : places_) {
    if (place.source.empty() || metafileNumbers_.contains(place.source) || metafiles_->IsFull()) continue;
    const PackagePart picture = Read(place.source);
    const auto format = PictureFormat::Of(picture.bytes);
    if (!format || !format->IsMetafile()) continue;
    metafileNumbers_[place.source] = metafiles_->Add(WithSize(*format, place), picture.bytes);
  }
  drawn_ = metafiles_->Draw(converter_);
}

PackagePart DocumentPictures::Read(const std::string& part) const {
  return Gunzip(package_.Read(part, kMostPictureBytes), kMostPictureBytes);
}

}  // namespace quorvantis
