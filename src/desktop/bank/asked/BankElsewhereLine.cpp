// SPDX-License-Identifier: MIT
#include "desktop/bank/asked/BankElsewhereLine.h"

#include "bank/search/UnchangedExams.h"
#include "desktop/bank/asked/AskedBefore.h"
#include "desktop/bank/desk/BankExamCaption.h"
#include "desktop/controls/Controls.h"
#include "desktop/controls/QtText.h"
#include "model/document/ExamServices.h"
#include "platform/QuietProgress.h"
#include "platform/StringTable.h"
#include "platform/texts/AskedTexts.h"
#include "text/MessageText.h"
#include "text/NumberText.h"

#include <QTextDocumentFragment>

#include <algorithm>
#include <memory>
#include <utility>

namespace quorvantis {
namespace {

constexpr int kPauseOnHit = 150;      // milliseconds
constexpr std::size_t kMostSame = 4;  // exams that are named
constexpr std::size_t kMostVariants = 2;
constexpr qsizetype kLongestName = 32;  // UTF-16 units of the title of an exam
constexpr int kLinesOfPlaces = 2;       // that are kept free, so that the list does not jump

/// The exam of the question itself is seen, too.
BankExamNames NamesBeside(const BankQuestion& question, const std::vector<BankUse>& uses,
                          const StringTable& strings) {
  std::vector<const BankExam*> exams{&question.exam};
  exams.reserve(uses.size() + 1);
  for (const BankUse& use : uses) exams.push_back(&use.exam);
  return {exams, strings, kLongestName};
}

}  // namespace

BankElsewhereLine::BankElsewhereLine(BankDesk& desk, QWidget* parent)
    : QLabel(parent), desk_(desk), run_(nullptr) {
  NameControl(this, "bankElsewhere", {});
  setTextFormat(Qt::RichText);
  setWordWrap(true);
  setTextInteractionFlags(Qt::LinksAccessibleByMouse | Qt::LinksAccessibleByKeyboard);
  setAlignment(Qt::AlignTop | Qt::AlignLeading);
  setMinimumHeight(kLinesOfPlaces * fontMetrics().lineSpacing());
  whenQuiet_.setSingleShot(true);
  whenQuiet_.setInterval(kPauseOnHit);
  connect(&whenQuiet_, &QTimer::timeout, this, &BankElsewhereLine::Look);
  connect(this, &QLabel::linkActivated, this, [this](const QString& link) {
    const auto use = static_cast<std::size_t>(link.toULongLong());
    if (use < uses_.size()) emit UseChosen(BankUse(uses_[use]));
  });
}

BankElsewhereLine::~BankElsewhereLine() {
  run_.disconnect(this);
}

/// What is known of a question stays while it is looked up again.
void BankElsewhereLine::Show(const BankQuestion* question) {
  const bool isSame = question != nullptr && question_ && question_->exam.path == question->exam.path &&
                      question_->number == question->number && question_->key == question->key;
  question_ = question == nullptr ? std::nullopt : std::optional(*question);
  if (!isSame) {
    uses_.clear();
    clear();
    setAccessibleName({});
  }
  question_ ? whenQuiet_.start() : whenQuiet_.stop();
}

BankElsewhereLine::Found BankElsewhereLine::LookUp(const BankDesk& desk, KeptBankMemory& memory,
                                                   const BankQuestion& question,
                                                   const BackgroundRun::Cancelled& isCancelled) {
  Found found{question, false, std::nullopt};
  BankProblem problem;
  auto index = desk.Opened(problem);
  if (!index) return found;
  try {
    found.isOutdated = !UnchangedExams(*index, desk.Digest()).Has(question.exam);
  } catch (const DatabaseError& error) {
    index->ProblemAfter(error);
  }
  const auto remembered = memory.For(*index, isCancelled);
  if (!remembered) return found;
  QuietProgress progress(isCancelled);
  BankLikeness likeness = remembered->Elsewhere(*index, desk.Digest(), question, progress);
  if (!likeness.problem.IsAnything()) found.uses = std::move(likeness.uses.front());
  return found;
}

/// One at a time: the memory of the bank that is being made for one question serves the next one.
void BankElsewhereLine::Look() {
  if (!question_) return;
  isDue_ = run_.IsRunning();
  if (isDue_) return;
  const auto job = [this, &memory = desk_.UseMemory(),
                    question = *question_](const BackgroundRun::Cancelled& isCancelled) {
    const auto found = std::make_shared<Found>(LookUp(desk_, memory, question, isCancelled));
    return BackgroundRun::Finish([this, found] { Take(std::move(*found)); });
  };
  run_.Start(job);
}

void BankElsewhereLine::Take(Found found) {
  if (isDue_) whenQuiet_.start();
  isDue_ = false;
  if (!question_ || question_->id != found.question.id || question_->key != found.question.key) return;
  if (found.isOutdated) return emit Outdated();
  if (!found.uses) return;
  uses_ = std::move(*found.uses);
  PutNewestFirst(uses_);
  names_ = NamesBeside(*question_, uses_, desk_.Services().strings);
  QStringList sentences{Sentence(text_id::kBankSameIn, true, kMostSame),
                        Sentence(text_id::kBankVariantsIn, false, kMostVariants)};
  sentences.removeAll(QString());
  if (sentences.isEmpty()) sentences << ToQString(desk_.Services().strings.Text(text_id::kBankNowhereElse));
  setText(sentences.join(' '));
  setAccessibleName(QTextDocumentFragment::fromHtml(text()).toPlainText());
}

/// Empty if there is no such use.
QString BankElsewhereLine::Sentence(int text, bool isSame, std::size_t most) const {
  QStringList links;
  std::size_t count = 0;
  for (std::size_t i = 0; i < uses_.size(); ++i) {
    if (IsSameQuestion(uses_[i].relation) == isSame && ++count <= most) links << Link(i);
  }
  if (links.isEmpty()) return {};
  const StringTable& strings = desk_.Services().strings;
  const QString separator = ToQString(strings.Text(text_id::kBankBetweenPlaces));
  QString places = links.join(separator.toHtmlEscaped() + ' ');
  if (count > most) {
    const std::u16string more = FillMessage(strings.Text(text_id::kBankMorePlaces),
                                            {FormatInteger(static_cast<std::int64_t>(count - most))});
    places += ' ' + ToQString(more).toHtmlEscaped();
  }
  const std::u16string sentence = FromQString(ToQString(strings.Text(text)).toHtmlEscaped());
  return ToQString(FillMessage(sentence, {FromQString(places)}));
}

QString BankElsewhereLine::Link(std::size_t use) const {
  const QString place =
      BankPlaceText(names_.Of(uses_[use].exam), uses_[use].number, desk_.Services().strings);
  return QString("<a href=\"%1\">%2</a>").arg(use).arg(place.toHtmlEscaped());
}

}  // namespace quorvantis
