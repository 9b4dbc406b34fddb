// SPDX-License-Identifier: MIT
#include "desktop/bank/tags/BankTagLine.h"

#include "bank/search/TagSubjects.h"
#include "bank/tags/TagTexts.h"
#include "desktop/bank/desk/BankDesk.h"
#include "desktop/controls/QtText.h"
#include "model/document/ExamServices.h"
#include "platform/texts/BankTexts.h"
#include "text/MessageText.h"

#include <QBoxLayout>

#include <algorithm>
#include <map>

namespace quorvantis {
namespace {

constexpr int kPauseInChoosing = 150;       // milliseconds
constexpr qsizetype kShownOfQuestion = 80;  // UTF-16 units
constexpr qsizetype kNamedOfQuestion = 30;

/// The beginning of the questions that a step is about, a line each.
QString QuestionsIn(const TagStep& step) {
  QStringList lines;
  for (const FolderChange& folder : step) {
    for (const TagChange& change : folder.changes) {
      if (lines.size() < 5) lines.append(ToQString(change.text).simplified().left(kShownOfQuestion));
    }
  }
  return lines.join('\n');
}

/// The beginning of the first of them.
QString FirstQuestionIn(const TagStep& step) {
  const QString first = ToQString(step.front().changes.front().text).simplified();
  const bool isLong = first.size() > kNamedOfQuestion;
  const QString shown = isLong ? first.left(kNamedOfQuestion - 1) + QChar(0x2026) : first;
  return QChar(0x2068) + shown + QChar(0x2069);
}

/// Where the tags of a question are kept.
std::pair<std::filesystem::path, std::string> PlaceOf(const BankQuestion& question) {
  return {question.exam.path.parent_path(), question.key};
}

bool GivesTags(const TagStep& step) {
  return std::any_of(step.begin(), step.end(), [](const FolderChange& folder) {
    return std::any_of(folder.changes.begin(), folder.changes.end(),
                       [](const TagChange& change) { return !change.add.empty(); });
  });
}

}  // namespace

BankTagLine::BankTagLine(const BankDesk& bank, const ExamServices& services, QWidget* parent)
    : QWidget(parent),
      strings_(services.strings),
      desk_(bank.Place(), services.files, bank.Tags(), nullptr),
      chips_(new BankTagChips(services.strings, this)),
      earlier_(new BankTagNotice("bankEarlierTags", services.strings, this)),
      problem_(new BankTagNotice("bankTagProblem", services.strings, this)) {
  auto* rows = new QVBoxLayout(this);
  rows->setContentsMargins(0, 0, 0, 0);
  for (QWidget* row : std::initializer_list<QWidget*>{chips_, earlier_, problem_}) rows->addWidget(row);
  whenChosen_.setSingleShot(true);
  whenChosen_.setInterval(kPauseInChoosing);
  Connect();
  ShowTags();
}

BankTagLine::~BankTagLine() {
  desk_.disconnect(this);
}

void BankTagLine::Connect() {
  connect(chips_, &BankTagChips::Added, this,
          [this](const std::vector<std::u16string>& tags) { Change(tags, {}); });
  connect(chips_, &BankTagChips::Removed, this, [this](const std::u16string& tag) { Change({}, {tag}); });
  connect(chips_, &BankTagChips::UndoWished, &desk_, &BankTagDesk::UndoLast);
  connect(chips_, &BankTagChips::Entered, &desk_, &BankTagDesk::LookForKnown);
  connect(chips_, &BankTagChips::TooLongChanged, this, [this](bool isTooLong) {
    if (isTooLong) return problem_->Say(ToQString(strings_.Text(text_id::kBankTagTooLong)));
    ShowProblem();
  });
  connect(earlier_, &BankTagNotice::ActionWished, this, &BankTagLine::TakeOver);
  connect(problem_, &BankTagNotice::ActionWished, this,
          [this] { IsSomethingDamaged() ? desk_.KeepAsideAndTryAgain() : desk_.TryAgain(); });
  connect(problem_, &BankTagNotice::Closed, this, [this] {
    desk_.ForgetFailed();
    ShowProblem();
  });
  connect(&whenChosen_, &QTimer::timeout, this, [this] {
    if (subjects_.size() == 1 && subjects_.front().tags.empty())
      desk_.LookForEarlier(subjects_.front().question);
  });
  connect(&desk_, &BankTagDesk::EarlierFound, this, &BankTagLine::ShowEarlier);
  connect(&desk_, &BankTagDesk::KnownFound, this, [this] { chips_->Propose(desk_.Known()); });
  connect(&desk_, &BankTagDesk::Written, this, &BankTagLine::Learn);
}

void BankTagLine::Show(const std::vector<BankHit>& hits) {
  subjects_.clear();
  subjects_.reserve(hits.size());
  for (const BankHit& hit : hits) {
    const auto unwritten = unwritten_.find(PlaceOf(hit.question));
    subjects_.push_back({hit.question, unwritten == unwritten_.end() ? hit.tags : unwritten->second});
  }
  desk_.ForgetEarlier();
  earlier_->Say({});
  whenChosen_.start();
  ShowTags();
  ShowUndo();
}

/// Shown before it is written; Learn tells what came of it.
void BankTagLine::Change(const std::vector<std::u16string>& add, const std::vector<std::u16string>& remove) {
  std::vector<BankQuestion> questions;
  questions.reserve(subjects_.size());
  for (Subject& subject : subjects_) {
    if (!CanHaveTags(subject.question)) continue;
    for (const std::u16string& tag : remove)
      std::erase_if(subject.tags, [&tag](const std::u16string& each) { return IsSameTag(each, tag); });
    for (const std::u16string& tag : add) {
      if (!HasTag(subject.tags, tag)) subject.tags.push_back(tag);
    }
    unwritten_[PlaceOf(subject.question)] = subject.tags;
    questions.push_back(subject.question);
  }
  desk_.Change(questions, add, remove);
  earlier_->Say({});
  ShowTags();
}

void BankTagLine::TakeOver() {
  Change(std::vector<std::u16string>(desk_.Earlier()), {});
}

void BankTagLine::Learn(const std::vector<TagsNow>& now) {
  unwritten_.clear();
  for (const TagsNow& each : now) {
    for (Subject& subject : subjects_) {
      const BankQuestion& question = subject.question;
      if (question.key == each.key && question.exam.path.parent_path() == each.folder)
        subject.tags = each.tags;
    }
  }
  ShowTags();
  ShowUndo();
  ShowProblem();
  emit Written(now);
}

void BankTagLine::ShowTags() {
  std::vector<ShownTag> shown;
  for (const Subject& subject : subjects_) {
    for (const std::u16string& tag : subject.tags) {
      const auto same = std::find_if(shown.begin(), shown.end(),
                                     [&tag](const ShownTag& each) { return IsSameTag(each.tag, tag); });
      if (same == shown.end()) {
        shown.push_back({tag, 1});
      } else {
        ++same->questions;
      }
    }
  }
  std::sort(shown.begin(), shown.end(), [](const ShownTag& a, const ShownTag& b) { return a.tag < b.tag; });
  const bool canHaveTags = subjects_.size() != 1 || CanHaveTags(subjects_.front().question);
  chips_->Show(shown, subjects_.size(), canHaveTags);
}

void BankTagLine::ShowUndo() {
  const TagStep& undo = desk_.LastUndo();
  if (undo.empty()) return chips_->OfferUndo({}, {});
  const int text = GivesTags(undo) ? text_id::kBankPutBackTag : text_id::kBankTakeBackTag;
  std::u16string caption = FillMessage(strings_.Text(text), {FromQString(Joined(TagsIn(undo)))});
  if (!IsOfSubjects(undo))
    caption = FillMessage(strings_.Text(text_id::kBankUndoElsewhere),
                          {caption, FromQString(FirstQuestionIn(undo))});
  chips_->OfferUndo(ToQString(caption), QuestionsIn(undo));
}

/// Whether a step is about chosen questions alone.
bool BankTagLine::IsOfSubjects(const TagStep& step) const {
  const auto isSubject = [this](const std::filesystem::path& folder, const TagChange& change) {
    return std::any_of(subjects_.begin(), subjects_.end(), [&](const Subject& subject) {
      return PlaceOf(subject.question) == std::pair(folder, change.key);
    });
  };
  return std::all_of(step.begin(), step.end(), [&isSubject](const FolderChange& folder) {
    return std::all_of(folder.changes.begin(), folder.changes.end(),
                       [&](const TagChange& change) { return isSubject(folder.folder, change); });
  });
}

void BankTagLine::ShowEarlier() {
  const bool isWanted = subjects_.size() == 1 && subjects_.front().tags.empty() && !desk_.Earlier().empty();
  if (!isWanted) return earlier_->Say({});
  const std::u16string tags = FromQString(Joined(desk_.Earlier()));
  earlier_->Say(ToQString(FillMessage(strings_.Text(text_id::kBankEarlierTags), {tags})),
                ToQString(strings_.Text(text_id::kBankTakeOverTags)));
}

void BankTagLine::ShowProblem() {
  const bool isAny = !desk_.Failed().empty();
  const int action = IsSomethingDamaged() ? text_id::kBankKeepTagsAside : text_id::kBankTryTagsAgain;
  problem_->Say(ProblemText(), isAny ? ToQString(strings_.Text(action)) : QString(),
                isAny || !desk_.KeptAside().empty());
}

/// A line for each folder, with all that is not written there.
QString BankTagLine::ProblemText() const {
  QStringList lines;
  for (const std::filesystem::path& aside : desk_.KeptAside())
    lines.append(ToQString(FillMessage(strings_.Text(text_id::kBankTagsKeptAside), {PathToText(aside)})));
  std::map<std::filesystem::path, TagStep> notWritten;
  for (const FailedChange& each : desk_.Failed()) notWritten[each.change.folder].push_back(each.change);
  for (const FailedChange& each : desk_.Failed()) {
    const auto step = notWritten.extract(each.change.folder);
    if (step.empty()) continue;  // told with an earlier one
    const std::u16string tags = FromQString(Joined(TagsIn(step.mapped())));
    lines.append(ToQString(FillMessage(strings_.Text(text_id::kBankTagsNotWritten), {tags}) + u" " +
                           TagProblemText(each.result, each.change.folder / kTagFileName, strings_)));
  }
  return lines.join('\n');
}

bool BankTagLine::IsSomethingDamaged() const {
  return std::any_of(desk_.Failed().begin(), desk_.Failed().end(),
                     [](const FailedChange& failed) { return failed.result.outcome == TagOutcome::Damaged; });
}

/// Each in its own direction.
QString BankTagLine::Joined(const std::vector<std::u16string>& tags) const {
  QStringList list;
  for (const std::u16string& tag : tags) list.append(QChar(0x2068) + ToQString(tag) + QChar(0x2069));
  return list.join(layoutDirection() == Qt::RightToLeft ? QString(QChar(0x060C)) + ' ' : QString(", "));
}

}  // namespace quorvantis
