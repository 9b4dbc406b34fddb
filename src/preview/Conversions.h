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

/// The converted attached files of this run. Each content is converted once, however often and under however
/// many names it is requested.
class Conversions : public QObject {
  Q_OBJECT

 public:
  using Files = std::vector<std::filesystem::path>;

  /// Receives the converted files; none if the conversion failed.
  using Use = std::function<void(const Files& files)>;

  /// Converted files are in the folder for temporary files, or in `otherwise` if that cannot be used.
  Conversions(ConverterPrograms programs, const std::filesystem::path& otherwise);

  /// The pages of a document if they exist already; empty if it cannot be converted.
  std::optional<Files> KnownPages(const std::filesystem::path& document) const;

  /// Calls `use` with the pictures of the pages of `document`, at once or when they are ready.
  void WithPages(const std::filesystem::path& document, Use use);

  /// Calls `use` with the one file that the browser plays for `media`, at once or when it is ready.
  void WithPlayable(const std::filesystem::path& media, Use use);

  /// Failed conversions are tried again on the next request: the machine may have been busy.
  void ForgetFailures();

  /// Another page begins: from now on only what is requested again is wanted.
  void BeginPage();

  /// Ends the running programs if nothing of what they convert is wanted. Otherwise all go on: what the last
  /// page wanted as well would begin again.
  void StopUnwanted();

  /// Ends the running programs and removes their unfinished files. Waiting callers are not told. Must not be
  /// called by a `Use`.
  void StopUnfinished();

  /// Whether a wanted document is being converted.
  bool IsBusy() const;

 signals:
  /// A document has been converted, and no other wanted one is being converted.
  void DocumentsReady();

 private:
  struct Result {
    std::optional<Files> files;    ///< empty while converting
    std::filesystem::path folder;  ///< where the conversion takes place
    std::vector<Use> waiting;
    bool isDocument = false;
    bool wanted = true;  ///< by the shown page
  };

  /// The running conversion; destroying it ends it.
  struct Converters {
    Converters(const ConverterPrograms& programs, const std::filesystem::path& officeFolder)
        : documents(programs, officeFolder), media(programs) {}
    DocumentImages documents;
    MediaConverter media;
  };

  /// The key of a conversion: the content and, since it decides how content is read, the extension.
  static QString KeyOf(const std::filesystem::path& file);

  /// Adds `use` to those that wait. Returns the folder for the conversion if it must be started.
  std::optional<std::filesystem::path> Wait(const QString& key, Use use);
  void Complete(const QString& key, const Files& files);

  const ConverterPrograms programs_;
  ConversionFolder folder_;
  const std::filesystem::path officeFolder_;
  QHash<QString, Result> results_;
  QSet<QString> playAsTheyAre_;  ///< keys of media that need no conversion
  std::unique_ptr<Converters> converters_;
};

}  // namespace quorvantis
