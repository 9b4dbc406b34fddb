// SPDX-License-Identifier: MIT
#include "platform/convert/MediaConverter.h"

#include "platform/convert/Later.h"
#include "platform/convert/ProgramRun.h"

#include <QFile>

#include <utility>

namespace quorvantis {
namespace {

namespace fs = std::filesystem;

constexpr int kLooksAtATime = 4;
constexpr int kConversionsAtATime = 2;

constexpr char kProgressMark[] = "out_time_us=";  // length of the output so far, in microseconds

/// Treats a name that begins with "-" or looks like "http:" as a file.
QString Input(const fs::path& media) {
  return "file:" + FileArgument(media);
}

QStringList ConversionArguments(const fs::path& media, const fs::path& result, bool hasPicture) {
  QStringList arguments{"-nostdin", "-v", "error",      "-progress", "pipe:1", "-protocol_whitelist",
                        "file",     "-i", Input(media), "-sn",       "-dn"};
  if (hasPicture) {
    arguments << "-c:v"
              << "libx264"
              << "-preset"
              << "ultrafast"
              << "-pix_fmt"
              << "yuv420p";
    arguments << "-vf"
              << "scale=trunc(iw/2)*2:trunc(ih/2)*2";  // the codec accepts even sizes only
    arguments << "-c:a"
              << "aac";
  } else {
    arguments << "-vn"
              << "-c:a"
              << "libopus";
  }
  return arguments << "file:" + FileArgument(result);
}

}  // namespace

MediaConverter::MediaConverter(ConverterPrograms programs)
    : programs_(std::move(programs)), looks_(kLooksAtATime), conversions_(kConversionsAtATime) {}

void MediaConverter::Make(const fs::path& media, const fs::path& folder, Done done) {
  if (programs_.mediaInfo.isEmpty()) {
    Later(*this, {}, [media, done = std::move(done)] { done(media); });
    return;
  }
  looks_.Add([this, media, folder, done = std::move(done)](int lane) {
    RunProgram(*this, {programs_.mediaInfo, MediaReportArguments() << Input(media)},
               [this, lane, media, folder, done](bool, const QByteArray& report) {
                 looks_.Leave(lane);
                 Judge(media, folder, ParseMediaFormat(report), done);
               });
  });
}

void MediaConverter::Judge(const fs::path& media, const fs::path& folder, const MediaFormat& format,
                           const Done& done) {
  if (format.playable) return done(media);
  if (!format.known || programs_.media.isEmpty()) return done({});
  Convert(media, folder / (format.hasPicture ? "media.mp4" : "media.webm"), format, done);
}

void MediaConverter::Convert(const fs::path& media, const fs::path& result, const MediaFormat& format,
                             const Done& done) {
  const ProgramOrder order{programs_.media, ConversionArguments(media, result, format.hasPicture),
                           kLongestFilm, ProgressSigns{kProgressMark, kLongestStandstill}};
  conversions_.Add([this, order, result, done](int lane) {
    RunProgram(*this, order, [this, lane, result, done](bool succeeded, const QByteArray&) {
      conversions_.Leave(lane);
      done(succeeded ? result : fs::path());
    });
  });
}

}  // namespace quorvantis
