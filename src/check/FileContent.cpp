// SPDX-License-Identifier: MIT
#include "check/FileContent.h"

#include "model/MediaKinds.h"

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <initializer_list>
#include <iterator>
#include <string>
#include <system_error>

namespace quorvantis {
namespace {

/// What the first bytes of a file say.
enum class Content { Unknown, Text, Jpeg, Png, Gif, Bmp, WebP, Pdf, Zip, Ole, Rtf, Media };

constexpr std::size_t kHead = 4096;
constexpr std::size_t kTail = 66'000;  // the end record of an archive may be followed by 64 KiB

/// The two ends of a file, which overlap if it is small.
struct FileEnds {
  std::uintmax_t size = 0;
  std::string head;
  std::string tail;

  std::uint32_t Number(std::size_t at, std::size_t bytes) const {  // the low byte first
    std::uint32_t number = 0;
    for (std::size_t i = 0; i < bytes && at + i < head.size(); ++i)
      number |= static_cast<std::uint32_t>(static_cast<unsigned char>(head[at + i])) << (8 * i);
    return number;
  }
};

std::string ReadAt(std::ifstream& in, std::uintmax_t at, std::size_t size) {
  std::string bytes(size, '\0');
  in.clear();
  in.seekg(static_cast<std::streamoff>(at));
  in.read(bytes.data(), static_cast<std::streamsize>(size));
  bytes.resize(static_cast<std::size_t>(std::max<std::streamsize>(in.gcount(), 0)));
  return bytes;
}

struct Magic {
  std::size_t at;
  std::string_view bytes;
  Content content;
};

constexpr Magic kMagics[] = {
    {0, "\xFF\xD8\xFF", Content::Jpeg},
    {0, "\x89PNG\r\n\x1A\n", Content::Png},
    {0, "GIF8", Content::Gif},
    {8, "WEBP", Content::WebP},
    {0, "PK\x03\x04", Content::Zip},
    {0, "PK\x05\x06", Content::Zip},
    {0, "\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1", Content::Ole},
    {0, "{\\rtf", Content::Rtf},
    {0, "BM", Content::Bmp},
    {0, "RIFF", Content::Media},
    {4, "ftyp", Content::Media},
    {0, "OggS", Content::Media},
    {0, "fLaC", Content::Media},
    {0, "ID3", Content::Media},
    {0, "\x1A\x45\xDF\xA3", Content::Media},
    {0, "\x30\x26\xB2\x75", Content::Media},
    {0, "FLV\x01", Content::Media},
};

/// Nothing that a text, in any 8-bit encoding or UTF-16, would not have.
bool IsText(std::string_view head) {
  if (head.starts_with("\xFF\xFE") || head.starts_with("\xFE\xFF")) return true;
  return std::none_of(head.begin(), head.end(), [](char byte) {
    const auto value = static_cast<unsigned char>(byte);
    return value < 0x20 && value != '\t' && value != '\n' && value != '\r' && value != '\f';
  });
}

Content ContentOf(const FileEnds& ends) {
  const std::string_view head = ends.head;
  constexpr std::size_t kPdfBegin = 1024;
  for (const Magic& magic : kMagics) {
    if (magic.content == Content::Bmp && IsText(head)) continue;  // "BMW ..."
    if (head.size() >= magic.at && head.substr(magic.at).starts_with(magic.bytes)) return magic.content;
  }
  if (head.substr(0, kPdfBegin).find("%PDF-") != head.npos) return Content::Pdf;
  return IsText(head) ? Content::Text : Content::Unknown;
}

bool EndsWithin(const FileEnds& ends, std::string_view mark, std::size_t bytes) {
  const std::string_view tail = ends.tail;
  return tail.substr(tail.size() - std::min(bytes, tail.size())).find(mark) != tail.npos;
}

/// Where the picture data of a JPEG file begins: its thumbnail has an end mark, too. The end of the file if
/// there is none.
std::uintmax_t JpegDataBegin(std::ifstream& in, std::uintmax_t size) {
  constexpr int kMostSegments = 200;
  std::uintmax_t at = 2;
  for (int segment = 0; segment < kMostSegments && at + 4 <= size; ++segment) {
    const std::string bytes = ReadAt(in, at, 4);
    if (bytes.size() < 4 || bytes[0] != '\xFF') break;
    if (bytes[1] == '\xDA') return at;
    const bool isFiller = bytes[1] == '\xFF';
    const auto high = static_cast<unsigned char>(bytes[2]);
    const auto low = static_cast<unsigned char>(bytes[3]);
    at += isFiller ? 1U : 2U + (static_cast<unsigned>(high) << 8U | low);
  }
  return size;
}

bool IsJpegCutOff(std::ifstream& in, const FileEnds& ends) {
  const std::uintmax_t data = JpegDataBegin(in, ends.size);
  const std::uintmax_t tailBegin = ends.size - ends.tail.size();
  if (data >= ends.size) return true;
  const auto from = static_cast<std::size_t>(data > tailBegin ? data - tailBegin : 0);
  return ends.tail.find("\xFF\xD9", from) == std::string::npos;
}

bool IsGifCutOff(const FileEnds& ends) {
  const std::size_t last = ends.tail.find_last_not_of('\0');
  return last == std::string::npos || ends.tail[last] != ';';
}

/// Only uncompressed pictures tell how many bytes they have.
bool IsBmpCutOff(const FileEnds& ends) {
  if (ends.head.size() < 54) return true;
  const std::uintmax_t begin = ends.Number(10, 4);
  const std::uintmax_t width = ends.Number(18, 4);
  const auto signedHeight = static_cast<std::int32_t>(ends.Number(22, 4));
  const auto height = static_cast<std::uintmax_t>(std::abs(static_cast<std::int64_t>(signedHeight)));
  const std::uintmax_t bits = ends.Number(28, 2);
  if (ends.Number(14, 4) < 40 || ends.Number(30, 4) != 0) return begin > ends.size;
  return begin + (width * bits + 31) / 32 * 4 * height > ends.size;
}

/// A stream of unknown length has the highest number, or none.
bool IsRiffCutOff(const FileEnds& ends) {
  const std::uintmax_t size = ends.Number(4, 4);
  return ends.head.starts_with("RIFF") && size != 0xFFFFFFFF && size + 8 > ends.size + 1;
}

bool IsCutOff(std::ifstream& in, const FileEnds& ends, Content content) {
  constexpr std::size_t kPdfEnd = 2048;
  constexpr std::size_t kPngEnd = 4096;
  switch (content) {
    case Content::Jpeg:
      return IsJpegCutOff(in, ends);
    case Content::Png:
      return !EndsWithin(ends, "IEND", kPngEnd);
    case Content::Gif:
      return IsGifCutOff(ends);
    case Content::Bmp:
      return IsBmpCutOff(ends);
    case Content::Pdf:
      return !EndsWithin(ends, "%%EOF", kPdfEnd);
    case Content::Zip:
      return !EndsWithin(ends, "PK\x05\x06", kTail);
    case Content::WebP:
    case Content::Media:
      return IsRiffCutOff(ends);
    case Content::Ole:
      return ends.size < 512;
    case Content::Rtf:
    case Content::Text:
    case Content::Unknown:
      break;
  }
  return false;
}

/// What files with these extensions may be; at most four kinds.
struct Promise {
  std::u16string_view extensions;
  std::initializer_list<Content> contents;
};

const Promise* PromiseOf(std::u16string_view extension) {
  static const Promise kPromises[] = {
      {u"jpg,jpeg", {Content::Jpeg}},
      {u"png", {Content::Png}},
      {u"gif", {Content::Gif}},
      {u"bmp", {Content::Bmp}},
      {u"webp", {Content::WebP}},
      {u"svg", {Content::Text}},
      {u"pdf", {Content::Pdf}},
      {u"docx,pptx,xlsx,odt,odp,ods,zip", {Content::Zip}},
      {u"doc,xls,ppt", {Content::Ole, Content::Rtf, Content::Zip, Content::Text}},
      {u"rtf", {Content::Rtf}},
      {u"mpg,mpeg,asf,avi,wmv,flv,mov,m4v,mkv,3gp,mp4,webm,wma,m4a,aac,aiff,amr,opus,flac,au,mp3,wav,ogg",
       {Content::Media, Content::Unknown}},
  };
  const auto* found = std::find_if(std::begin(kPromises), std::end(kPromises), [&](const Promise& promise) {
    return IsOneOf(promise.extensions, extension);
  });
  return found != std::end(kPromises) ? found : nullptr;
}

}  // namespace

FileHealth HealthOf(const std::filesystem::path& file, std::u16string_view extension) {
  std::error_code error;
  if (!std::filesystem::is_regular_file(file, error)) return FileHealth::Missing;
  FileEnds ends;
  ends.size = std::filesystem::file_size(file, error);
  std::ifstream in(file, std::ios::binary);
  if (error || !in) return FileHealth::Missing;
  if (ends.size == 0) return FileHealth::Empty;
  const Promise* promise = PromiseOf(extension);
  if (promise == nullptr) return FileHealth::Good;
  ends.head = ReadAt(in, 0, static_cast<std::size_t>(std::min<std::uintmax_t>(ends.size, kHead)));
  const auto tail = static_cast<std::size_t>(std::min<std::uintmax_t>(ends.size, kTail));
  ends.tail = ReadAt(in, ends.size - tail, tail);
  const Content content = ContentOf(ends);
  const bool isPromised =
      std::find(promise->contents.begin(), promise->contents.end(), content) != promise->contents.end();
  if (IsCutOff(in, ends, content)) return FileHealth::Damaged;
  if (isPromised) return FileHealth::Good;
  return content == Content::Unknown || content == Content::Text ? FileHealth::Damaged : FileHealth::Misnamed;
}

}  // namespace quorvantis
