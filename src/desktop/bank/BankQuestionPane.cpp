// SPDX-License-Identifier: MIT
#include "desktop/bank/BankQuestionPane.h"

#include "desktop/bank/desk/ShownHitText.h"
#include "desktop/controls/Controls.h"
#include "desktop/controls/QtText.h"
#include "platform/StringTable.h"
#include "platform/texts/BankTexts.h"

#include <QTabBar>

#include <utility>

namespace quorvantis {
namespace {

constexpr int kUntilPage = 150;  // milliseconds; longer than between two rows of a held key

bool IsSame(const std::optional<BankQuestion>& a, const std::optional<BankQuestion>& b) {
  return a && b && a->id == b->id && a->number == b->number && a->exam.path == b->exam.path &&
         a->exam.size == b->exam.size && a->exam.written == b->exam.written && a->text == b->text &&
         a->options == b->options;
}

}  // namespace

BankQuestionPane::BankQuestionPane(const ExamServices& services, const BankPageView::Make& makePage,
                                   QWidget* parent)
    : QTabWidget(parent),
      setting_(services.applicationFolder, services.files, services.codePage),
      text_(new QTextEdit(this)) {
  const auto text = [&services](int number) { return ToQString(services.strings.Text(number)); };
  setDocumentMode(true);
  NameControl(tabBar(), "bankViews", text(text_id::kBankViews));
  NameControl(text_, "bankQuestion", text(text_id::kBankQuestion));
  text_->setReadOnly(true);
  text_->setTabChangesFocus(true);
  text_->setFrameShape(QFrame::NoFrame);
  addTab(text_, text(text_id::kBankAsText));
  if (makePage) {
    page_ = makePage(this);
    connect(page_, &BankPageView::Left, this, &BankQuestionPane::Left);
    addTab(page_, text(text_id::kBankAsPage));
    setTabToolTip(kPageTab, PlainTip(text(text_id::kBankAsPageTip)));
    if (setting_.IsPage()) setCurrentIndex(kPageTab);
  }
  whenStays_.setSingleShot(true);
  whenStays_.setInterval(kUntilPage);
  connect(&whenStays_, &QTimer::timeout, this, &BankQuestionPane::ShowPage);
  connect(this, &QTabWidget::currentChanged, this, &BankQuestionPane::ChooseView);
}

void BankQuestionPane::Show(const BankHit* hit) {
  auto question = hit == nullptr ? std::nullopt : std::optional(hit->question);
  ShowHitText(*text_, hit == nullptr ? BankHitText() : WholeTextOf(*hit));
  if (IsSame(question, question_)) return;  // the page stays, or comes soon
  question_ = std::move(question);
  ShowPageSoon();
}

void BankQuestionPane::ChooseView() {
  setting_.Write(IsPageChosen());
  if (IsPageChosen()) return ShowPage();
  if (page_ != nullptr) page_->ShowNothing();
}

/// Nothing of a question stays in view when there is none.
void BankQuestionPane::ShowPageSoon() {
  if (!IsPageChosen() || !isVisible()) return;
  if (!question_ && page_ != nullptr) page_->ShowNothing();
  question_ ? whenStays_.start() : whenStays_.stop();
}

void BankQuestionPane::ShowPage() {
  whenStays_.stop();
  if (!IsPageChosen() || !isVisible() || !question_) return;
  page_->ShowQuestion(*question_);
}

void BankQuestionPane::showEvent(QShowEvent* event) {
  QTabWidget::showEvent(event);
  ShowPageSoon();
}

/// Files of a question do not lie about while nobody looks at them.
void BankQuestionPane::hideEvent(QHideEvent* event) {
  whenStays_.stop();
  if (page_ != nullptr) page_->ShowNothing();
  QTabWidget::hideEvent(event);
}

}  // namespace quorvantis
