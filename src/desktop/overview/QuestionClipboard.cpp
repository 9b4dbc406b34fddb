// SPDX-License-Identifier: MIT
#include "desktop/overview/QuestionClipboard.h"

#include "desktop/controls/QtText.h"
#include "examfile/FileFailure.h"
#include "platform/StringTable.h"
#include "platform/WholeFile.h"
#include "platform/texts/OverviewTexts.h"
#include "text/MessageText.h"
#include "text/NumberText.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>

#include <system_error>

namespace quorvantis {
namespace {

constexpr const char* kMimeType = "application/x-quorvantis-questions";

/// The clipboard passes everything through memory, more than once.
constexpr std::uint64_t kMegabyte = std::uint64_t{1024} * 1024;
constexpr std::uint64_t kMostMegabytes = 128;
constexpr std::size_t kMostBytes = (kMostMegabytes + 64) * kMegabyte;  // the texts come on top

const QMimeData* Content() {
  return QGuiApplication::clipboard()->mimeData();
}

bool IsEmpty(const QMimeData* content) {
  return content == nullptr || content->formats().isEmpty();
}

}  // namespace

QuestionClipboard::QuestionClipboard(const ExamServices& services)
    : services_(services), kept_(services.applicationFolder / "copied-questions.exm") {}

std::u16string QuestionClipboard::Copy(const std::u16string& title,
                                       const std::vector<CopiedQuestion>& questions) {
  if (AttachedBytes(questions) > kMostMegabytes * kMegabyte) {
    return FillMessage(services_.strings.Text(text_id::kCopyTooLarge),
                       {FormatInteger(static_cast<std::int64_t>(kMostMegabytes))});
  }
  std::error_code failure = WriteQuestionsFile(services_, title, questions, kept_);
  const auto bytes = failure ? std::nullopt : ReadWholeFile(kept_, kMostBytes);
  if (!bytes) {
    if (!failure) failure = std::make_error_code(std::errc::io_error);
    return FillMessage(services_.strings.Text(text_id::kCannotCopy),
                       {FileFailureText(services_.strings, failure)});
  }
  auto* content = new QMimeData;
  content->setData(kMimeType, QByteArray(bytes->data(), static_cast<qsizetype>(bytes->size())));
  content->setHtml(ToQString(QuestionsAsHtml(questions)));
  content->setText(ToQString(QuestionsAsText(questions)));
  QGuiApplication::clipboard()->setMimeData(content);
  return {};
}

bool QuestionClipboard::HasQuestions() const {
  const QMimeData* content = Content();
  std::error_code ignored;
  return IsEmpty(content) ? std::filesystem::is_regular_file(kept_, ignored) : content->hasFormat(kMimeType);
}

bool QuestionClipboard::SaveTo(const std::filesystem::path& file) const {
  const QMimeData* content = Content();
  if (IsEmpty(content)) {
    std::error_code error;
    return std::filesystem::copy_file(kept_, file, std::filesystem::copy_options::overwrite_existing, error);
  }
  const QByteArray bytes = content->data(kMimeType);
  const std::string_view view(bytes.constData(), static_cast<std::size_t>(bytes.size()));
  return !bytes.isEmpty() && !SaveWholeFile(services_.files, file, view);
}

}  // namespace quorvantis
