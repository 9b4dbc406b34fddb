// SPDX-License-Identifier: MIT
#include "platform/office/DocumentPictures.h"

#include "platform/office/PictureDecoder.h"

#include <utility>

namespace quorvantis {
namespace {

constexpr std::size_t kMostPictureBytes = std::size_t{64} << 20;

}  // namespace

DocumentPictures::DocumentPictures(const ZipPackage& package, std::vector<std::string> parts,
                                   OfficeConverter converter)
    : package_(package), parts_(std::move(parts)), converter_(std::move(converter)) {}

WordResult DocumentPictures::Decode(std::size_t picture, PixelGrid& pixels) {
  if (picture >= parts_.size() || parts_[picture].empty()) return WordResult::NotFound;
  const PackagePart part = Read(parts_[picture]);
  if (part.result != WordResult::Done) return part.result;
  const auto format = PictureFormat::Of(part.bytes);
  if (!format) return WordResult::UnknownFormat;
  return format->IsMetafile() ? DecodeMetafile(parts_[picture], pixels)
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

/// All at once: most of the time goes into the start of the program.
void DocumentPictures::DrawMetafiles() {
  metafiles_.emplace();
  for (const std::string& part : parts_) {
    if (part.empty() || metafileNumbers_.contains(part) || metafiles_->IsFull()) continue;
    const PackagePart picture = Read(part);
    const auto format = PictureFormat::Of(picture.bytes);
    if (format && format->IsMetafile()) metafileNumbers_[part] = metafiles_->Add(*format, picture.bytes);
  }
  drawn_ = metafiles_->Draw(converter_);
}

PackagePart DocumentPictures::Read(const std::string& part) const {
  return package_.Read(part, kMostPictureBytes);
}

}  // namespace quorvantis
