// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QStringList>

namespace quorvantis {

/// What a media file holds, as far as it matters for playing it in the browser.
struct MediaFormat {
  bool known = false;     ///< a container of sound or moving pictures
  bool playable = false;  ///< the browser plays it as it is
  bool hasPicture = false;
};

/// The arguments, followed by a file's name, with which ffprobe writes a report for `ParseMediaFormat`.
QStringList MediaReportArguments();

MediaFormat ParseMediaFormat(const QByteArray& report);

}  // namespace quorvantis
