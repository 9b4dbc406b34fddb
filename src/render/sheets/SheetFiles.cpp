// SPDX-License-Identifier: MIT
#include "render/sheets/SheetFiles.h"

#include "model/FileKinds.h"
#include "model/MediaKinds.h"
#include "model/document/ExamServices.h"
#include "render/Template.h"
#include "render/sheets/SheetParts.h"
#include "text/HtmlEscape.h"
#include "text/PathText.h"
#include "text/Utf.h"

#include <filesystem>

namespace quorvantis {
namespace {

namespace fs = std::filesystem;

constexpr Template<Text, Text> kPicture{uR"(<div class="file"><img src="%s" data-name="%s"></div>)"};
constexpr Template<Text, Text> kDocument{
    uR"(<div class="file"><iframe width="650" height="350" src="%s" data-name="%s"></iframe></div>)"};
constexpr Template<Text> kOther{uR"(<div class="file"><bdi class="name">%s</bdi></div>)"};

bool IsPlainInAddress(unsigned char byte) {
  const auto lower = static_cast<unsigned char>(byte | 0x20U);
  return (lower >= 'a' && lower <= 'z') || (byte >= '0' && byte <= '9') ||
         std::string_view("-._~/").find(static_cast<char>(byte)) != std::string_view::npos;
}

/// A path as a relative address: in a file on the disk it works in any browser.
std::u16string AddressOf(const fs::path& file, const fs::path& folder) {
  constexpr std::string_view kDigits = "0123456789ABCDEF";
  const fs::path normal = file.lexically_normal();
  const fs::path relative = normal.lexically_relative(folder.lexically_normal());
  const bool isBelow = !relative.empty() && *relative.begin() != "..";
  std::u16string address;
  for (const char c : (isBelow ? relative : normal).string()) {
    const auto byte = static_cast<unsigned char>(c);
    if (IsPlainInAddress(byte)) {
      address.push_back(static_cast<char16_t>(byte));
      continue;
    }
    address.push_back(u'%');
    address.push_back(static_cast<char16_t>(kDigits[byte >> 4U]));
    address.push_back(static_cast<char16_t>(kDigits[byte & 0xFU]));
  }
  return address;
}

std::u16string FileItem(const FrameSetExam& exam, const std::u16string& path, const std::u16string& name) {
  const std::u16string address = AddressOf(TextToPath(path), exam.Services().applicationFolder);
  switch (FileKindOf(ExtensionOrNothing(path)).kind) {
    case FileKind::Picture:
      return kPicture(address, EscapeHtml(name));
    case FileKind::Page:
    case FileKind::PlainText:
    case FileKind::Document:
      return kDocument(address, EscapeHtml(name));
    case FileKind::Media:
    case FileKind::Flash:
    case FileKind::Other:
      break;
  }
  return kOther(EscapeHtml(name));
}

}  // namespace

std::u16string ExamFiles(const FrameSetExam& exam) {
  std::u16string items;
  for (std::size_t i = 0; i < kMaxAttachments; ++i) {
    const std::u16string& path = exam.examAttachmentPaths[i];
    if (!path.empty() && exam.IsPath(path)) items += FileItem(exam, path, exam.examAttachmentNames[i]);
  }
  return items;
}

std::u16string QuestionFiles(const FrameSetExam& exam, const ExamQuestion& question) {
  std::u16string items;
  for (std::size_t i = 0; i < kMaxAttachments; ++i) {
    const std::u16string& path = question.attachmentPaths[i];
    if (!path.empty()) items += FileItem(exam, path, question.attachmentNames[i]);
  }
  return items;
}

}  // namespace quorvantis
