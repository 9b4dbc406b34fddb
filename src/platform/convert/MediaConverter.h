// SPDX-License-Identifier: MIT
#pragma once

#include "platform/convert/ConverterPrograms.h"
#include "platform/convert/JobQueue.h"
#include "platform/convert/MediaFormat.h"

#include <QObject>

#include <filesystem>
#include <functional>

namespace quorvantis {

/// Converts media files so that the browser can play them, in the background and a few at a time.
class MediaConverter : public QObject {
 public:
  /// A file that the browser can play: the original or a converted one; empty if there is none.
  using Done = std::function<void(const std::filesystem::path& playable)>;

  explicit MediaConverter(ConverterPrograms programs);

  /// Checks `media` and converts it, if necessary, into the existing, empty `folder`. `done` is called once,
  /// later, unless this object has been destroyed by then. Without the program that checks, a file is assumed
  /// to be playable.
  void Make(const std::filesystem::path& media, const std::filesystem::path& folder, Done done);

 private:
  void Judge(const std::filesystem::path& media, const std::filesystem::path& folder,
             const MediaFormat& format, const Done& done);
  void Convert(const std::filesystem::path& media, const std::filesystem::path& result,
               const MediaFormat& format, const Done& done);

  const ConverterPrograms programs_;
  JobQueue looks_;
  JobQueue conversions_;
};

}  // namespace quorvantis
