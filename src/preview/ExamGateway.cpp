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
    : setup_(std::move(setup)),
      files_(setup_.applicationFolder),
      conversions_(setup_.programs, setup_.applicationFolder) {}

void ExamGateway::SetPage(const fs::path& page) {
  files_.SetPageFolder(page.parent_path());
  conversions_.ForgetFailures();
  showsUnfinished_ = false;
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
  const auto isPlain = [&](const fs::path& source) { return IsPlainName(page, source); };
  return QString::fromStdU16String(EscapeSources(text, isPlain)).toUtf8();
}

/// Whether a source names a file as it is, and not by an address. The writers of pages name attached files
/// so, by paths that begin with a separator or a work folder; one of them may be missing. A backslash stays
/// what browsers take it for, a separator.
bool ExamGateway::IsPlainName(const fs::path& page, const fs::path& source) const {
  const auto exists = [&](const fs::path& name) {
    return files_.Find((page.parent_path() / name).lexically_normal()).has_value();
  };
  if (exists(source)) return true;
  const std::string& name = source.native();
  if (!name.starts_with('/') && !name.starts_with('~')) return false;
  const QByteArray unescaped = QByteArray::fromPercentEncoding(QByteArray::fromStdString(name));
  return name.find('\\') == std::string::npos && !exists(unescaped.toStdString());
}

void ExamGateway::AnswerFile(Job* job, const fs::path& file, bool forFrame) {
  const FileKind kind = KindOf(file);
  if (forFrame && (kind == FileKind::Media || kind == FileKind::Flash)) {
    return ReplyWithPage(*job, EmbedPage(job->requestUrl()));
  }
  switch (kind) {
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
      return ReplyWithFile(*job, ContentTypeOf(file), file);
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
  if (pictures.empty()) return NoticePage(WhyNotShown(document));
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

/// A frame must not stay empty, so it is answered with a page.
void ExamGateway::AnswerMissing(Job* job, const fs::path& asked, bool forFrame) {
  forFrame ? ReplyWithPage(*job, NoticePage(WhyNotShown(asked))) : job->fail(Job::UrlNotFound);
}

/// What stands in the place of a file that does not appear. Empty for a clip that a player is there for.
QString ExamGateway::WhyNotShown(const fs::path& asked) const {
  const std::optional<fs::path> file = files_.Find(asked);
  if (!file) return setup_.texts.notFound.arg(NameOf(asked));
  const QString program = MissingProgram(*file, setup_.programs, HasFlashPlayer());
  if (!program.isEmpty()) return setup_.texts.needsProgram.arg(NameOf(asked), program);
  return KindOf(*file) == FileKind::Flash ? QString() : setup_.texts.cannotShow.arg(NameOf(asked));
}

}  // namespace quorvantis
