// SPDX-License-Identifier: MIT
#include "desktop/main/commands/BankPages.h"

#include "bank/taking/StillAsShown.h"
#include "desktop/controls/Controls.h"
#include "desktop/controls/QtText.h"
#include "editor/WorkCopies.h"
#include "model/WorkFolderNames.h"
#include "platform/StringTable.h"
#include "platform/texts/BankTexts.h"
#include "platform/texts/OverviewTexts.h"
#include "preview/PreviewSetup.h"
#include "render/sheets/PaperPage.h"
#include "render/sheets/SheetStyle.h"
#include "text/MessageText.h"
#include "text/NumberText.h"
#include "text/PathText.h"

#include <QFocusEvent>
#include <QStackedLayout>

#include <utility>

namespace quorvantis {
namespace {

constexpr int kUntilTold = 300;    // milliseconds
constexpr int kNoticeMargin = 12;  // pixels

}  // namespace

std::u16string NoLongerSoText(const BankQuestion& question, const StringTable& strings) {
  return FillMessage(strings.Text(text_id::kBankChanged),
                     {PathToText(question.exam.path), FormatInteger(question.number)});
}

BankPages::BankPages(const ExamServices& services, std::function<int()> takeNumber,
                     bool languageIsRightToLeft, QWidget* parent)
    : BankPageView(parent),
      services_(services),
      takeNumber_(std::move(takeNumber)),
      languageIsRightToLeft_(languageIsRightToLeft),
      notice_(new QLabel(this)),
      reading_(nullptr) {
  NameControl(notice_, "bankPageNotice", {});
  notice_->setTextFormat(Qt::PlainText);
  notice_->setWordWrap(true);
  notice_->setMargin(kNoticeMargin);
  notice_->setAlignment(Qt::AlignTop | Qt::AlignLeading);
  auto* const layout = new QStackedLayout(this);
  layout->addWidget(notice_);
  PagePane::Expect(*this);
  whileReading_.setSingleShot(true);
  whileReading_.setInterval(kUntilTold);
  connect(&whileReading_, &QTimer::timeout, this,
          [this] { ShowNotice(services_.strings.Text(text_id::kBankPageComes)); });
}

/// The browser refers to the pages.
BankPages::~BankPages() {
  reading_.Drop();
  delete pane_;
}

void BankPages::ShowQuestion(const BankQuestion& question) {
  wanted_ = question;
  isWanted_ = false;
  if (!whileReading_.isActive()) whileReading_.start();
  if (!reading_.IsRunning()) Begin();
}

void BankPages::ShowNothing() {
  wanted_.reset();
  isWanted_ = false;
  ShowNotice({});
}

void BankPages::Begin() {
  const auto folder = AttachmentWorkRoot(services_.applicationFolder) /
                      (std::string(kLookedAtFolder) + std::to_string(takeNumber_()));
  isWanted_ = true;
  reading_.Start([this, folder, question = *std::exchange(wanted_, std::nullopt)](const auto&) {
    const auto peeked =
        std::make_shared<const PeekedQuestion>(services_, folder, question.exam.path, question.number);
    return BackgroundRun::Finish([this, question, peeked] { Take(question, peeked); });
  });
}

/// Empty if the question can be shown.
std::u16string BankPages::WhyNot(const BankQuestion& question, const PeekedQuestion& peeked) const {
  if (!peeked.IsOpened())
    return FillMessage(services_.strings.Text(text_id::kTakenFileGone), {PathToText(question.exam.path)});
  const bool isSo = peeked.IsThere() && IsStillSo(peeked.Question(), question);
  return isSo ? std::u16string() : NoLongerSoText(question, services_.strings);
}

/// Another question may have been asked for meanwhile, or none.
void BankPages::Take(const BankQuestion& question, std::shared_ptr<const PeekedQuestion> peeked) {
  if (wanted_) return Begin();
  if (!isWanted_) return;
  if (const std::u16string problem = WhyNot(question, *peeked); !problem.empty()) return ShowNotice(problem);
  whileReading_.stop();
  const auto page = services_.applicationFolder / ("exam_Question" + std::to_string(++shownPages_) + ".htm");
  pages_.Clear();
  pages_.Add(page, ComposeQuestion(peeked->Exam(), question.number,
                                   {Sheet::Paper, {}, false, languageIsRightToLeft_}));
  Pane().Show(page);
  shown_ = std::move(peeked);
  static_cast<QStackedLayout&>(*layout()).setCurrentWidget(pane_);
  setFocusPolicy(Qt::StrongFocus);
}

PagePane& BankPages::Pane() {
  if (pane_ != nullptr) return *pane_;
  pane_ = new PagePane(SetUpGateway(services_.applicationFolder, services_.strings, pages_),
                       ToQString(kSheetScript), this);
  NameControl(pane_, "bankPage", ToQString(services_.strings.Text(text_id::kBankAsPage)));
  layout()->addWidget(pane_);
  connect(pane_, &PagePane::EscapePressed, this, &BankPageView::Left);
  connect(pane_, &PagePane::TabPressed, this, &BankPages::GoOn);
  return *pane_;
}

/// Tab passes over a widget with a focus proxy.
void BankPages::focusInEvent(QFocusEvent* event) {
  if (pane_ != nullptr) pane_->setFocus(event->reason());
}

/// To the next control that Tab would go to from here, if this were an ordinary one.
void BankPages::GoOn(bool isForward) {
  const auto step = [isForward](const QWidget* widget) {
    return isForward ? widget->nextInFocusChain() : widget->previousInFocusChain();
  };
  for (QWidget* next = step(this); next != this; next = step(next)) {
    const bool takesTab = (next->focusPolicy() & Qt::TabFocus) != 0 && next->isVisible() && next->isEnabled();
    if (takesTab && !isAncestorOf(next) && !next->isWindow())
      return next->setFocus(isForward ? Qt::TabFocusReason : Qt::BacktabFocusReason);
  }
}

void BankPages::ShowNotice(const std::u16string& text) {
  whileReading_.stop();
  notice_->setText(ToQString(text));
  notice_->setAccessibleName(notice_->text());
  static_cast<QStackedLayout&>(*layout()).setCurrentWidget(notice_);
  setFocusPolicy(Qt::NoFocus);
  pages_.Clear();
  if (pane_ != nullptr) pane_->Clear();
  shown_.reset();
}

}  // namespace quorvantis
