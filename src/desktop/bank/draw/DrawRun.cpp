// SPDX-License-Identifier: MIT
#include "desktop/bank/draw/DrawRun.h"

#include "bank/draw/DrawTexts.h"
#include "bank/index/BankUpdate.h"
#include "bank/near/OpenedContent.h"
#include "bank/search/TagSubjects.h"
#include "bank/tags/TagTexts.h"
#include "desktop/bank/draw/TypedOrder.h"
#include "model/document/ExamServices.h"
#include "model/document/FrameSetExam.h"
#include "platform/Progress.h"
#include "platform/texts/BankTexts.h"
#include "platform/texts/DrawTexts.h"
#include "text/MessageText.h"
#include "text/PathText.h"

#include <set>
#include <utility>

namespace quorvantis {
namespace {

BankUpdateReport BringUpToDate(BankIndex& index, ExamServices& services, const FileDigest& digest) {
  BankUpdate update(index, services, digest);
  update.Run();
  return update.Report();
}

/// False when that was cancelled.
bool AddQuestionsOf(const FrameSetExam& exam, const FileDigest& digest, Progress& progress,
                    std::vector<ComparedQuestion>& questions) {
  const int last = exam.LastCountedQuestion();
  questions.reserve(static_cast<std::size_t>(last));
  for (int number = 1; number <= last; ++number) {
    if (progress.IsCancelled()) return false;
    questions.emplace_back(OpenedContent(exam.Question(number), digest));
  }
  return true;
}

}  // namespace

DrawRun UpdateAndDraw(const BankPlace& place, ExamServices& services, const FileDigest& digest,
                      DrawOrder order, const FrameSetExam* openExam) {
  DrawRun run;
  auto index = BankIndex::Open(place, services.files, run.list.problem);
  if (!index) return run;
  run.hasFolders = !index->Folders().empty();
  if (!run.hasFolders) return run;
  const BankUpdateReport report = BringUpToDate(*index, services, digest);
  run.unreadableFolders = report.unreadableFolders;
  run.list.problem = report.problem;
  run.list.isCancelled = report.isCancelled;
  if (run.list.problem.IsAnything() || run.list.isCancelled) return run;
  if (openExam != nullptr && !AddQuestionsOf(*openExam, digest, services.progress, order.request.openExam)) {
    run.list.isCancelled = true;
    return run;
  }
  run.list = DrawFromBank(*index, services.files, order,
                          [&progress = services.progress] { return progress.IsCancelled(); });
  return run;
}

AnotherDrawn UpdateAndExchange(const BankPlace& place, ExamServices& services, const FileDigest& digest,
                               const DrawnList& list, std::size_t row) {
  AnotherDrawn another;
  auto index = BankIndex::Open(place, services.files, another.problem);
  if (!index) return another;
  another.problem = BringUpToDate(*index, services, digest).problem;
  if (another.problem.IsAnything() || services.progress.IsCancelled()) return another;
  return DrawAnother(*index, services.files, list, row);
}

DrawChoices ChoicesOf(const BankPlace& place, Files& files, const std::function<bool()>& isCancelled) {
  BankProblem problem;
  const auto index = BankIndex::Open(place, files, problem);
  if (!index) return {};
  const auto roots = index->Folders();
  std::set<std::filesystem::path> folders(roots.begin(), roots.end());
  for (const BankExam& exam : index->Exams(problem)) folders.insert(exam.path.parent_path());
  FolderTags tags(files);
  return {{folders.begin(), folders.end()}, KnownTags(*index, tags, isCancelled)};
}

std::vector<std::u16string> ReportOf(const DrawnList& list,
                                     const std::vector<std::filesystem::path>& unreadableFolders,
                                     const StringTable& strings) {
  std::vector<std::u16string> lines;
  lines.reserve(list.wishes.size() + list.unread.size() + unreadableFolders.size());
  for (std::size_t i = 0; i < list.wishes.size(); ++i) {
    const DrawWish& wish = list.order.request.wishes[i];
    lines.push_back(FillMessage(strings.Text(text_id::kDrawForWish),
                                {WishName(wish, strings), WishText(wish, list.wishes[i], strings)}));
  }
  for (const UnreadTags& unread : list.unread)
    lines.push_back(TagProblemText(unread.result, unread.file, strings));
  for (const std::filesystem::path& folder : unreadableFolders)
    lines.push_back(FillMessage(strings.Text(text_id::kBankFolderGone), {PathToText(folder)}));
  return lines;
}

}  // namespace quorvantis
