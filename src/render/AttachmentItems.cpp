// SPDX-License-Identifier: MIT
#include "render/AttachmentItems.h"

#include "model/MediaKinds.h"
#include "render/AttachmentPath.h"
#include "render/MediaPlayerScript.h"
#include "render/Template.h"
#include "text/PathText.h"

namespace quorvantis {
namespace {

constexpr Template<Text> kImage{
    uR"(<img src="%s" >)"
    uR"(</img><br>)"};

constexpr Template<int, int, Text> kDocument{
    uR"(<iframe width=%d height=%d src="%s" >)"
    uR"(</iframe><br>)"};
constexpr int kDocumentWidth = 690;
constexpr int kDocumentHeight = 350;

constexpr Template<Text> kFlash{
    uR"(<div align="Left">\r\n)"
    uR"(<embed src="%s" width="650" height="400">\r\n)"
    uR"(</div><br>\r\n)"};

}  // namespace

std::u16string ImageItem(std::u16string_view path) {
  return kImage(RelativeSource(path));
}

std::u16string DocumentItem(std::u16string_view path) {
  return kDocument(kDocumentWidth, kDocumentHeight, RelativeSource(path));
}

std::u16string FlashItem(std::u16string_view path) {
  return kFlash(RelativeSource(path));
}

std::u16string MediaItem(const ExamServices& services, std::u16string_view path, int autostart,
                         int muteVideo) {
  const std::u16string_view source = PlayerSource(path);
  return MediaPlayerScript(services, source, autostart, muteVideo == 1 && HasVideoExtension(source));
}

std::u16string AttachmentItem(const ExamServices& services, std::u16string_view path, int oralFlag) {
  const std::u16string extension = ExtensionOrNothing(path);
  if (IsFoundIn(kPictureExtensions, extension)) return ImageItem(path);
  if (IsFoundIn(kMediaExtensions, extension)) return MediaItem(services, path, 0, oralFlag);
  if (IsFoundIn(kDocumentExtensions, extension)) return DocumentItem(path);
  if (IsFoundIn(kFlashExtensions, extension)) return FlashItem(path);
  return MediaItem(services, path, 0, 0);
}

}  // namespace quorvantis
