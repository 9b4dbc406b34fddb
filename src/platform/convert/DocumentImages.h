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

/// Converts office documents and PDF files to images of their pages, in the background and a few at a time.
/// Two LibreOffice processes cannot share a profile, so each lane has its own.
class DocumentImages : public QObject {
 public:
  /// The images in page order; none if the document could not be converted.
  using Done = std::function<void(const std::vector<std::filesystem::path>& pages)>;

  /// Longer documents are cut after this many pages.
  static constexpr int kMostPages = 100;

  /// `folder` must exist and belong to this object alone; it holds the LibreOffice profiles.
  DocumentImages(ConverterPrograms programs, std::filesystem::path folder);

  /// Converts `document`, whose lower-case extension is `extension`, into the existing, empty `folder`.
  /// `done` is called once, later, unless this object has been destroyed by then.
  void Make(const std::filesystem::path& document, const QString& extension,
            const std::filesystem::path& folder, Done done);

 private:
  struct Job {
    std::filesystem::path document;
    QString extension;
    std::filesystem::path folder;
    Done done;
    std::vector<std::string> filters;  ///< not tried yet
  };
  using SharedJob = std::shared_ptr<Job>;  ///< shared by the programs that work on it

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
