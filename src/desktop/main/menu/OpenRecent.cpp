// SPDX-License-Identifier: MIT
#include "desktop/main/menu/OpenRecent.h"

#include "desktop/controls/QtText.h"
#include "model/document/ExamServices.h"
#include "platform/StringTable.h"
#include "platform/UserDialogs.h"
#include "platform/texts/MenuTexts.h"
#include "text/MessageText.h"

#include <QFontMetrics>
#include <QGuiApplication>

#include <iterator>

namespace quorvantis {
namespace {

constexpr int kWidestName = 220;  // pixels
constexpr int kWidestFolder = 320;

const char* const kEntryNames[] = {"recent1", "recent2", "recent3", "recent4", "recent5",
                                   "recent6", "recent7", "recent8", "recent9", "recent10"};
static_assert(std::size(kEntryNames) == RecentExams::kMost);

/// A name or path that fits, kept in its own direction.
QString Shortened(const std::filesystem::path& path, int width) {
  const QFontMetrics metrics(QGuiApplication::font());
  return QChar(0x2066) + metrics.elidedText(PathToQString(path), Qt::ElideMiddle, width) + QChar(0x2069);
}

/// The folder tells files of one name apart.
QString CaptionOf(const std::filesystem::path& file) {
  return Shortened(file.filename(), kWidestName) + QStringLiteral(" — ") +
         Shortened(file.parent_path(), kWidestFolder);
}

bool IsThere(const std::filesystem::path& file) {
  std::error_code ignored;
  return std::filesystem::is_regular_file(file, ignored);
}

}  // namespace

void OpenRecent::Note() {
  const std::filesystem::path& file = editor_.state.FileName();
  if (exams_ == nullptr || file == noted_) return;
  noted_ = file;
  if (!editor_.state.IsUntitled() && IsThere(file)) exams_->Add(file);
}

bool OpenRecent::IsEmpty() const {
  return exams_ == nullptr || exams_->Read().empty();
}

std::vector<MenuEntry> OpenRecent::Entries() {
  std::vector<MenuEntry> entries;
  if (exams_ == nullptr) return entries;
  for (const std::filesystem::path& file : exams_->Read()) {
    entries.push_back({.name = kEntryNames[entries.size()],
                       .caption = CaptionOf(file),
                       .command = [this, file] { Open(file); }});
  }
  const StringTable& strings = editor_.state.document.Services().strings;
  entries.emplace_back();
  entries.push_back({.name = "clearRecent",
                     .caption = ToQString(strings.Text(text_id::kClearRecent)),
                     .command = [this] { exams_->Clear(); }});
  return entries;
}

/// A file that is gone is told before anything is asked about the present exam.
void OpenRecent::Open(const std::filesystem::path& file) {
  if (IsThere(file)) return editor_.files.OpenExam(file);
  exams_->Drop(file);
  const ExamServices& services = editor_.state.document.Services();
  services.dialogs.ShowError(FillMessage(services.strings.Text(text_id::kRecentGone), {PathToText(file)}));
}

}  // namespace quorvantis
