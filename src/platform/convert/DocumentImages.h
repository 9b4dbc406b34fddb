// SPDX-License-Identifier: MIT
#pragma once

#include "platform/convert/ConverterPrograms.h"
#include "platform/convert/JobQueue.h"

#include <QObject>
#include <QString>

#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace quorvantis {

/// Turns office documents and PDF files into pictures of their pages, in the background and a few at a time.
/// Two LibreOffice processes cannot share a profile: each lane has one of its own.
class DocumentImages : public QObject {
 public:
  /// The pictures in page order; none when the document could not be converted.
  using Done = std::function<void(const std::vector<std::filesystem::path>& pages)>;

  /// Of a longer document only so many pages are made.
  static constexpr int kMostPages = 100;

  /// The existing `folder` is for the profiles of LibreOffice and must be this object's own.
  DocumentImages(ConverterPrograms programs, std::filesystem::path folder);

  /// Converts `document`, whose lower-case extension is `extension`, into the existing, empty `folder`.
  /// `done` is called once, later, unless this object has gone by then.
  void Make(const std::filesystem::path& document, const QString& extension,
            const std::filesystem::path& folder, Done done);

 private:
  struct Job {
    std::filesystem::path document;
    QString extension;
    std::filesystem::path folder;
    Done done;
    std::vector<std::string> filters;  ///< still to try
  };
  using SharedJob = std::shared_ptr<Job>;  ///< what waits for programs holds it

  void Begin(const SharedJob& job);
  void TryNextFilter(const SharedJob& job, int lane);
  void LeaveOffice(const SharedJob& job, int lane);
  void DrawPages(const SharedJob& job, const std::filesystem::path& pdf);
  static std::filesystem::path LinkIn(const Job& job);
  std::filesystem::path Profile(int lane) const;

  const ConverterPrograms programs_;
  const std::filesystem::path folder_;
  JobQueue office_;
  JobQueue drawing_;
};

}  // namespace quorvantis
