// SPDX-License-Identifier: MIT
#pragma once

#include "platform/convert/ConverterPrograms.h"
#include "platform/convert/JobQueue.h"
#include "platform/convert/MediaFormat.h"

#include <QObject>

#include <filesystem>
#include <functional>

namespace quorvantis {

/// Makes media files playable in the browser, in the background and a few at a time.
class MediaConverter : public QObject {
 public:
  /// A file that the browser plays: the given one, or a converted one; empty when there is none.
  using Done = std::function<void(const std::filesystem::path& playable)>;

  explicit MediaConverter(ConverterPrograms programs);

  /// Looks at `media` and, where that is necessary, converts it into the existing, empty `folder`. `done` is
  /// called once, later, unless this object has gone by then. Without the program that looks, a file is taken
  /// for playable.
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
