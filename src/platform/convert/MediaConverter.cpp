// SPDX-License-Identifier: MIT
#include "platform/convert/MediaConverter.h"

#include "platform/convert/Later.h"
#include "platform/convert/ProgramRun.h"

#include <QFile>

#include <utility>

namespace quorvantis {
namespace {

namespace fs = std::filesystem;

constexpr std::chrono::minutes kLongestConversion{10};

QString Text(const fs::path& path) {
  return QFile::decodeName(path.c_str());
}

/// A name that begins with "-" or looks like "http:" is still a file.
QString Input(const fs::path& media) {
  return "file:" + Text(media);
}

QStringList ConversionArguments(const fs::path& media, const fs::path& result, bool hasPicture) {
  QStringList arguments{"-nostdin",   "-v",  "error", "-protocol_whitelist", "file", "-i",
                        Input(media), "-sn", "-dn"};
  if (hasPicture) {
    arguments << "-c:v"
              << "libx264"
              << "-preset"
              << "ultrafast"
              << "-pix_fmt"
              << "yuv420p";
    arguments << "-vf"
              << "scale=trunc(iw/2)*2:trunc(ih/2)*2";  // the codec takes even sizes only
    arguments << "-c:a"
              << "aac"
              << "-movflags"
              << "+faststart";
  } else {
    arguments << "-vn"
              << "-c:a"
              << "libopus";
  }
  return arguments << "file:" + Text(result);
}

}  // namespace

void MediaConverter::Make(const fs::path& media, const fs::path& folder, Done done) {
  if (programs_.mediaInfo.isEmpty()) {
    Later(*this, {}, [media, done = std::move(done)] { done(media); });
    return;
  }
  RunProgram(*this, {programs_.mediaInfo, MediaReportArguments() << Input(media)},
             [this, media, folder, done = std::move(done)](bool, const QByteArray& report) {
               Judge(media, folder, ParseMediaFormat(report), done);
             });
}

void MediaConverter::Judge(const fs::path& media, const fs::path& folder, const MediaFormat& format,
                           Done done) {
  if (format.playable) return done(media);
  if (!format.known || programs_.media.isEmpty()) return done({});
  jobs_.push_back(
      {media, folder / (format.hasPicture ? "media.mp4" : "media.webm"), format.hasPicture, std::move(done)});
  if (jobs_.size() == 1) StartNext();
}

void MediaConverter::StartNext() {
  const Job& job = jobs_.front();
  const QStringList arguments = ConversionArguments(job.media, job.result, job.hasPicture);
  RunProgram(*this, {programs_.media, arguments, kLongestConversion},
             [this](bool succeeded, const QByteArray&) { Finish(succeeded); });
}

void MediaConverter::Finish(bool succeeded) {
  const Job job = std::move(jobs_.front());
  jobs_.pop_front();
  if (!jobs_.empty()) StartNext();
  job.done(succeeded ? job.result : fs::path());
}

}  // namespace quorvantis
