// SPDX-License-Identifier: MIT
#include "preview/ExamGateway.h"

#include "preview/AttachedText.h"
#include "preview/FileKind.h"
#include "preview/MissingProgram.h"
#include "preview/PageAddress.h"
#include "preview/Replies.h"
#include "preview/RequestGuard.h"
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

QString FileNameOf(const fs::path& file) {
  return QFile::decodeName(file.filename().c_str());
}

/// Each conversion has its own folder, named by a number.
QString PictureName(const fs::path& picture) {
  return FileNameOf(picture.parent_path()) + '-' + FileNameOf(picture);
}

QByteArray TextFilePage(const fs::path& file, const QString& name, const PreviewTexts& texts) {
  QFile in(file);
  if (!in.open(QIODevice::ReadOnly)) return NoticePage(texts.cannotShow.arg(name));
  const QByteArray bytes = in.read(kLongestText);
  return TextPage(DecodeAttachedText(bytes), in.atEnd() ? QString() : texts.onlyBeginning);
}

}  // namespace

ExamGateway::ExamGateway(GatewaySetup setup)
    : setup_(std::move(setup)),
      files_(setup_.applicationFolder),
      conversions_(setup_.programs, setup_.applicationFolder) {}

void ExamGateway::SetPage(const fs::path& page) {
  files_.SetPageFolder(page.parent_path());
  for (const fs::path& file : setup_.pages.SourceFiles()) files_.Hold(file);
  conversions_.ForgetFailures();
  conversions_.BeginPage();
  showsUnfinished_ = false;
}

void ExamGateway::PageGone() {
  conversions_.StopUnfinished();
  files_.Release();
}

bool ExamGateway::HasFlashPlayer() const {
  std::error_code error;
  return !setup_.flashPlayer.empty() && fs::is_regular_file(setup_.flashPlayer / "ruffle.js", error);
}

void ExamGateway::requestStarted(Job* job) {
  const QUrl address = job->requestUrl();
  const bool forFrame = RequestGuard::IsForFrame(*job);
  const std::optional<fs::path> asked = FileOf(address);
  if (!asked || (job->requestMethod() != "GET" && job->requestMethod() != "HEAD")) {
    return job->fail(Job::RequestDenied);
  }
  if (const std::optional<fs::path> own = OwnNameOf(address)) return AnswerOwn(job, *own);
  if (address.query() == "why") {
    return ReplyWithBytes(*job, "text/plain; charset=utf-8", WhyNotShown(*asked).toUtf8());
  }
  if (AnswerPage(job, *asked)) return;
  const std::optional<fs::path> file = files_.Find(*asked);
  file ? AnswerFile(job, *file, forFrame) : AnswerMissing(job, *asked, forFrame);
}

/// Names in our addresses have only one folder; anything else requested there does not exist.
void ExamGateway::AnswerOwn(Job* job, const fs::path& name) {
  const auto picture = pictures_.constFind(FileNameOf(name));
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

/// Composed pages come first: a page's file may be incomplete.
bool ExamGateway::AnswerPage(Job* job, const fs::path& asked) {
  for (const fs::path& place : files_.Places(asked)) {
    if (const std::u16string* const page = setup_.pages.Find(place)) {
      ReplyWithPage(*job, QString::fromStdU16String(EscapeSources(*page, setup_.pages)).toUtf8());
      return true;
    }
  }
  return false;
}

/// The user's name for the requested file: its copy may have another one.
QString ExamGateway::NameOf(const fs::path& asked) const {
  const PageSource* const source = setup_.pages.FindFile(asked);
  const bool isNamed = source != nullptr && !source->name.empty();
  return isNamed ? QString::fromStdU16String(source->name) : FileNameOf(asked);
}

QString ExamGateway::NameOf(const Job& job) const {
  return NameOf(FileOf(job.requestUrl()).value_or(fs::path()));
}

void ExamGateway::AnswerFile(Job* job, const fs::path& file, bool forFrame) {
  const FileKind kind = KindOf(file);
  if (forFrame && (kind == FileKind::Media || kind == FileKind::Flash)) {
    return ReplyWithPage(*job, EmbedPage(job->requestUrl(), NameOf(*job)));
  }
  switch (kind) {
    case FileKind::Page:
    case FileKind::Picture:
      return ReplyWithFile(*job, ContentTypeOf(file), file);
    case FileKind::PlainText:
      return ReplyWithPage(*job, TextFilePage(file, NameOf(*job), setup_.texts));
    case FileKind::Document:
      return AnswerDocument(job, file);
    case FileKind::Media:
      return AnswerMedia(job, file);
    case FileKind::Flash:
      return ReplyWithFile(*job, ContentTypeOf(file), file);
    case FileKind::Other:
      return ReplyWithPage(*job, NoticePage(setup_.texts.cannotShow.arg(NameOf(*job))));
  }
}

/// A frame gets an answer at once, so that the exam appears; the page in it repeats the request with the
/// query "wait", which is answered when there is something to show.
void ExamGateway::AnswerDocument(Job* job, const fs::path& document) {
  if (job->requestUrl().query() == "wait") {
    return conversions_.WithPages(document, [held = QPointer(job)](const Conversions::Files&) {
      if (held) ReplyWithBytes(*held, "text/plain", "ready");
    });
  }
  if (const std::optional<Conversions::Files> pictures = conversions_.KnownPages(document)) {
    for (const fs::path& picture : *pictures) pictures_[PictureName(picture)] = picture;
    return ReplyWithPage(*job, DocumentPage(*pictures, *FileOf(job->requestUrl())));
  }
  showsUnfinished_ = true;
  conversions_.WithPages(document, [](const Conversions::Files&) {});
  ReplyWithPage(*job, WaitingPage(setup_.texts.preparing.arg(NameOf(*job))));
}

QByteArray ExamGateway::DocumentPage(const Conversions::Files& pictures, const fs::path& asked) const {
  if (pictures.empty()) return NoticePage(WhyNotShown(asked));
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

/// A frame must not stay empty, so it gets a page.
void ExamGateway::AnswerMissing(Job* job, const fs::path& asked, bool forFrame) {
  forFrame ? ReplyWithPage(*job, NoticePage(WhyNotShown(asked))) : job->fail(Job::UrlNotFound);
}

/// The notice in place of a file that does not appear. Empty for a clip that has a player.
QString ExamGateway::WhyNotShown(const fs::path& asked) const {
  const std::optional<fs::path> file = files_.Find(asked);
  if (!file) return setup_.texts.notFound.arg(NameOf(asked));
  const QString program = MissingProgram(*file, setup_.programs, HasFlashPlayer());
  if (!program.isEmpty()) return setup_.texts.needsProgram.arg(NameOf(asked), program);
  return KindOf(*file) == FileKind::Flash ? QString() : setup_.texts.cannotShow.arg(NameOf(asked));
}

}  // namespace quorvantis
