// SPDX-License-Identifier: MIT
#include "platform/convert/MediaFormat.h"

#include <QByteArrayList>
#include <QSet>

namespace quorvantis {
namespace {

using Names = QSet<QByteArray>;

/// Containers that hold their own content. Playlists and the like, which refer to other files, are
/// deliberately not listed: an untrusted file could refer to anything.
bool IsContainer(const QByteArray& format) {
  static const Names formats{"aac",    "ac3",       "aiff", "amr", "ape", "asf", "au",  "avi",
                             "caf",    "dv",        "flac", "flv", "m4v", "mov", "mp3", "mpeg",
                             "mpegts", "mpegvideo", "ogg",  "rm",  "w64", "wav", "wv",  "matroska"};
  return formats.contains(format);
}

/// Containers that the browser opens; all others are converted whatever their codecs.
bool IsBrowserContainer(const QByteArray& format) {
  static const Names formats{"mov", "matroska", "mp3", "wav", "ogg", "flac", "aac"};
  return formats.contains(format);
}

bool IsBrowserCodec(const QByteArray& codec) {
  static const Names codecs{"pcm_u8", "pcm_s16le", "pcm_s24le", "pcm_s32le", "pcm_f32le", "pcm_mulaw", "mp3",
                            "aac",    "opus",      "vorbis",    "flac",      "h264",      "vp8",       "vp9"};
  return codecs.contains(codec);
}

}  // namespace

QStringList MediaReportArguments() {
  return {"-v",
          "error",
          "-protocol_whitelist",
          "file",
          "-of",
          "compact=nk=1",
          "-show_entries",
          "stream=codec_name,codec_type:stream_disposition=attached_pic:format=format_name"};
}

/// Lines like "stream|h264|video|0" and "format|avi". The last number of a stream is 1 for cover art.
MediaFormat ParseMediaFormat(const QByteArray& report) {
  MediaFormat format;
  QByteArray container;
  bool playable = true;
  int streams = 0;
  for (const QByteArray& line : report.split('\n')) {
    const QByteArrayList fields = line.trimmed().split('|');
    if (fields[0] == "format" && fields.size() > 1) container = fields[1].split(',')[0];
    if (fields[0] != "stream" || fields.size() < 3 || fields.value(3) == "1") continue;
    if (fields[2] != "audio" && fields[2] != "video") continue;
    ++streams;
    format.hasPicture = format.hasPicture || fields[2] == "video";
    playable = playable && IsBrowserCodec(fields[1]);
  }
  format.known = IsContainer(container) && streams > 0;
  format.playable = format.known && IsBrowserContainer(container) && playable;
  return format;
}

}  // namespace quorvantis
