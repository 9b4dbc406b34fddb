// SPDX-License-Identifier: MIT
#include "preview/ExamGateway.h"

#include "preview/AttachedText.h"
#include "preview/FileKind.h"
#include "preview/PageAddress.h"
#include "preview/Replies.h"
#include "preview/SourceEscapes.h"

#include <QFile>

#include <system_error>
#include <utility>

namespace quorvantis {
namespace {

namespace fs = std::filesystem;

constexpr qint64 kLongestText = qint64{2} << 20;
constexpr char kFlashFolder[] = "flash";
constexpr char kPictureFolder[] = "pictures";

QString NameOf(const fs::path& file) {
  return QFile::decodeName(file.filename().c_str());
}

/// Each conversion has a folder of its own, whose name is a number.
QString PictureName(const fs::path& picture) {
  return NameOf(picture.parent_path()) + '-' + NameOf(picture);
}

QByteArray TextFilePage(const fs::path& file, const PreviewTexts& texts) {
  QFile in(file);
  if (!in.open(QIODevice::ReadOnly)) return NoticePage(texts.cannotShow.arg(NameOf(file)));
  const QByteArray bytes = in.read(kLongestText);
  return TextPage(DecodeAttachedText(bytes), in.atEnd() ? QString() : texts.onlyBeginning);
}

}  // namespace

ExamGateway::ExamGateway(GatewaySetup setup)
    : setup_(std::move(setup)), files_(setup_.applicationFolder), conversions_(setup_.programs) {}

void ExamGateway::SetPage(const fs::path& page) {
  files_.SetPageFolder(page.parent_path());
  conversions_.ForgetFailures();
  showsUnfinished_ = false;
}

bool ExamGateway::HasFlashPlayer() const {
  std::error_code error;
  return !setup_.flashPlayer.empty() && fs::is_regular_file(setup_.flashPlayer / "ruffle.js", error);
}

QString ExamGateway::MediaFailureText() const {
  if (!setup_.programs.media.isEmpty() && !setup_.programs.mediaInfo.isEmpty())
    return setup_.texts.cannotShow;
  return setup_.texts.needsProgram.arg("%1", "ffmpeg");
}

void ExamGateway::requestStarted(Job* job) {
  const QUrl address = job->requestUrl();
  const std::optional<fs::path> asked = FileOf(address);
  if (!asked || (job->requestMethod() != "GET" && job->requestMethod() != "HEAD")) {
    return job->fail(Job::RequestDenied);
  }
  if (const std::optional<fs::path> own = OwnNameOf(address)) return AnswerOwn(job, *own);
  if (AnswerPage(job, *asked)) return;
  const std::optional<fs::path> file = files_.Find(*asked);
  file ? AnswerFile(job, *file) : AnswerMissing(job, *asked);
}

/// Names of our own making have no folders but the first; whatever else is asked for there does not exist.
void ExamGateway::AnswerOwn(Job* job, const fs::path& name) {
  const auto picture = pictures_.constFind(NameOf(name));
  if (name.parent_path() == kPictureFolder && picture != pictures_.constEnd()) {
    return ReplyWithFile(*job, "image/png", *picture);
  }
  if (name.parent_path() == kFlashFolder && HasFlashPlayer()) {
    const bool script = name.extension() == ".js";
    if (script || name.extension() == ".wasm") {
      return ReplyWithFile(*job, script ? "text/javascript" : "application/wasm",
                           setup_.flashPlayer / name.filename());
    }
  }
  job->fail(Job::UrlNotFound);
}

/// Composed pages come first: a page's file may hold less than the page.
bool ExamGateway::AnswerPage(Job* job, const fs::path& asked) {
  for (const fs::path& place : files_.Places(asked)) {
    if (const std::u16string* const page = setup_.pages.Find(place)) {
      ReplyWithPage(*job, Escaped(place, *page));
      return true;
    }
  }
  return false;
}

QByteArray ExamGateway::Escaped(const fs::path& page, const std::u16string& text) const {
  const auto isFile = [&](const fs::path& source) {
    return files_.Find((page.parent_path() / source).lexically_normal()).has_value();
  };
  return QString::fromStdU16String(EscapeSources(text, isFile)).toUtf8();
}

void ExamGateway::AnswerFile(Job* job, const fs::path& file) {
  switch (KindOf(file)) {
    case FileKind::Page:
    case FileKind::Picture:
      return ReplyWithFile(*job, ContentTypeOf(file), file);
    case FileKind::Text:
      return ReplyWithPage(*job, TextFilePage(file, setup_.texts));
    case FileKind::Document:
      return AnswerDocument(job, file);
    case FileKind::Media:
      return AnswerMedia(job, file);
    case FileKind::Flash:
      if (HasFlashPlayer()) return ReplyWithFile(*job, ContentTypeOf(file), file);
      return ReplyWithPage(*job, NoticePage(setup_.texts.needsProgram.arg(NameOf(file), "Ruffle")));
    case FileKind::Other:
      return ReplyWithPage(*job, NoticePage(setup_.texts.cannotShow.arg(NameOf(file))));
  }
}

/// A frame gets an answer at once, so that the exam appears; the page in it asks again with the query "wait",
/// which is answered when there is something to show.
void ExamGateway::AnswerDocument(Job* job, const fs::path& document) {
  if (job->requestUrl().query() == "wait") {
    return conversions_.WithPages(document, [held = QPointer(job)](const Conversions::Files&) {
      if (held) ReplyWithBytes(*held, "text/plain", "ready");
    });
  }
  if (const std::optional<Conversions::Files> pictures = conversions_.KnownPages(document)) {
    for (const fs::path& picture : *pictures) pictures_[PictureName(picture)] = picture;
    return ReplyWithPage(*job, DocumentPage(document, *pictures));
  }
  showsUnfinished_ = true;
  conversions_.WithPages(document, [](const Conversions::Files&) {});
  ReplyWithPage(*job, WaitingPage(setup_.texts.preparing.arg(NameOf(document))));
}

QByteArray ExamGateway::DocumentPage(const fs::path& document, const Conversions::Files& pictures) const {
  const ConverterPrograms& programs = setup_.programs;
  if (pictures.empty()) {
    if (programs.office.isEmpty()) {
      return NoticePage(setup_.texts.needsProgram.arg(NameOf(document), "LibreOffice"));
    }
    if (programs.pdfImages.isEmpty()) {
      return NoticePage(setup_.texts.needsProgram.arg(NameOf(document), "poppler-utils"));
    }
    return NoticePage(setup_.texts.cannotShow.arg(NameOf(document)));
  }
  QList<QUrl> addresses;
  for (const fs::path& picture : pictures) {
    addresses.push_back(OwnAddress(kPictureFolder + ("/" + PictureName(picture).toStdString())));
  }
  const bool all = pictures.size() < DocumentImages::kMostPages;
  return PicturesPage(addresses,
                      all ? QString() : setup_.texts.onlyFirstPages.arg(DocumentImages::kMostPages));
}

void ExamGateway::AnswerMedia(Job* job, const fs::path& media) {
  conversions_.WithPlayable(media, [held = QPointer(job), media](const Conversions::Files& files) {
    if (!held) return;
    if (files.empty()) return held->fail(Job::RequestFailed);
    const bool original = files.front() == media;
    ReplyWithFile(*held, ContentTypeOf(original ? media : files.front()), files.front());
  });
}

/// A frame must not stay empty, so what belongs into a frame is answered with a page.
void ExamGateway::AnswerMissing(Job* job, const fs::path& asked) {
  const FileKind kind = KindOf(asked);
  if (kind != FileKind::Document && kind != FileKind::Text) return job->fail(Job::UrlNotFound);
  ReplyWithPage(*job, NoticePage(setup_.texts.notFound.arg(NameOf(asked))));
}

}  // namespace quorvantis
