// SPDX-License-Identifier: MIT
#pragma once

#include "platform/convert/ConverterPrograms.h"
#include "platform/convert/MediaFormat.h"

#include <QObject>

#include <deque>
#include <filesystem>
#include <functional>

namespace quorvantis {

/// Makes media files playable in the browser, in the background and one after the other.
class MediaConverter : public QObject {
 public:
  /// A file that the browser plays: the given one, or a converted one; empty when there is none.
  using Done = std::function<void(const std::filesystem::path& playable)>;

  explicit MediaConverter(ConverterPrograms programs) : programs_(std::move(programs)) {}

  /// Looks at `media` and, where that is necessary, converts it into the existing, empty `folder`. `done` is
  /// called once, later, unless this object has gone by then. Without the program that looks, a file is taken
  /// for playable.
  void Make(const std::filesystem::path& media, const std::filesystem::path& folder, Done done);

 private:
  struct Job {
    std::filesystem::path media;
    std::filesystem::path result;
    bool hasPicture;
    Done done;
  };

  void Judge(const std::filesystem::path& media, const std::filesystem::path& folder,
             const MediaFormat& format, Done done);
  void StartNext();
  void Finish(bool succeeded);

  ConverterPrograms programs_;
  std::deque<Job> jobs_;  ///< the first one is at work
};

}  // namespace quorvantis
