// SPDX-License-Identifier: MIT
#include "render/AttachmentPane.h"

#include "model/MediaKinds.h"
#include "model/document/ExamServices.h"
#include "render/AttachmentItems.h"
#include "render/AttachmentPath.h"
#include "render/PageFile.h"
#include "render/PageHead.h"
#include "render/PreviewPaths.h"
#include "text/PathText.h"

#include <algorithm>

namespace quorvantis {
namespace {

constexpr int kDocumentFrame = 1;
constexpr int kGroupFrame = 2;

constexpr Template<> kRowsStart{uR"(<FRAMESET  ROWS=")"};
constexpr Template<int> kRow{uR"(%d%%,)"};
constexpr Template<int> kLastRow{uR"(%d%%">\r\n)"};
constexpr Template<> kOneRow{uR"(<FRAMESET ROWS="*">\r\n)"};
constexpr Template<Text> kFrame{uR"(<FRAME  SRC="%s">\r\n)"};
constexpr Template<> kRowsEnd{uR"(</FRAMESET>\r\n)"};

enum class PaneClass { Document, Picture, Media, Other };

PaneClass ClassOf(std::u16string_view path) {
  const std::u16string extension = ExtensionOrPath(path);
  if (IsOneOf(kDocumentExtensions, extension)) return PaneClass::Document;
  if (IsOneOf(kPictureExtensions, extension) || IsOneOf(kFlashExtensions, extension))
    return PaneClass::Picture;
  return IsOneOf(kMediaExtensions, extension) ? PaneClass::Media : PaneClass::Other;
}

/// Deliberate: inside the pane newer documents ("docx") get no item.
constexpr Text kPaneDocumentExtensions = u"doc,ppt,xls,txt";

/// The heights of the frames in whole percent; the last takes the rest.
std::u16string Rows(int frames) {
  const int percent = 100 / frames;
  std::u16string html = kRowsStart();
  for (int frame = 1; frame < frames; ++frame) html += kRow(percent);
  return html + kLastRow(100 - (frames - 1) * percent);
}

}  // namespace

std::u16string FrameLine(std::u16string_view file) {
  return kFrame(RelativeSource(file));
}

AttachmentPane::AttachmentPane(FrameSetExam& exam) : exam_(exam), writer_(exam.attachmentPageWriter) {
  const auto& paths = exam.examAttachmentPaths;
  const auto firstEmpty = std::ranges::find_if(paths, [](const auto& path) { return path.empty(); });
  count_ = static_cast<std::size_t>(firstEmpty - paths.begin());
}

void AttachmentPane::WriteAttachmentPane(const std::filesystem::path& page) {
  PageFile file(page, exam_.Services().pages);
  std::u16string text = kHeadWithEncoding();
  const int frames = CountFrames();
  if (frames >= 2) text += Rows(frames);
  writer_.locationMode = exam_.locationMode;
  text += BuildPaneBody(frames);
  file.WriteUtf8(text + kPageEnd());
}

int AttachmentPane::CountFrames() {
  int count = 0;
  bool groupOpen = false;
  for (std::size_t slot = 0; slot < count_; ++slot) {
    const PaneClass paneClass = ClassOf(Path(slot));
    if (paneClass == PaneClass::Document) {
      if (groupOpen) writer_.FrameKind(++count) = kGroupFrame;
      groupOpen = false;
      writer_.FrameKind(++count) = kDocumentFrame;
      exam_.examAttachmentTypes[slot] = count;
    } else if (paneClass == PaneClass::Picture ||
               (paneClass == PaneClass::Media && writer_.mediaSuppressed == 0)) {
      exam_.examAttachmentTypes[slot] = count + 1;
      groupOpen = true;
    }
  }
  if (count >= 1 && groupOpen) writer_.FrameKind(++count) = kGroupFrame;
  return count;
}

std::u16string AttachmentPane::BuildPaneBody(int frames) {
  if (frames == 0) return kBodyStart() + PaneItems(0) + kBodyEnd();
  if (frames == 1) return kOneRow() + SingleFrame() + kRowsEnd();
  std::u16string body;
  for (int frame = 1; frame <= frames; ++frame) {
    if (writer_.FrameKind(frame) == kDocumentFrame) body += FrameLine(Path(FindAttachmentOfFrame(frame)));
    if (writer_.FrameKind(frame) == kGroupFrame) body += GroupPage(frame);
  }
  return body + kRowsEnd();
}

/// The first file that is not media, of whatever class. Deliberately not the document that the frame was
/// counted for: exams with another file before their only document have always looked like this.
std::u16string AttachmentPane::SingleFrame() const {
  for (std::size_t slot = 0; slot < count_; ++slot) {
    const std::u16string path = Path(slot);
    if (!IsFoundIn(kMediaExtensions, ExtensionOrPath(path))) return FrameLine(path);
  }
  return {};
}

/// The first slot, empty ones included, with that frame; slot 0 when there is none.
std::size_t AttachmentPane::FindAttachmentOfFrame(int frame) const {
  const auto& types = exam_.examAttachmentTypes;
  const auto found = std::ranges::find(types, frame);
  return found == types.end() ? 0 : static_cast<std::size_t>(found - types.begin());
}

std::u16string AttachmentPane::PaneItem(const std::u16string& path) const {
  const std::u16string extension = ExtensionOrNothing(path);
  if (IsFoundIn(kPictureExtensions, extension)) return ImageItem(path);
  if (IsFoundIn(kMediaExtensions, extension)) {
    return writer_.mediaSuppressed == 0 ? MediaItem(exam_.Services(), path, 0, 0) : std::u16string();
  }
  if (IsFoundIn(kPaneDocumentExtensions, extension)) return DocumentItem(path);
  return IsFoundIn(kFlashExtensions, extension) ? FlashItem(path) : std::u16string();
}

/// The items of the files in frame k + 1.
std::u16string AttachmentPane::PaneItems(int k) const {
  std::u16string items;
  for (std::size_t slot = 0; slot < count_; ++slot) {
    if (exam_.examAttachmentTypes[slot] == k + 1) items += PaneItem(Path(slot));
  }
  return items;
}

/// Writes the page of a group and returns its frame line, with the full path of the page.
std::u16string AttachmentPane::GroupPage(int frame) {
  const ExamServices& services = exam_.Services();
  const std::filesystem::path page = GroupPageFile(writer_, services.applicationFolder, frame);
  std::error_code ignored;
  if (writer_.locationMode != 0) std::filesystem::create_directory(page.parent_path(), ignored);
  PageFile file(page, services.pages);
  file.WriteHalfUtf16(kHeadWithoutEncoding() + kBodyStart() + PaneItems(frame - 1) + kBodyEnd() + kPageEnd());
  services.pages.AddSource({PathToText(page), page, {}});
  return kFrame(PathToText(page));
}

}  // namespace quorvantis
