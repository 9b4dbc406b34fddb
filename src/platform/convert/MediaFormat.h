// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QStringList>

namespace quorvantis {

/// What a media file contains, as far as it matters for playing it in the browser.
struct MediaFormat {
  bool known = false;     ///< a container of audio or video
  bool playable = false;  ///< the browser plays it as it is
  bool hasPicture = false;
};

/// The arguments, to be followed by a file name, with which ffprobe writes a report for `ParseMediaFormat`.
QStringList MediaReportArguments();

MediaFormat ParseMediaFormat(const QByteArray& report);

}  // namespace quorvantis
