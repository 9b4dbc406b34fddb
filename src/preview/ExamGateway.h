// SPDX-License-Identifier: MIT
#pragma once

#include "preview/Conversions.h"
#include "preview/FramePages.h"
#include "preview/ServedFiles.h"
#include "render/ComposedPages.h"

#include <QPointer>
#include <QWebEngineUrlRequestJob>
#include <QWebEngineUrlSchemeHandler>

#include <filesystem>

namespace quorvantis {

/// The parts of a gateway.
struct GatewaySetup {
  std::filesystem::path applicationFolder;
  const ComposedPages& pages;         ///< must outlive the gateway
  std::filesystem::path flashPlayer;  ///< folder with "ruffle.js"; empty or missing without a player
  ConverterPrograms programs;
  PreviewTexts texts;
};

/// Answers every request of the browser: with a composed page, a file that `ServedFiles` permits, or a page
/// in place of a file that the browser cannot show. Only texts are read into memory whole.
class ExamGateway : public QWebEngineUrlSchemeHandler {
 public:
  explicit ExamGateway(GatewaySetup setup);

  /// `page` is about to be shown. Its files are held as they are now. Conversions go on for the moment: the
  /// page may want them, too.
  void SetPage(const std::filesystem::path& page);

  /// The shown page has requested all that it shows; conversions that it does not want end.
  void PageLoaded() { conversions_.StopUnwanted(); }

  /// The shown page is about to be reloaded.
  void ExpectReload() { showsUnfinished_ = false; }

  /// Whether a frame of the shown page got a notice instead of a document that was still being converted.
  bool ShowsUnfinished() const { return showsUnfinished_; }

  const Conversions& Documents() const { return conversions_; }

  /// The shown page is gone, and nobody waits for its files any more.
  void PageGone();

  void requestStarted(QWebEngineUrlRequestJob* job) override;

 private:
  using Job = QWebEngineUrlRequestJob;

  void AnswerOwn(Job* job, const std::filesystem::path& name);
  bool AnswerPage(Job* job, const std::filesystem::path& asked);
  void AnswerFile(Job* job, const std::filesystem::path& file, bool forFrame);
  void AnswerDocument(Job* job, const std::filesystem::path& document);
  void AnswerMedia(Job* job, const std::filesystem::path& media);
  void AnswerMissing(Job* job, const std::filesystem::path& asked, bool forFrame);
  bool HasFlashPlayer() const;
  QString WhyNotShown(const std::filesystem::path& asked) const;
  QByteArray DocumentPage(const Conversions::Files& pictures, const std::filesystem::path& asked) const;
  QString NameOf(const std::filesystem::path& asked) const;
  QString NameOf(const Job& job) const;

  GatewaySetup setup_;
  ServedFiles files_;
  Conversions conversions_;
  QHash<QString, std::filesystem::path> pictures_;  ///< of document pages, by their name in our addresses
  bool showsUnfinished_ = false;
};

}  // namespace quorvantis
