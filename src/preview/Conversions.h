// SPDX-License-Identifier: MIT
#pragma once

#include "platform/convert/DocumentImages.h"
#include "platform/convert/MediaConverter.h"

#include <QHash>
#include <QObject>
#include <QSet>
#include <QTemporaryDir>

#include <filesystem>
#include <functional>
#include <optional>
#include <vector>

namespace quorvantis {

/// What attached files were converted to in this run of the program. A content is converted once, however
/// often and under however many names it is asked for.
class Conversions : public QObject {
  Q_OBJECT

 public:
  using Files = std::vector<std::filesystem::path>;

  /// Gets the converted files; none when the conversion failed.
  using Use = std::function<void(const Files& files)>;

  explicit Conversions(const ConverterPrograms& programs);

  /// The pages of a document if they are there already; none of them when it cannot be converted.
  std::optional<Files> KnownPages(const std::filesystem::path& document) const;

  /// Calls `use` with the pictures of the pages of `document`, at once or when they are there.
  void WithPages(const std::filesystem::path& document, Use use);

  /// Calls `use` with the one file that the browser plays for `media`, at once or when it is there.
  void WithPlayable(const std::filesystem::path& media, Use use);

  /// Lets what could not be converted be tried again when it is asked for: the machine may have been busy.
  void ForgetFailures();

  /// Whether a document is being converted.
  bool IsBusy() const { return waitingDocuments_ > 0; }

 signals:
  /// No document is being converted any more.
  void DocumentsReady();

 private:
  struct Result {
    std::optional<Files> files;  ///< none while the conversion is under way
    std::vector<Use> waiting;
  };

  /// The key of a conversion: the content and, because a name decides how content is read, the extension.
  static QString KeyOf(const std::filesystem::path& file);

  /// Adds `use` to those that wait. Whether the conversion must be started.
  bool Wait(const QString& key, Use use);
  void Complete(const QString& key, const Files& files);
  std::filesystem::path NewFolder();

  QTemporaryDir folder_;
  int folders_ = 0;
  int waitingDocuments_ = 0;
  QHash<QString, Result> results_;
  QSet<QString> playAsTheyAre_;  ///< keys of media that need no conversion
  DocumentImages documents_;
  MediaConverter media_;
};

}  // namespace quorvantis
