// SPDX-License-Identifier: MIT
#pragma once

#include "platform/PixelGrid.h"
#include "platform/documents/MetafileImages.h"
#include "platform/documents/PicturePlace.h"
#include "platform/documents/ZipPackage.h"
#include "platform/programs/OfficeConverter.h"

#include <map>
#include <optional>
#include <string>
#include <vector>

namespace quorvantis {

/// The pictures of a package as pixels.
class DocumentPictures {
 public:
  /// The sources of `places` are names of parts. `package` outlives this.
  DocumentPictures(const ZipPackage& package, std::vector<PicturePlace> places, OfficeConverter converter);

  WordResult Decode(std::size_t picture, PixelGrid& pixels);

 private:
  WordResult DecodeMetafile(const std::string& part, PixelGrid& pixels);
  void DrawMetafiles();
  PackagePart Read(const std::string& part) const;

  const ZipPackage& package_;
  std::vector<PicturePlace> places_;
  OfficeConverter converter_;
  std::optional<MetafileImages> metafiles_;  ///< set once they have been drawn, with or without success
  std::map<std::string, std::size_t> metafileNumbers_;
  WordResult drawn_ = WordResult::Done;
};

}  // namespace quorvantis
