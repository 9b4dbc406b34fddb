// SPDX-License-Identifier: MIT
#pragma once

#include "platform/convert/DocumentImages.h"
#include "platform/convert/MediaConverter.h"
#include "preview/ConversionFolder.h"

#include <QHash>
#include <QObject>
#include <QSet>

#include <filesystem>
#include <functional>
#include <memory>
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

  /// Converted files lie in the folder for temporary files, or in `otherwise` where that cannot be used.
  Conversions(ConverterPrograms programs, const std::filesystem::path& otherwise);

  /// The pages of a document if they are there already; none of them when it cannot be converted.
  std::optional<Files> KnownPages(const std::filesystem::path& document) const;

  /// Calls `use` with the pictures of the pages of `document`, at once or when they are there.
  void WithPages(const std::filesystem::path& document, Use use);

  /// Calls `use` with the one file that the browser plays for `media`, at once or when it is there.
  void WithPlayable(const std::filesystem::path& media, Use use);

  /// Lets what could not be converted be tried again when it is asked for: the machine may have been busy.
  void ForgetFailures();

  /// Ends the programs that are at work, and removes what they have made so far. Who waits is told nothing.
  /// Not to be called by a `Use`.
  void StopUnfinished();

  /// Whether a document is being converted.
  bool IsBusy() const { return waitingDocuments_ > 0; }

 signals:
  /// No document is being converted any more.
  void DocumentsReady();

 private:
  struct Result {
    std::optional<Files> files;    ///< none while the conversion is under way
    std::filesystem::path folder;  ///< where it takes place
    std::vector<Use> waiting;
  };

  /// What is at work; goes to end it.
  struct Converters {
    Converters(const ConverterPrograms& programs, const std::filesystem::path& officeFolder)
        : documents(programs, officeFolder), media(programs) {}
    DocumentImages documents;
    MediaConverter media;
  };

  /// The key of a conversion: the content and, because a name decides how content is read, the extension.
  static QString KeyOf(const std::filesystem::path& file);

  /// Adds `use` to those that wait. The folder for the conversion where it must be started.
  std::optional<std::filesystem::path> Wait(const QString& key, Use use);
  void Complete(const QString& key, const Files& files);

  const ConverterPrograms programs_;
  ConversionFolder folder_;
  const std::filesystem::path officeFolder_;
  int waitingDocuments_ = 0;
  QHash<QString, Result> results_;
  QSet<QString> playAsTheyAre_;  ///< keys of media that need no conversion
  std::unique_ptr<Converters> converters_;
};

}  // namespace quorvantis
