// SPDX-License-Identifier: MIT
#pragma once

#include "platform/convert/ConverterPrograms.h"

#include <QObject>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

#include <deque>
#include <filesystem>
#include <functional>
#include <vector>

namespace quorvantis {

/// Turns office documents and PDF files into pictures of their pages, in the background and one after the
/// other: two LibreOffice processes cannot share a profile.
class DocumentImages : public QObject {
 public:
  /// The pictures in page order; none when the document could not be converted.
  using Done = std::function<void(const std::vector<std::filesystem::path>& pages)>;

  /// Of a longer document only so many pages are made.
  static constexpr int kMostPages = 100;

  explicit DocumentImages(ConverterPrograms programs);

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
    QStringList filters;  ///< still to try
  };

  void StartNext();
  void Begin();
  void TryNextFilter();
  void DrawPages(const std::filesystem::path& pdf);
  void Finish(const std::vector<std::filesystem::path>& pages);

  ConverterPrograms programs_;
  QTemporaryDir profile_;
  std::deque<Job> jobs_;  ///< the first one is at work
};

}  // namespace quorvantis
