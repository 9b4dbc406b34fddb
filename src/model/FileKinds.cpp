// SPDX-License-Identifier: MIT
#include "model/FileKinds.h"

#include <algorithm>
#include <iterator>

namespace quorvantis {
namespace {

constexpr FileKindRow kFileKinds[] = {
    {u"doc", FileKind::Document, "text/html"},    {u"docx", FileKind::Document, "text/html"},
    {u"rtf", FileKind::Document, "text/html"},    {u"odt", FileKind::Document, "text/html"},
    {u"ppt", FileKind::Document, "text/html"},    {u"pptx", FileKind::Document, "text/html"},
    {u"odp", FileKind::Document, "text/html"},    {u"xls", FileKind::Document, "text/html"},
    {u"xlsx", FileKind::Document, "text/html"},   {u"ods", FileKind::Document, "text/html"},
    {u"pdf", FileKind::Document, "text/html"},

    {u"mpg", FileKind::Media, "video/mp4"},       {u"mpeg", FileKind::Media, "video/mp4"},
    {u"dat", FileKind::Media, "video/mp4"},       {u"asf", FileKind::Media, "video/mp4"},
    {u"avi", FileKind::Media, "video/mp4"},       {u"wmv", FileKind::Media, "video/mp4"},
    {u"flv", FileKind::Media, "video/mp4"},       {u"mov", FileKind::Media, "video/mp4"},
    {u"m4v", FileKind::Media, "video/mp4"},       {u"mkv", FileKind::Media, "video/mp4"},
    {u"3gp", FileKind::Media, "video/mp4"},       {u"rm", FileKind::Media, "video/mp4"},
    {u"mp4", FileKind::Media, "video/mp4"},       {u"webm", FileKind::Media, "video/webm"},

    {u"wma", FileKind::Media, "audio/webm"},      {u"m4a", FileKind::Media, "audio/webm"},
    {u"aac", FileKind::Media, "audio/webm"},      {u"aiff", FileKind::Media, "audio/webm"},
    {u"amr", FileKind::Media, "audio/webm"},      {u"opus", FileKind::Media, "audio/webm"},
    {u"flac", FileKind::Media, "audio/webm"},     {u"au", FileKind::Media, "audio/webm"},
    {u"mp3", FileKind::Media, "audio/mpeg"},      {u"wav", FileKind::Media, "audio/wav"},
    {u"ogg", FileKind::Media, "audio/ogg"},

    {u"jpg", FileKind::Picture, "image/jpeg"},    {u"jpeg", FileKind::Picture, "image/jpeg"},
    {u"gif", FileKind::Picture, "image/gif"},     {u"bmp", FileKind::Picture, "image/bmp"},
    {u"png", FileKind::Picture, "image/png"},     {u"webp", FileKind::Picture, "image/webp"},
    {u"svg", FileKind::Picture, "image/svg+xml"},

    {u"htm", FileKind::Page, "text/html"},        {u"html", FileKind::Page, "text/html"},
    {u"txt", FileKind::PlainText, "text/html"},   {u"swf", FileKind::Flash, "application/x-shockwave-flash"},
};

constexpr FileKindRow kOther;

}  // namespace

const FileKindRow& FileKindOf(std::u16string_view extension) {
  const auto* row =
      std::find_if(std::begin(kFileKinds), std::end(kFileKinds),
                   [extension](const FileKindRow& each) { return each.extension == extension; });
  return row != std::end(kFileKinds) ? *row : kOther;
}

}  // namespace quorvantis
